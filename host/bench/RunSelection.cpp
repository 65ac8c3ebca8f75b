#include "host/bench/RunSelection.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <unordered_set>

#include "OrvikTypeLib/IStandard.h"
#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/document/Document.h"
#include "host/document/ElementWalk.h"
#include "host/document/Host.h"
#include "host/report/DocumentView.h"

namespace host::bench {

namespace {

using Elements = std::vector<std::shared_ptr<orvik::ITestElement>>;

std::string NamesOf(const orvik::IStandardColl& standards) {
  std::string names;
  for (std::int32_t i = 1; i <= standards.Count(); ++i)
    names += (names.empty() ? "\"" : ", \"") + standards.item(i)->Name() + "\"";
  return names;
}

InputError NoSuchStandard(const std::string& name, const std::string& file, const std::string& known) {
  if (known.empty())
    return InputError(Tr("--standard \"%%1\": no limit of %%2 belongs to it; it names none", {name, file}));
  return InputError(
      Tr("--standard \"%%1\": no limit of %%2 belongs to it; it names %%3", {name, file, known}));
}

}  // namespace

Elements SelectedElements(const document::Document& document, const RunSelection& selection) {
  if (selection.elements.empty()) {
    auto all = report::TopElements(document);
    if (all.empty()) throw InputError(Tr("%%1: the document has no elements to run", {selection.file}));
    return all;
  }
  Elements selected;
  for (const auto id : selection.elements) {
    auto element = document.Find(id);
    if (!element)
      throw InputError(Tr("--element %%1: %%2 has no such element", {std::to_string(id), selection.file}));
    selected.push_back(std::move(element));
  }
  return selected;
}

Elements Unfinished(const Elements& elements, const document::Document& document,
                    const judge::JudgedDocument& judged) {
  const auto& runs = document.Runs().All();
  // An interrupted run says what it was about; everything else was not asked for.
  std::optional<std::unordered_set<std::int32_t>> taken;
  if (!runs.empty() && runs.back().end != document::RunRecord::End::kFinished) {
    const auto ids = runs.back().Elements();
    taken.emplace(ids.begin(), ids.end());
  }
  std::unordered_set<std::int32_t> settled;
  for (const auto& element : judged.elements)
    if (element.Current() && element.verdict != judge::Verdict::kDoubtful &&
        element.verdict != judge::Verdict::kNotTested && element.verdict != judge::Verdict::kAborted)
      settled.insert(element.id);
  const auto open = [&](const std::shared_ptr<orvik::ITestElement>& element) {
    return (!taken || taken->contains(element->ID())) && !settled.contains(element->ID());
  };
  Elements unfinished;
  for (const auto& top : elements) {
    bool any = false;
    document::WalkElements(
        top, [&](const std::shared_ptr<orvik::ITestElement>& element) { any = any || open(element); });
    if (any) unfinished.push_back(top);
  }
  return unfinished;
}

void SelectStandards(document::Document& document, document::Host& host, const RunSelection& selection) {
  const auto named = report::NamedStandards(document, host);
  const auto asked = [&](const std::string& name) {
    return selection.standards.empty() || std::find(selection.standards.begin(), selection.standards.end(),
                                                    name) != selection.standards.end();
  };
  const auto& selected = document.Standards();
  while (selected->Count() > 0) selected->Remove(selected->item(selected->Count()));
  std::vector<std::string> found;
  for (std::int32_t i = 1; i <= named->Count(); ++i) {
    const auto standard = named->item(i);
    if (!asked(standard->Name())) continue;
    selected->Add(standard);
    found.push_back(standard->Name());
  }
  for (const auto& name : selection.standards) {
    if (std::find(found.begin(), found.end(), name) == found.end())
      throw NoSuchStandard(name, selection.file, NamesOf(*named));
  }
}

void RequireStandards(const judge::JudgedDocument& judged, const std::vector<std::string>& names,
                      const std::string& file) {
  auto known = judged.standards;
  known.insert(known.end(), judged.leftOut.begin(), judged.leftOut.end());
  std::string all;
  for (const auto& name : known) all += (all.empty() ? "\"" : ", \"") + name + "\"";
  for (const auto& name : names)
    if (std::find(known.begin(), known.end(), name) == known.end()) throw NoSuchStandard(name, file, all);
}

std::string OperatorName(const std::string& given) {
  if (!given.empty()) return given;
  for (const auto* variable : {"USER", "LOGNAME"}) {
    const char* name = std::getenv(variable);
    if (name && *name) return name;
  }
  return {};
}

}  // namespace host::bench
