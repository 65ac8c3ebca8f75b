#include "host/cli/output/RunText.h"

#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/bench/InputError.h"
#include "host/judge/ReasonText.h"
#include "host/judge/Verdict.h"
#include "host/report/DocumentText.h"
#include "host/report/RunOutcome.h"

namespace host::cli {

namespace {

using host::VisibleText;

std::string EquipmentText(const document::Equipment& equipment) {
  const auto text = report::EquipmentText(equipment);
  return text.empty() ? Tr("not recorded") : text;
}

std::string BoundsText(const document::RecordedLimit& limit) {
  if (!limit.low.empty() && !limit.high.empty())
    return Tr("%%1 to %%2", {limit.low, limit.high + " " + limit.unit});
  return limit.low.empty() ? Tr("at most %%1", {limit.high + " " + limit.unit})
                           : Tr("at least %%1", {limit.low + " " + limit.unit});
}

std::string Reading(const document::RecordedTest& test) {
  if (!test.recorded || test.recorded->value.empty()) return "-";
  if (test.recorded->flags.find('O') != std::string::npos) return "OL";
  return test.recorded->unit.empty() ? test.recorded->value
                                     : test.recorded->value + " " + VisibleText(test.recorded->unit);
}

std::string TestText(const report::TestThen& then) {
  const auto& test = *then.test;
  constexpr char kIndent[] = "      ";
  auto text =
      LeftPadded(std::to_string(test.element), 4) + "  " + LeftPadded(std::to_string(test.testId), 4) + "  " +
      Padded(Tr(judge::VerdictText(then.verdict)), 15) + Padded(Reading(test), 16) + VisibleText(test.at) +
      (test.by == document::RecordedTest::By::kOperator ? "  " + Tr("by the operator") : "") + "\n";
  for (const auto& line : test.said) text += kIndent + Tr("said: %%1", {VisibleText(line)}) + "\n";
  for (const auto& limit : test.judged)
    text += kIndent +
            Tr("judged: %%1, %%2: %%3",
               {VisibleText(limit.description.empty() ? limit.standard
                                                      : limit.standard + ", " + limit.description),
                VisibleText(BoundsText(limit)), report::LimitWord(report::VerdictThen(limit, test))}) +
            "\n";
  for (const auto& doubt : test.doubts)
    text += kIndent + Tr("doubt: %%1", {VisibleText(judge::ReasonText(doubt))}) + "\n";
  return text;
}

}  // namespace

std::string RunsText(const std::vector<document::RunRecord>& runs) {
  if (runs.empty()) return Tr("The document has not been run yet.") + "\n";
  std::vector<std::vector<std::string>> lines{{Tr("Run"), Tr("Begun"), Tr("End"), Tr("Finished"),
                                               Tr("Operator"), Tr("Tester"), Tr("Equipment"), Tr("Remark")}};
  for (const auto& run : runs) {
    const auto count = report::CountOf(run);
    std::vector<std::string> remarks;
    if (run.simulated) remarks.push_back(Tr("SIMULATED"));
    if (!run.intact) remarks.push_back(Tr("changed by another program"));
    if (run.gapAfter) remarks.push_back(Tr("a later run is missing"));
    lines.push_back({std::to_string(run.number), VisibleText(run.begun), report::EndWord(run),
                     Tr("%%1 of %%2", {std::to_string(count.finished), std::to_string(count.taken)}),
                     VisibleText(run.by), run.testers.empty() ? "-" : VisibleText(run.testers.back().serial),
                     EquipmentText(run.equipment), Joined(remarks, ", ")});
  }
  return Columned(lines, {0});
}

std::string RunText(const document::RunRecord& run, std::size_t count, const report::RunOutcomes& outcomes) {
  auto text = Tr("Run %%1 of %%2 as recorded; \"show\" without --run prints what counts now.",
                 {std::to_string(run.number), std::to_string(count)}) +
              "\n";
  if (run.simulated) text += Tr("SIMULATED: a simulated tester was used; nothing was measured.") + "\n";
  if (!run.intact) text += Tr("This record was changed by another program.") + "\n";
  if (run.gapAfter) text += Tr("A run that came after it was removed or changed by another program.") + "\n";
  text +=
      Tr("Begun %%1, ended %%2: %%3",
         {VisibleText(run.begun), run.ended.empty() ? "-" : VisibleText(run.ended), report::EndWord(run)}) +
      "\n";
  text += Tr("Equipment %%1", {EquipmentText(run.equipment)}) + "\n";
  if (!run.by.empty()) text += Tr("Operator %%1", {VisibleText(run.by)}) + "\n";
  for (const auto& tester : run.testers) text += report::TesterLine(tester) + "\n";
  for (const auto& test : outcomes.Of(run).tests) text += TestText(test);
  return text;
}

const document::RunRecord& FoundRun(const std::vector<document::RunRecord>& runs, std::int32_t number) {
  for (const auto& run : runs)
    if (run.number == number) return run;
  if (runs.empty())
    throw bench::InputError(Tr("--run %%1: the document has not been run yet", {std::to_string(number)}));
  throw bench::InputError(
      Tr("--run %%1: the document has runs 1 to %%2", {std::to_string(number), std::to_string(runs.size())}));
}

}  // namespace host::cli
