#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/document/RunRecord.h"
#include "host/judge/Verdict.h"

namespace host::archive {

/// An element as it was judged when its document was added.
struct ArchivedElement {
  judge::JudgedElement result;
  std::string runDate;  ///< when the result was made; UTC, ISO; empty without a current one
};

/// What a list shows of a document. Texts are valid UTF-8.
struct ArchiveEntry {
  std::int64_t id = 0;         ///< given by the archive, from 1
  std::int64_t revision = 0;   ///< given by the archive, from 1
  std::int64_t revisions = 0;  ///< how many the archive has of the document
  std::string hash;            ///< SHA-256 of the contents; given by the archive
  std::string bench;           ///< name of the machine that added it
  std::string path;            ///< where it was on that machine
  std::string asset, serial, maker, model;
  std::string comment;  ///< a remark about the document; may be empty
  judge::Outcome outcome = judge::Outcome::kIncomplete;
  bool finished = true;      ///< whether every element had a result
  bool simulated = false;    ///< whether its runs were on a simulated tester
  std::int32_t run = 0;      ///< number of its last run; 0 when it records none
  std::string runDate;       ///< of the element run last; UTC, ISO; empty when no result is current
  std::string operatorName;  ///< one or more; empty when none is recorded
  std::string added;         ///< when it was added and judged; UTC, ISO

  /// The date of the run, otherwise that of adding it.
  const std::string& Date() const { return runDate.empty() ? added : runDate; }
};

/// A document with all that the archive keeps of it.
struct ArchivedDocument {
  ArchiveEntry entry;
  std::optional<document::RecordedTester> instrument;  ///< the tester of the last run that had one
  std::vector<ArchivedElement> elements;               ///< in document order, parents before children
  std::string contents;                                ///< the file, byte by byte
};

/// One reading of a test.
struct TrendPoint {
  std::int64_t document = 0;  ///< identifier in the archive
  std::string date;           ///< UTC, ISO
  bool dated = true;          ///< false when it is the date of adding, since the record has none
  std::string added;          ///< when the document was added and the reading judged; UTC, ISO
  std::string serial;         ///< of the equipment
  ArchivedElement element;

  bool Overloaded() const;
  /// The number to draw; none for an overload.
  std::optional<double> Value() const;
  /// That of the measurement; a group's is its children's.
  std::string Unit() const;
};

/// The readings of one test of one asset, by date: of simulated testers, or of real ones, never of both.
struct Trend {
  std::string asset;
  std::int32_t testId = 0;
  bool simulated = false;
  std::vector<TrendPoint> points;
  std::size_t otherKind = 0;   ///< how many readings of the other kind are left out
  std::size_t notCurrent = 0;  ///< how many results are left out since they did not count when added
};

}  // namespace host::archive
