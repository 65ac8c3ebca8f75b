#include <gtest/gtest.h>

#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "host/instruments/InstrumentColl.h"
#include "host/run/AutoOperator.h"
#include "host/run/RunController.h"
#include "tests/support/VirtualBench.h"

namespace support {
namespace {

using Texts = std::vector<std::string>;

class VirtualBenchTest : public testing::Test {
 protected:
  void Perform(const std::shared_ptr<orvik::ITestElement>& element) {
    bench::AutoOperator person(bench_.Only().SharedApplication(), stop_);
    element->Perform(controller_);
  }

  VirtualBench bench_;
  bench::StopRequest stop_;
  bench::DoubtTracker doubts_{*bench_.Ports().TheWire()};
  std::shared_ptr<bench::RunController> controller_ =
      std::make_shared<bench::RunController>(bench::RunController::Parts{
          orvik::As<orvik::IStandardColl>(bench_.Host().CreateObject(orvik::HostClasses::kStandardColl)),
          std::make_shared<bench::InstrumentColl>(), *bench_.Host().Elements(), doubts_, [] {}});
};

TEST_F(VirtualBenchTest, RunsOneTestFromTheGuideToTheResult) {
  const auto element = bench_.CreateTest(410);
  element->SetID(1);
  Perform(element);
  EXPECT_EQ(bench_.Wire().Sent(), (Texts{"IREM", "STST,410,0", "GRES,410,0", "STST,210,0", "EREM"}));
  ASSERT_TRUE(element->Result());
  EXPECT_EQ(element->Result()->Status(), 1);
  EXPECT_FALSE(bench_.Tester().InRemoteMode());
  EXPECT_FALSE(bench_.Line().Line()->Connected());
  EXPECT_EQ(controller_->Asked(), bench::Navigation::kNext);
  EXPECT_TRUE(doubts_.Of(1).empty());
}

TEST_F(VirtualBenchTest, TheTestersPausesAreKept) {
  Perform(bench_.CreateTest(410));
  std::vector<std::int64_t> sent;
  for (const auto& line : bench_.Wire().All()) {
    if (line.kind == bench::WireRecord::Kind::kSent) sent.push_back(line.time.count());
  }
  ASSERT_EQ(sent.size(), 5u);
  for (std::size_t i = 1; i < sent.size(); ++i) EXPECT_GE(sent[i] - sent[i - 1], 3'500'000) << i;
}

TEST_F(VirtualBenchTest, AScriptAnswersInTheTestersPlace) {
  bench_.Line().AnswerBy([&](const std::string&) { bench_.Line().Reply("ERRM,1003"); });
  const auto element = bench_.CreateTest(410);
  Perform(element);
  EXPECT_EQ(bench_.Wire().Sent(), Texts{"IREM"});
  EXPECT_EQ(element->Result()->Status(), 0);
}

TEST_F(VirtualBenchTest, WithoutAPortNothingIsSent) {
  bench_.Unassign();
  const auto element = bench_.CreateTest(410);
  Perform(element);
  EXPECT_TRUE(bench_.Wire().All().empty());
}

TEST_F(VirtualBenchTest, AnUnpluggedLineEndsTheRun) {
  bench_.Line().AnswerBy([&](const std::string& command) {
    if (command == "IREM")
      bench_.Line().Reply("irem,KELD(IN),1,1");
    else
      bench_.Line().Unplug();
  });
  const auto element = bench_.CreateTest(410);
  Perform(element);
  EXPECT_EQ(bench_.Wire().Count(bench::WireRecord::Kind::kFailed), 1u);
  EXPECT_EQ(element->Result()->Status(), 0);
}

}  // namespace
}  // namespace support
