#include <gtest/gtest.h>

#include "OrvikTypeLib/IInstrumentColl.h"
#include "host/elements/ElementFactory.h"
#include "host/instruments/InstrumentColl.h"
#include "host/run/AutoOperator.h"
#include "host/run/DocumentRunner.h"
#include "host/run/ElementSummary.h"
#include "tester/FaultScript.h"
#include "tests/support/VirtualBench.h"

namespace {

using bench::DocumentRunner;

struct Fault {
  std::string command;
  int nth;  ///< which command of that name
  std::string kind;
};

std::ostream& operator<<(std::ostream& out, const Fault& fault) {
  return out << "at " << fault.command << " " << fault.nth << " " << fault.kind;
}

/// One run of two elements, with a fault on the wire.
class WireFaultsTest : public testing::TestWithParam<Fault> {
 protected:
  WireFaultsTest() {
    bench_.Host().Elements()->AddPlugIn(bench_.PlugIn());
    for (const int id : {1, 2}) {
      elements_.push_back(bench_.CreateTest(410));
      elements_.back()->SetID(id);
    }
  }

  DocumentRunner::End Run() {
    bench::AutoOperator person(bench_.Only().SharedApplication(), stop_);
    return DocumentRunner(controller_, link_, stop_).Run(elements_);
  }

  bench::ElementSummary Summary(std::size_t index) {
    return bench::Summarise({elements_[index]}, *bench_.Host().Elements(), standards_).front();
  }

  support::VirtualBench bench_;
  std::vector<std::shared_ptr<orvik::ITestElement>> elements_;
  bench::StopRequest stop_;
  bench::DoubtTracker doubts_{*bench_.Ports().TheWire()};
  bench::LinkWatch link_{bench_.Ports()};
  int saved_ = 0;
  std::shared_ptr<orvik::IStandardColl> standards_ =
      orvik::As<orvik::IStandardColl>(bench_.Host().CreateObject(orvik::HostClasses::kStandardColl));
  std::shared_ptr<bench::RunController> controller_ = std::make_shared<bench::RunController>(
      bench::RunController::Parts{standards_, std::make_shared<bench::InstrumentColl>(),
                                  *bench_.Host().Elements(), doubts_, [this] { ++saved_; }});
};

TEST_F(WireFaultsTest, WithoutAFaultBothPass) {
  EXPECT_EQ(Run(), DocumentRunner::End::kFinished);
  EXPECT_EQ(Summary(0).Verdict(), "passed");
  EXPECT_EQ(Summary(1).Verdict(), "passed");
  EXPECT_EQ(saved_, 4);
}

TEST_P(WireFaultsTest, NeverPassesWithAnythingButTheTrueReading) {
  const auto& fault = GetParam();
  const auto rule = "at " + fault.command + " " + std::to_string(fault.nth) + " " + fault.kind + "\n";
  bench_.Tester().UseFaults(std::make_shared<sim::FaultScript>(rule, "fault"));
  Run();
  for (const std::size_t index : {0U, 1U}) {
    const auto summary = Summary(index);
    if (summary.Verdict() != "passed") continue;
    ASSERT_TRUE(summary.measurement && summary.measurement->value);
    EXPECT_DOUBLE_EQ(*summary.measurement->value, 123.0);
    EXPECT_EQ(summary.measurement->unit, "mOhm");
  }
  // A reply to GRES that is anything but the true one, whole and in time, spoils its element.
  const bool harmless = fault.kind == "drop" || fault.kind == "delay 100";
  if (fault.command == "GRES" && !harmless) {
    EXPECT_NE(Summary(0).Verdict(), "passed");
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
