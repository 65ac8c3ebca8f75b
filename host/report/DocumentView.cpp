#include "host/report/DocumentView.h"

#include <unordered_set>
#include <utility>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "host/document/ElementWalk.h"
#include "host/document/Host.h"
#include "host/judge/CaseOf.h"

namespace host::report {

namespace {

std::optional<document::RecordedTester> LastTester(const std::vector<document::RunRecord>& runs) {
  for (auto run = runs.rbegin(); run != runs.rend(); ++run)
    if (!run->testers.empty()) return run->testers.back();
  return std::nullopt;
}

}  // namespace

std::vector<std::shared_ptr<orvik::ITestElement>> TopElements(const document::Document& document) {
  std::vector<std::shared_ptr<orvik::ITestElement>> elements;
  const auto walk = document.Elements()->NewEnum();
  while (auto element = walk->Next()) elements.push_back(std::move(element));
  return elements;
}

std::shared_ptr<orvik::IStandardColl> NamedStandards(const document::Document& document,
                                                     document::Host& host) {
  auto named = orvik::As<orvik::IStandardColl>(host.CreateObject(orvik::HostClasses::kStandardColl));
  const auto take = [&](const orvik::IStandard& standard) {
    if (named->Find(standard.Name(), standard.Description())) return;
    const auto copy = orvik::As<orvik::IStandard>(host.CreateObject(orvik::HostClasses::kStandard));
    copy->Initialize(standard.Name(), standard.Description(), standard.Number());
    named->Add(copy);
  };
  for (const auto& top : TopElements(document)) {
    document::WalkElements(top, [&](const std::shared_ptr<orvik::ITestElement>& element) {
      const auto limits = element->Limits();
      const auto standards = limits ? limits->Standards() : nullptr;
      for (std::int32_t i = 1; standards && i <= standards->Count(); ++i) take(*standards->item(i));
    });
  }
  return named;
}

DocumentView ViewOf(const document::Document& document, const document::Host& host,
                    std::vector<std::string> standards) {
  DocumentView view;
  view.path = document.Path().string();
  view.equipment = document.equipment;
  view.comment = document.comment;
  view.instrument = LastTester(document.Runs().All());
  view.judged = judge::Judge(document, *host.Elements(), std::move(standards));
  return view;
}

judge::JudgedDocument JudgedPart(const judge::JudgedDocument& judged,
                                 const std::vector<std::shared_ptr<orvik::ITestElement>>& elements) {
  std::unordered_set<std::int32_t> wanted;
  for (const auto& top : elements)
    document::WalkElements(
        top, [&](const std::shared_ptr<orvik::ITestElement>& element) { wanted.insert(element->ID()); });
  auto part = judged;
  std::erase_if(part.elements,
                [&](const judge::JudgedElement& element) { return !wanted.contains(element.id); });
  part.outcome = judge::OutcomeOf(part.elements);
  return part;
}

}  // namespace host::report
