#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/judge/Verdict.h"

namespace bench {

/// The bounds that one limit of a standard gives.
struct StandardLimit {
  std::string standard;
  std::string description;
  std::string unit;  ///< of the bounds
  std::optional<double> low = {};
  std::optional<double> high = {};
  bool operator==(const StandardLimit&) const = default;
};

/// The tester that a document was measured with last.
struct ArchivedInstrument {
  std::string type;
  std::string serial;
  std::string firmware;
  std::int32_t calibration = 0;  ///< resistance of the test leads, mOhm
  bool operator==(const ArchivedInstrument&) const = default;
};

struct ArchivedElement {
  judge::JudgedElement summary;
  std::string runDate;                ///< UTC, ISO; empty when the document does not tell it
  std::string operatorName;           ///< empty when the document does not tell it
  std::vector<StandardLimit> limits;  ///< those with a bound
};

/// What the archive tells of a document in a list. Texts are valid UTF-8.
struct ArchiveEntry {
  std::int64_t id = 0;         ///< given by the archive, from 1
  std::int64_t revision = 0;   ///< given by the archive, from 1
  std::int64_t revisions = 0;  ///< how many the archive has of the document
  std::string hash;            ///< SHA-256 of the contents; given by the archive
  std::string bench;           ///< name of the machine that added it
  std::string path;            ///< where it stood there
  std::string asset, serial, maker, model;
  std::string outcome;       ///< "passed", "failed", "incomplete"
  bool finished = true;      ///< whether everything had a result
  std::string runDate;       ///< of the element run last; UTC, ISO; empty when the document does not tell it
  std::string operatorName;  ///< one or more; empty when the document does not tell it
  std::string added;         ///< when it was added; UTC, ISO

  /// The date of the run, otherwise that of adding it.
  const std::string& Date() const { return runDate.empty() ? added : runDate; }
};

/// A document with all that the archive keeps of it.
struct ArchivedDocument {
  ArchiveEntry entry;
  std::optional<ArchivedInstrument> instrument;
  std::vector<ArchivedElement> elements;  ///< in document order, parents before children
  std::string contents;                   ///< the file, byte by byte
};

/// One reading of a test.
struct TrendPoint {
  std::int64_t document = 0;  ///< identifier in the archive
  std::string date;           ///< UTC, ISO
  bool dated = true;          ///< false when it is the date of adding, since the document tells none
  std::string serial;         ///< of the equipment
  ArchivedElement element;

  bool Overloaded() const;
  /// Whether there is a number to draw.
  bool HasValue() const;
};

/// The readings of one test of one asset, by date.
struct Trend {
  std::string asset;
  std::int32_t testId = 0;
  std::vector<TrendPoint> points;
};

}  // namespace bench
