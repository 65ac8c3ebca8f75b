#include "host/app/run/RunSelection.h"

#include <algorithm>

#include "OrvikTypeLib/IStandard.h"
#include "host/Host.h"
#include "host/app/DocumentView.h"
#include "host/app/InputError.h"
#include "host/document/Document.h"
#include "host/services/Tr.h"

namespace bench {

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

Elements SelectedElements(const Document& document, const RunOptions& options) {
  if (options.elements.empty()) {
    auto all = TopElements(document);
    if (all.empty()) throw InputError(Tr("%%1: the document has no elements to run", {options.file}));
    return all;
  }
  Elements selected;
  for (const auto id : options.elements) {
    auto element = document.Find(id);
    if (!element)
      throw InputError(Tr("--element %%1: %%2 has no such element", {std::to_string(id), options.file}));
    selected.push_back(std::move(element));
  }
  return selected;
}

Elements WithoutResult(const Elements& elements, const Host& host,
                       const std::shared_ptr<orvik::IStandardColl>& standards) {
  Elements open;
  for (const auto& element : elements) {
    const auto summaries = Summarise({element}, *host.Elements(), standards);
    const bool done = std::all_of(summaries.begin(), summaries.end(), [](const ElementSummary& summary) {
      return summary.status != 0 && summary.Verdict() != "aborted" && summary.Verdict() != "doubtful";
    });
    if (!done) open.push_back(element);
  }
  return open;
}

void SelectStandards(Document& document, Host& host, const RunOptions& options) {
  const auto named = NamedStandards(document, host);
  const auto asked = [&](const std::string& name) {
    return options.standards.empty() ||
           std::find(options.standards.begin(), options.standards.end(), name) != options.standards.end();
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
  for (const auto& name : options.standards) {
    if (std::find(found.begin(), found.end(), name) == found.end())
      throw NoSuchStandard(name, options.file, NamesOf(*named));
  }
}

}  // namespace bench
