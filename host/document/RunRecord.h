#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "host/document/Equipment.h"
#include "host/document/Reason.h"

namespace host::document {

/// The tester that answered, and the test leads by which its readings were corrected.
struct RecordedTester {
  std::string type;
  std::string serial;
  std::string firmware;
  std::int32_t leads = 0;     ///< mOhm
  std::string leadsMeasured;  ///< when; ISO 8601, empty when it is not known

  bool operator==(const RecordedTester&) const = default;
};

/// The measurement that the plug-in made of a reply.
struct RecordedReading {
  std::string value;  ///< shortest text that reads back as the same number; empty when there is none
  std::string unit;
  std::string flags;

  bool operator==(const RecordedReading&) const = default;
};

/// What the plug-in judged a reading by, as it was then.
struct RecordedLimit {
  std::string standard;
  std::string description;
  std::string unit;
  std::string low;  ///< as entered; empty when there is none
  std::string high;
  std::int32_t status = 0;  ///< `orvik::Judgement`

  bool operator==(const RecordedLimit&) const = default;
};

/// An element has been finished: by the tester's answer, or by the operator who set it aside.
struct RecordedTest {
  enum class By { kTester, kOperator };

  std::int32_t element = 0;
  std::int32_t testId = 0;
  std::int32_t settings = 0;  ///< the option bits that decide what is measured
  std::string at;             ///< ISO 8601
  std::int32_t status = 0;    ///< `orvik::ResultStatus`
  By by = By::kTester;
  std::int32_t tester = 0;        ///< which of the run's testers answered, from 1; 0 when none did
  std::vector<std::string> said;  ///< results and refusals as they came in, as UTF-8
  std::optional<RecordedReading> recorded;
  std::vector<RecordedLimit> judged;
  std::vector<Reason> doubts;
};

/// Elements that the run takes up: from here on they have no current result until it has finished them.
struct RecordedTakes {
  std::vector<std::int32_t> elements;
};

/// What was done in one run of a document, in the order in which it happened.
struct RunRecord {
  /// How it ended. A run without an end is going on, or was killed.
  enum class End { kNone, kFinished, kStopped, kAborted, kLost };

  using Step = std::variant<RecordedTakes, RecordedTest>;

  std::int32_t number = 0;   ///< from 1
  std::string begun, ended;  ///< ISO 8601
  End end = End::kNone;
  std::string by;  ///< who operated the tester
  bool simulated = false;
  double timeScale = 1.0;
  std::string port;
  std::string program;
  Equipment equipment;
  std::vector<RecordedTester> testers;
  std::vector<Step> steps;
  /// Whether it is as this program wrote it.
  bool intact = true;
  /// Whether a run that came after it is missing, or another one was put in its place.
  bool gapAfter = false;

  /// Every element that it took up, each once, in the order of the first time.
  std::vector<std::int32_t> Elements() const;
};

/// "finished", "stopped", "aborted", "lost"; empty for `kNone`.
std::string EndText(RunRecord::End end);

}  // namespace host::document
