#include "host/report/DocumentText.h"

#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/judge/ReasonText.h"

namespace host::report {

using host::VisibleText;
using judge::JudgedElement;

std::string ReadingText(const JudgedElement& element) {
  // A result that is not current is not a reading of this equipment.
  if (!element.Current() || !element.measurement || !element.measurement->value) return "-";
  if (element.measurement->Overloaded()) return "OL";
  const auto number = ShortNumber(*element.measurement->value);
  return element.measurement->unit.empty() ? number : number + " " + VisibleText(element.measurement->unit);
}

std::vector<std::string> ReasonTexts(const JudgedElement& element) {
  std::vector<std::string> texts;
  for (const auto& reason : element.reasons) {
    const auto text = judge::ReasonText(reason);
    texts.push_back(element.verdict == judge::Verdict::kDoubtful ? Tr("doubt: %%1", {text}) : text);
  }
  if (element.verdict == judge::Verdict::kRecorded)
    texts.push_back(Tr("record only: not judged by any limit"));
  return texts;
}

std::string EquipmentText(const document::Equipment& equipment) {
  std::vector<std::string> parts;
  for (const auto* part : {&equipment.asset, &equipment.maker, &equipment.model, &equipment.serial})
    if (!part->empty()) parts.push_back(VisibleText(*part));
  return Joined(parts, ", ");
}

std::string TesterLine(const document::RecordedTester& tester) {
  const auto measured = tester.leadsMeasured.empty()
                            ? Tr("date not known")
                            : Tr("measured %%1", {VisibleText(tester.leadsMeasured)});
  return Tr("Tester %%1, serial number %%2, firmware %%3, test leads %%4 mOhm (%%5)",
            {VisibleText(tester.type), VisibleText(tester.serial), VisibleText(tester.firmware),
             std::to_string(tester.leads), measured});
}

}  // namespace host::report
