#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestElement.h"

namespace bench {

class ElementFactory;

/// The outcome of a document, or of a part of it.
enum class Outcome { kPassed, kFailed, kIncomplete };

/// "passed", "failed", "incomplete".
std::string OutcomeText(Outcome outcome);

/// The status of a result as people read it: "not tested", "passed", "failed", "not applicable", "aborted".
std::string StatusText(std::int32_t status);

struct MeasurementSummary {
  std::optional<double> value;  ///< none when the measurement has no value
  std::string unit;
  std::string flags;
  std::int32_t status = 0;
};

/// What there is to tell of one element of a document.
struct ElementSummary {
  std::int32_t id = 0;
  std::int32_t parent = 0;  ///< 0 for an element at the top
  std::int32_t testId = 0;
  bool sequence = false;
  std::string name;
  std::int32_t status = 0;  ///< of the result; 0 when there is none
  std::int32_t mtiId = 0;
  std::string serviceCode;
  std::string serviceValue;
  std::optional<MeasurementSummary> measurement;
  std::vector<std::string> failedStandards;
  std::vector<std::string> doubts;
  /// A reading that counts as passed although no limit judged it.
  bool recordedOnly = false;

  /// "passed", "failed", ...; a doubtful element that would count as passed reads "doubtful".
  std::string Verdict() const;
  /// Passed or not applicable, and without a doubt.
  bool CountsAsDone() const;
  bool Failed() const;
};

/// The elements and all that stands below them, in document order, parents before children.
/// @param standards those by which the elements are judged
std::vector<ElementSummary> Summarise(const std::vector<std::shared_ptr<orvik::ITestElement>>& elements,
                                      const ElementFactory& factory,
                                      const std::shared_ptr<orvik::IStandardColl>& standards);

/// Failed when any element failed, else incomplete when any is not tested, aborted or doubtful or there is
/// none, else passed.
Outcome OutcomeOf(const std::vector<ElementSummary>& elements);

}  // namespace bench
