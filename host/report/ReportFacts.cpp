#include <algorithm>

#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/report/DocumentText.h"
#include "host/report/ReportParts.h"

namespace host::report::parts {

using host::VisibleText;

std::string MinuteText(const std::string& date) {
  const auto moment = MomentOf(date);
  return moment ? moment->day + " " + moment->minute : VisibleText(date);
}

std::string SpanText(const RunTimes& times) {
  if (times.first.empty()) return Tr("not recorded");
  const auto first = MomentOf(times.first), last = MomentOf(times.last);
  if (!first || !last || MinuteText(times.first) == MinuteText(times.last)) return MinuteText(times.first);
  // In two time zones, or the last could read as before the first.
  if (first->zone != last->zone)
    return Tr("%%1 to %%2",
              {MinuteText(times.first) + " " + first->zone, MinuteText(times.last) + " " + last->zone});
  return Tr("%%1 to %%2",
            {MinuteText(times.first), first->day == last->day ? last->minute : MinuteText(times.last)});
}

std::string OperatorsText(const RunTimes& times) {
  return times.operators.empty() ? Tr("not recorded") : Joined(times.operators, ", ");
}

std::string TesterText(const document::RecordedTester& tester) {
  return Tr("%%1, serial number %%2, firmware %%3",
            {VisibleText(tester.type), VisibleText(tester.serial), VisibleText(tester.firmware)});
}

std::string TestersText(const std::vector<document::RecordedTester>& testers) {
  if (testers.empty()) return Tr("not recorded");
  if (testers.size() == 1) return TesterText(testers.front());
  std::vector<std::string> names;
  for (const auto& tester : testers) {
    auto name = VisibleText(tester.type + " " + tester.serial);
    // One tester is there twice when its test leads were measured again.
    if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(std::move(name));
  }
  return Joined(names, "; ");
}

void AddFact(std::vector<report::Fact>& facts, const std::string& label, const std::string& value) {
  if (!value.empty()) facts.push_back({label, value});
}

void AddEquipment(std::vector<report::Fact>& facts, const document::Equipment& equipment) {
  AddFact(facts, Tr("Asset number"), VisibleText(equipment.asset));
  AddFact(facts, Tr("Serial number"), VisibleText(equipment.serial));
  AddFact(facts, Tr("Maker"), VisibleText(equipment.maker));
  AddFact(facts, Tr("Model"), VisibleText(equipment.model));
}

void AddTesters(std::vector<report::Fact>& facts, const std::vector<document::RecordedTester>& testers) {
  if (testers.empty()) AddFact(facts, Tr("Tester"), Tr("not recorded"));
  for (std::size_t i = 0; i < testers.size(); ++i) {
    const auto& tester = testers[i];
    AddFact(facts, testers.size() == 1 ? Tr("Tester") : Tr("Tester %%1", {std::to_string(i + 1)}),
            TesterText(tester));
    const auto measured = tester.leadsMeasured.empty()
                              ? Tr("date not known")
                              : Tr("measured %%1", {MinuteText(tester.leadsMeasured)});
    AddFact(facts, Tr("Its test leads"), Tr("%%1 mOhm, %%2", {std::to_string(tester.leads), measured}));
  }
}

std::vector<report::Fact> PageHeader(const document::Equipment& equipment, const std::string& otherwise,
                                     const std::vector<document::RecordedTester>& testers,
                                     const RunTimes& times) {
  const auto names = EquipmentText(equipment);
  return {{Tr("Equipment"), names.empty() ? VisibleText(otherwise) : names},
          {Tr("Tester"), TestersText(testers)},
          {Tr("Tested"), SpanText(times)},
          {Tr("Operator"), OperatorsText(times)}};
}

report::PageMark SimulatedMark() {
  return {Tr("SIMULATED"), Tr("SIMULATED: a simulated tester was used; nothing was measured."), true};
}

std::string TitleOf(bool simulated) {
  return simulated ? Tr("SIMULATED electrical safety test") : Tr("Electrical safety test");
}

std::string LanguageTag(const std::string& language) {
  auto tag = language.empty() ? "en" : VisibleText(language);
  std::replace(tag.begin(), tag.end(), '_', '-');
  return tag;
}

}  // namespace host::report::parts
