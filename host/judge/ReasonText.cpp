#include "host/judge/ReasonText.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include "host/base/Text.h"
#include "host/base/Tr.h"
#include "host/judge/Verdict.h"

namespace host::judge {
namespace {

using Entry = std::pair<std::string_view, const char*>;

// By code. %%1 to %%9 are the reason's arguments in order.
constexpr Entry kSentences[] = {
    // Seen on the wire while the element ran.
    {"late-reply", TrNoop("a reply was already waiting when \"%%1\" was sent: it was late, or sent twice")},
    {"invalid-line", TrNoop("an invalid line was received and discarded: \"%%1\"")},
    {"other-test-named", TrNoop("the reply \"%%1\" names another test or setting than the command \"%%2\"")},
    {"reading-fields", TrNoop("the reading \"%%1\" has %%2 fields instead of %%3")},
    {"not-a-number", TrNoop("the reading \"%%1\" is not a number")},
    {"negative-reading", TrNoop("the reading \"%%1\" is negative, which an upper limit would accept")},
    {"overload-mark", TrNoop("the overload mark \"%%1\" of the reading is neither 0 nor 1")},
    {"overload", TrNoop("overload (OL): the reading is beyond the tester's range")},
    {"unknown-unit", TrNoop("the reading's unit \"%%1\" is not a unit of this tester")},
    {"refused-now",
     TrNoop("the tester refused the test as not allowed now (1003), not because it lacks the test")},
    {"refused-elsewhere",
     TrNoop("the tester answered \"%%1\" with 6002, as if it lacked the test; only STST asks for one")},
    {"identity-incomplete", TrNoop("the tester's identity \"%%1\" is incomplete")},
    {"no-serial-number", TrNoop("the tester reported no serial number, so its test leads are not known")},
    {"other-tester", TrNoop("the tester is a %%1, not a %%2")},
    {"changed-after-finish",
     TrNoop("the result was \"%%1\" when the test had finished and was changed to \"%%2\" afterwards")},
    // By the judge's own arithmetic.
    {"several-readings", TrNoop("the tester sent two different readings: \"%%1\" and \"%%2\"")},
    {"no-reading", TrNoop("the record holds no reading of the tester")},
    {"unit-of-test", TrNoop("the reading is in \"%%1\", which this test cannot have; it is recorded in %%2")},
    {"below-leads",
     TrNoop(
         "the reading of %%1 mOhm is less than the %%2 mOhm of the test leads; calibrate the leads again")},
    {"leads-implausible",
     TrNoop("the test leads were stored as %%1 mOhm, which is not between 0 and 500 mOhm; "
            "calibrate the leads again")},
    {"arithmetic-differs", TrNoop("the tester replied %%1, but the plug-in recorded %%2")},
    {"judged-differently",
     TrNoop("%%1: the reading is %%2, but the plug-in compared the bare number %%3 with limits in %%4")},
    {"limit-unit", TrNoop("%%1: limits in \"%%2\" cannot be compared with a reading in \"%%3\"")},
    {"limit-key", TrNoop("%%1: the limit has the key \"%%2\"; the plug-in did not judge by it")},
    {"summary-differs",
     TrNoop("the readings of the group give %%1, but the plug-in recorded %%2; run the group again")},
    {"units-of-children", TrNoop("the group has readings in \"%%1\" and in \"%%2\"")},
    {"above-limit", TrNoop("%%1: %%2 exceeds the limit of %%3")},
    {"below-limit", TrNoop("%%1: %%2 is below the limit of %%3")},
    {"failed-by-plug-in",
     TrNoop("failed when it was run, by a limit that has been changed since or that this view leaves out")},
    {"no-children", TrNoop("the group has no tests left")},
    {"child", TrNoop("element %%1 of the group is %%2")},
    {"refused-with-limits",
     TrNoop("the tester refused the test although limits are selected for it; nothing was measured")},
    {"refused-by-tester", TrNoop("the tester does not have this test")},
    {"set-aside-by-operator", TrNoop("recorded as not applicable by the operator")},
    {"unknown-test", TrNoop("%%1")},
    {"service-code", TrNoop("the saved service code is \"%%1\", but the result is \"%%2\"")},
    {"record-changed",
     TrNoop("the record of run %%1 or of a later run was changed or removed by another program")},
    // Why a result is not current.
    {"never-run", TrNoop("not run yet")},
    {"not-recorded", TrNoop("the saved result was not recorded by a run")},
    {"not-finished", TrNoop("run %%1 started it and did not finish it")},
    {"other-test", TrNoop("run %%1 measured another test, %%2")},
    {"other-equipment", TrNoop("run %%1 measured other equipment: %%2 was \"%%3\" and is \"%%4\"")},
    {"other-settings", TrNoop("the settings that decide what is measured were changed after run %%1")},
    {"other-status",
     TrNoop("the saved result is not the one of run %%1: recorded as \"%%2\", saved as \"%%3\"")},
    {"other-reading", TrNoop("the saved reading is not the one that run %%1 recorded")},
    {"older-than-child", TrNoop("element %%1 of the group was run again in run %%2; run the group again")},
    {"skipped", TrNoop("skipped by the operator")},
    {"no-result", TrNoop("it ended without a result")},
    {"aborted", TrNoop("aborted by the operator")},
    // Why nothing was judged.
    {"no-limit", TrNoop("no limit: set one, or mark it as record only")},
    {"limits-left-out", TrNoop("its limits are of standards that this view leaves out")},
    {"group-without-value",
     TrNoop("the group's limits judge nothing: its value filter gives no value, or nothing was measured")},
};

/// The reason's arguments; those that are words of this program are translated.
std::vector<std::string> Translated(const document::Reason& reason) {
  static constexpr std::array<std::string_view, 4> kWithWords{"changed-after-finish", "child", "service-code",
                                                              "other-status"};
  auto values = reason.arguments;
  if (reason.code == "other-equipment" && values.size() > 1) {
    if (values[1] == "asset") values[1] = Tr("the asset number");
    if (values[1] == "serial") values[1] = Tr("the serial number");
    if (values[1] == "maker") values[1] = Tr("the maker");
    if (values[1] == "model") values[1] = Tr("the model");
  }
  // Recorded as the plug-in's status numbers.
  if (reason.code == "changed-after-finish")
    for (auto& value : values) value = StatusText(WholeNumber(value).value_or(-1));
  if (std::find(kWithWords.begin(), kWithWords.end(), reason.code) != kWithWords.end())
    for (auto& value : values) value = Tr(value);
  return values;
}

}  // namespace

std::string ReasonText(const document::Reason& reason) {
  for (const auto& [code, sentence] : kSentences)
    if (reason.code == code) return Tr(sentence, Translated(reason));
  auto text = reason.code;
  for (const auto& argument : reason.arguments) text += " \"" + argument + "\"";
  return text;
}

}  // namespace host::judge
