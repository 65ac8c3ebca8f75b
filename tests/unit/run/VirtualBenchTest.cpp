#include <gtest/gtest.h>

#include "OrvikTypeLib/IResultData.h"
#include "host/elements/ElementFactory.h"
#include "tests/support/RunParts.h"
#include "tests/support/VirtualBench.h"

namespace support {
namespace {

using Texts = std::vector<std::string>;

class VirtualBenchTest : public testing::Test {
 protected:
  VirtualBenchTest() { bench_.Host().Elements()->AddPlugIn(bench_.PlugIn()); }

  /// Performs test 410, alone in its document.
  std::shared_ptr<orvik::ITestElement> Perform() {
    const auto element = document_->AddTest(410);
    parts_.RunByProgram(bench_.Only().SharedApplication());
    return element;
  }

  VirtualBench bench_;
  const std::shared_ptr<host::document::Document> document_ =
      host::document::Document::Create(bench_.Only().SharedHost(), bench_.Only().Folder() / "run.orvik");
  RunParts parts_{bench_.Ports(), *document_};
};

TEST_F(VirtualBenchTest, RunsOneTestFromTheGuideToTheResult) {
  const auto element = Perform();
  EXPECT_EQ(bench_.Wire().Sent(), (Texts{"IREM", "STST,410,0", "GRES,410,0", "STST,210,0", "EREM"}));
  ASSERT_TRUE(element->Result());
  EXPECT_EQ(element->Result()->Status(), 1);
  EXPECT_FALSE(bench_.Tester().InRemoteMode());
  EXPECT_FALSE(bench_.Line().Line()->Connected());
  EXPECT_EQ(parts_.controller->Asked(), orvik::Navigation::kNext);
  EXPECT_TRUE(parts_.doubts.Of(1).empty());
}

TEST_F(VirtualBenchTest, TheTestersPausesAreKept) {
  Perform();
  std::vector<std::int64_t> sent;
  for (const auto& line : bench_.Wire().All()) {
    if (line.kind == host::serial::WireRecord::Kind::kSent) sent.push_back(line.time.count());
  }
  ASSERT_EQ(sent.size(), 5u);
  for (std::size_t i = 1; i < sent.size(); ++i) EXPECT_GE(sent[i] - sent[i - 1], 3'500'000) << i;
}

TEST_F(VirtualBenchTest, AScriptRepliesInsteadOfTheTester) {
  bench_.Line().AnswerBy([&](const std::string&) { bench_.Line().Reply("ERRM,1003"); });
  const auto element = Perform();
  EXPECT_EQ(bench_.Wire().Sent(), Texts{"IREM"});
  EXPECT_EQ(element->Result()->Status(), 0);
}

TEST_F(VirtualBenchTest, WithoutAPortNothingIsSent) {
  bench_.Unassign();
  Perform();
  EXPECT_TRUE(bench_.Wire().All().empty());
}

TEST_F(VirtualBenchTest, AnUnpluggedLineEndsTheRun) {
  bench_.Line().AnswerBy([&](const std::string& command) {
    if (command == "IREM")
      bench_.Line().Reply("irem,KELD(IN),1,1");
    else
      bench_.Line().Unplug();
  });
  const auto element = Perform();
  EXPECT_EQ(bench_.Wire().Count(host::serial::WireRecord::Kind::kFailed), 1u);
  EXPECT_EQ(element->Result()->Status(), 0);
}

}  // namespace
}  // namespace support
