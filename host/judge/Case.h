#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/document/Equipment.h"
#include "host/document/RunRecord.h"

/// The judge's input: a document as it is now, and the record of its runs. Plain data, so that a verdict
/// cannot depend on anything else.
namespace host::judge {

/// One limit of a standard as it is now.
struct CaseLimit {
  std::string key;
  std::string unit;
  std::optional<double> low, high;  ///< inclusive, in `unit`; a percentage is resolved
  std::string lowText, highText;    ///< as entered

  bool HasBound() const { return low || high; }
};

struct CaseStandard {
  std::string name;
  std::string description;
  std::vector<CaseLimit> limits;
};

/// The result that the plug-in saved in the element.
struct SavedResult {
  std::int32_t status = 0;
  std::int32_t instrument = 0;  ///< number of the tester's record in the document; 0 for none
  std::string serviceCode, serviceValue, comment;
  bool measured = false;  ///< whether there is a measurement
  std::optional<double> value;
  std::string unit, flags;
  std::int32_t measurementStatus = 0;
};

/// Which of its children's readings becomes a group's value.
enum class Filter { kNoValue, kMaximum, kMinimum };

struct CaseElement {
  std::int32_t id = 0;
  std::int32_t parent = 0;  ///< 0 for an element at the top
  std::int32_t testId = 0;
  std::string name;
  bool group = false;
  std::string fault;          ///< why the catalogue does not know the test; empty when it does
  std::string expectedUnit;   ///< in which readings are recorded; empty for a test that has none
  std::int32_t settings = 0;  ///< the option bits that decide what is measured
  Filter filter = Filter::kNoValue;
  bool recordOnly = false;
  std::vector<CaseStandard> standards;
  std::optional<SavedResult> result;
};

struct Case {
  document::Equipment equipment;
  std::vector<CaseElement> elements;  ///< in document order, parents before children
  const std::vector<document::RunRecord>* runs = nullptr;
  /// The names of the standards by which this view judges; empty for every standard that an element names.
  std::vector<std::string> selected;
};

}  // namespace host::judge
