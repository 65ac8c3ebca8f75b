#include <gtest/gtest.h>

#include "host/elements/ElementFactory.h"
#include "host/judge/CaseOf.h"
#include "tester/FaultScript.h"
#include "tests/support/RunParts.h"
#include "tests/support/VirtualBench.h"

namespace {

using host::judge::JudgedElement;
using host::judge::Verdict;
using End = host::run::DocumentRunner::End;

struct Fault {
  std::string command;
  int nth;  ///< which command of that name
  std::string kind;
};

std::ostream& operator<<(std::ostream& out, const Fault& fault) {
  return out << "at " << fault.command << " " << fault.nth << " " << fault.kind;
}

/// One run of two elements, each with a limit of 300 mOhm, with a fault on the wire.
class WireFaultsTest : public testing::TestWithParam<Fault> {
 protected:
  WireFaultsTest() {
    bench_.Host().Elements()->AddPlugIn(bench_.PlugIn());
    for (const int id : {1, 2}) {
      document_->AddTest(410);
      support::SetLimit(*document_, bench_.Host(), id, "", "300");
    }
    parts_.save = [this] { ++saved_; };
  }

  End Run() { return parts_.RunByProgram(bench_.Only().SharedApplication()); }

  std::vector<JudgedElement> Judged() {
    return host::judge::Judge(*document_, *bench_.Host().Elements()).elements;
  }

  support::VirtualBench bench_;
  std::shared_ptr<host::document::Document> document_ =
      host::document::Document::Create(bench_.Only().SharedHost(), bench_.Only().Folder() / "run.orvik");
  support::RunParts parts_{bench_.Ports(), *document_};
  int saved_ = 0;
};

TEST_F(WireFaultsTest, WithoutAFaultBothPass) {
  EXPECT_EQ(Run(), End::kFinished);
  for (const auto& element : Judged()) EXPECT_EQ(element.verdict, Verdict::kPassed);
  EXPECT_EQ(saved_, 6) << "the beginning, each element as it finished and when it was left, the end";
}

TEST_P(WireFaultsTest, NeverPassesWithAnythingButTheTrueReading) {
  const auto& fault = GetParam();
  const auto rule = "at " + fault.command + " " + std::to_string(fault.nth) + " " + fault.kind + "\n";
  bench_.Tester().UseFaults(std::make_shared<sim::FaultScript>(rule, "fault"));
  Run();
  const auto elements = Judged();
  ASSERT_EQ(elements.size(), 2U);
  for (const auto& element : elements) {
    EXPECT_NE(element.verdict, Verdict::kFailed);
    if (element.verdict != Verdict::kPassed) {
      EXPECT_FALSE(element.reasons.empty());
      continue;
    }
    ASSERT_TRUE(element.measurement && element.measurement->value);
    EXPECT_DOUBLE_EQ(*element.measurement->value, 123.0);
    EXPECT_EQ(element.measurement->unit, "mOhm");
    ASSERT_TRUE(element.value);
    EXPECT_DOUBLE_EQ(*element.value, 123.0);
  }
  // A reply to GRES that is anything but the true one, whole and in time, spoils its element.
  const bool harmless = fault.kind == "drop" || fault.kind == "delay 100";
  if (fault.command == "GRES" && !harmless) {
    EXPECT_NE(elements[0].verdict, Verdict::kPassed);
  }
  EXPECT_FALSE(bench_.Line().Line()->Connected()) << "a port was left open";
}

std::vector<Fault> Faults() {
  std::vector<Fault> faults;
  const std::pair<const char*, int> commands[] = {
      {"IREM", 1}, {"STST", 1}, {"GRES", 1}, {"STST", 2}, {"EREM", 1}};
  for (const auto& [command, nth] : commands) {
    for (const char* kind :
         {"drop", "delay 100", "delay 2500", "delay 6000", "wrong-mnemonic", "error 1001", "error 1003",
          "error 6002", "hang-up", "double", "truncate 3", "truncate 8", "truncate 14", "garble",
          "reply gres,420,0,0.001,0,Ohm", "reply gres,410,0,0.001,1,Ohm", "reply gres,410,0,-0.5,0,Ohm"})
      faults.push_back({command, nth, kind});
  }
  return faults;
}

INSTANTIATE_TEST_SUITE_P(EveryFaultAtEveryCommand, WireFaultsTest, testing::ValuesIn(Faults()));

}  // namespace
