#include "host/app/report/ReportParts.h"

#include "OrvikTypeLib/HostError.h"
#include "host/app/TextColumns.h"
#include "host/elements/PrintAlone.h"
#include "host/report/ReportObject.h"
#include "host/report/VisibleText.h"
#include "host/services/Tr.h"

namespace bench::parts {

std::string MinuteText(const std::string& date) {
  const auto moment = MomentOf(date);
  return moment ? moment->day + " " + moment->minute : report::VisibleText(date);
}

std::string SpanText(const RunTimes& times) {
  if (times.first.empty()) return Tr("not recorded");
  const auto first = MomentOf(times.first), last = MomentOf(times.last);
  if (!first || !last || MinuteText(times.first) == MinuteText(times.last)) return MinuteText(times.first);
  // Clocks of two zones are told apart, or the last could read as before the first.
  if (first->zone != last->zone)
    return Tr("%%1 to %%2",
              {MinuteText(times.first) + " " + first->zone, MinuteText(times.last) + " " + last->zone});
  return Tr("%%1 to %%2",
            {MinuteText(times.first), first->day == last->day ? last->minute : MinuteText(times.last)});
}

bool Overloaded(const judge::JudgedElement& element) {
  return element.measurement && element.measurement->Overloaded();
}

std::string ValueText(const judge::JudgedElement& element) {
  if (!element.Current() || !element.measurement || !element.measurement->value) return {};
  return Overloaded(element) ? "OL" : ShortNumber(*element.measurement->value);
}

std::vector<report::Table> TablesOf(orvik::ITestElement& element, const std::string& name) {
  const auto printed = std::make_shared<ReportObject>();
  try {
    element.PrintReport(printed, std::make_shared<PrintAlone>());
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
  words.partial = Tr("Partial");
  words.nothing = Tr("The document has no tests.");
  words.labelled = Tr("%%1: %%2");
  words.caption = Tr("%%1: %%2 - %%3");
  return words;
}

}  // namespace bench::parts
