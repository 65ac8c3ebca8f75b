#include "host/run/ResultWatch.h"

#include <string>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "host/run/ElementSummary.h"
#include "host/run/ElementWalk.h"
#include "host/services/Tr.h"

namespace bench {

namespace {

constexpr std::int32_t kStatusPassed = 1;
constexpr std::int32_t kStatusNotApplicable = 3;

std::int32_t StatusOf(const orvik::ITestElement& element) {
  const auto result = element.Result();
  return result ? result->Status() : 0;
}

bool IsGood(std::int32_t status) { return status == kStatusPassed || status == kStatusNotApplicable; }

}  // namespace

void ResultWatch::Finished(const std::shared_ptr<orvik::ITestElement>& element) {
  finishedAs_[element->ID()] = StatusOf(*element);
  CompareWithChildren(element);
}

void ResultWatch::Settle(const std::shared_ptr<orvik::ITestElement>& element) {
  std::vector<std::shared_ptr<orvik::ITestElement>> elements;
  WalkElements(element,
               [&](const std::shared_ptr<orvik::ITestElement>& below) { elements.push_back(below); });
  // Children before their parents, whose verdict depends on theirs.
  for (auto below = elements.rbegin(); below != elements.rend(); ++below) {
    CompareWithFinish(**below);
    CompareWithChildren(*below);
  }
  finishedAs_.clear();
}

void ResultWatch::CompareWithFinish(const orvik::ITestElement& element) {
  const auto finished = finishedAs_.find(element.ID());
  const auto status = StatusOf(element);
  if (finished == finishedAs_.end() || finished->second == status || !IsGood(status)) return;
  doubts_.Add(element.ID(),
              Tr("the result was \"%%1\" when the test had finished, and was changed to \"%%2\" afterwards",
                 {Tr(StatusText(finished->second)), Tr(StatusText(status))}));
}

void ResultWatch::CompareWithChildren(const std::shared_ptr<orvik::ITestElement>& element) {
  const auto container = orvik::As<orvik::ITestContainer>(element);
  if (!container || !IsGood(StatusOf(*element))) return;
  for (std::int32_t i = 1; i <= container->Count(); ++i) {
    const auto child = container->item(i);
    if (!Counts(*child))
      doubts_.Add(element->ID(),
                  Tr("element %%1 of it does not count: %%2",
                     {std::to_string(child->ID()),
                      IsGood(StatusOf(*child)) ? Tr("doubtful") : Tr(StatusText(StatusOf(*child)))}));
  }
}

bool ResultWatch::Counts(const orvik::ITestElement& element) const {
  return IsGood(StatusOf(element)) && doubts_.Of(element.ID()).empty();
}

}  // namespace bench
