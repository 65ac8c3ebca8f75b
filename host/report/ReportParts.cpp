#include "host/report/ReportParts.h"

#include "OrvikTypeLib/HostError.h"
#include "host/base/Text.h"
#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/elements/PrintAlone.h"
#include "host/report/ReportObject.h"

namespace host::report::parts {

bool Overloaded(const judge::JudgedElement& element) {
  return element.measurement && element.measurement->Overloaded();
}

std::string ValueText(const judge::JudgedElement& element) {
  if (!element.Current() || !element.measurement || !element.measurement->value) return {};
  return Overloaded(element) ? "OL" : ShortNumber(*element.measurement->value);
}

std::string ValueText(const document::RecordedTest& test) {
  if (!test.recorded || test.recorded->value.empty()) return {};
  if (test.recorded->flags.find('O') != std::string::npos) return "OL";
  const auto number = FiniteNumber(test.recorded->value);
  return number ? ShortNumber(*number) : host::VisibleText(test.recorded->value);
}

std::vector<report::Table> TablesOf(orvik::ITestElement& element, const std::string& name) {
  const auto printed = std::make_shared<ReportObject>();
  try {
    element.PrintReport(printed, std::make_shared<elements::PrintAlone>());
  } catch (const orvik::HostError& error) {
    throw orvik::HostError(
        error.Number(), error.Source(),
        Tr("element %%1 cannot be printed: %%2", {std::to_string(element.ID()), error.Description()}));
  }
  std::vector<report::Table> tables;
  for (const auto& table : printed->Tables()) {
    auto shown = report::Shown(table);
    // An element begins with its name, which is the heading here.
    const bool title = tables.empty() && shown.header.empty() && shown.rows.size() == 1 &&
                       shown.columns.size() == 1 && report::PlainText(shown.rows[0][0]) == name;
    if (!title && !shown.columns.empty()) tables.push_back(std::move(shown));
  }
  return tables;
}

report::Words WordsOfReport() {
  report::Words words;
  words.summary = Tr("Summary");
  words.overview = Tr("Overview");
  words.details = Tr("Tests in detail");
  words.number = Tr("No.");
  words.test = Tr("Test");
  words.value = Tr("Value");
  words.unit = Tr("Unit");
  words.result = Tr("Result");
  words.limits = Tr("Limits");
  words.standard = Tr("Standard");
  words.bounds = Tr("Limit");
  words.judgement = Tr("Judgement");
  words.bar = Tr("Value between its bounds");
  words.record = Tr("Record");
  words.runs = Tr("Runs");
  words.readings = Tr("Readings by run");
  words.nothing = Tr("The document has no tests.");
  words.labelled = Tr("%%1: %%2");
  words.caption = Tr("%%1: %%2 - %%3");
  return words;
}

}  // namespace host::report::parts
