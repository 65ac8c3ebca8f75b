#include "host/judge/Judge.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "host/judge/Currency.h"
#include "host/judge/JudgeGroup.h"
#include "host/judge/JudgeTest.h"
#include "host/judge/Limits.h"

namespace host::judge {
namespace {

Measurement MeasurementOf(const SavedResult& saved) {
  return {saved.value, saved.unit, saved.flags, saved.measurementStatus};
}

/// The part of a result that does not depend on any record.
JudgedElement Unjudged(const CaseElement& element, const std::vector<std::string>& selected) {
  JudgedElement judged;
  judged.id = element.id;
  judged.parent = element.parent;
  judged.testId = element.testId;
  judged.group = element.group;
  judged.name = element.name;
  judged.recordOnly = element.recordOnly;
  judged.limits = LimitsOf(element, selected);
  if (!element.result) return judged;
  judged.status = element.result->status;
  judged.instrument = element.result->instrument;
  judged.serviceCode = element.result->serviceCode;
  judged.serviceValue = element.result->serviceValue;
  judged.comment = element.result->comment;
  if (element.result->measured) judged.measurement = MeasurementOf(*element.result);
  return judged;
}

void SetOrigin(const LastRecord& last, JudgedElement& judged) {
  judged.run = last.run->number;
  judged.at = last.test->at;
  judged.by = last.run->by;
  if (last.test->tester > 0)
    judged.tester = last.run->testers[static_cast<std::size_t>(last.test->tester) - 1];
}

void AddName(std::vector<std::string>& names, const std::string& name) {
  if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
}

void ListStandards(const Case& document, JudgedDocument& judged) {
  for (const auto& element : document.elements) {
    for (const auto& standard : element.standards) {
      const auto& selected = document.selected;
      const bool asked =
          selected.empty() || std::find(selected.begin(), selected.end(), standard.name) != selected.end();
      AddName(asked ? judged.standards : judged.leftOut, standard.name);
    }
  }
}

void DescribeRuns(const Case& document, JudgedDocument& judged) {
  if (!document.runs || document.runs->empty()) return;
  judged.simulated = std::any_of(document.runs->begin(), document.runs->end(),
                                 [](const document::RunRecord& run) { return run.simulated; });
  judged.run = document.runs->back().number;
}

/// From last to first, since a group's verdict depends on its children, which follow it.
void JudgeElements(const Case& document, std::vector<JudgedElement>& elements) {
  const Records records(document.runs);
  std::unordered_map<std::int32_t, std::vector<Child>> children;
  for (auto place = document.elements.size(); place-- > 0;) {
    const auto& element = document.elements[place];
    auto& result = elements[place];
    const auto last = records.Of(element.id);
    std::vector<Child> below;
    if (element.group) {
      if (auto found = children.extract(element.id)) below = std::move(found.mapped());
      std::reverse(below.begin(), below.end());
    }
    auto reason = NotCurrent(element, last, document.equipment);
    if (!reason && element.group) reason = OlderThanChildren(last, below);
    if (reason) {
      result.reasons.push_back(std::move(*reason));
    } else {
      SetOrigin(last, result);
      if (element.group)
        JudgeGroup(element, last, below, result);
      else
        JudgeTest(element, last, result);
    }
    if (element.parent != 0) children[element.parent].push_back({&result, last});
  }
}

}  // namespace

JudgedDocument Judge(const Case& document) {
  JudgedDocument judged;
  DescribeRuns(document, judged);
  ListStandards(document, judged);
  judged.elements.reserve(document.elements.size());
  for (const auto& element : document.elements)
    judged.elements.push_back(Unjudged(element, document.selected));
  JudgeElements(document, judged.elements);
  judged.outcome = OutcomeOf(judged.elements);
  return judged;
}

}  // namespace host::judge
