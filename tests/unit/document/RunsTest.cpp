#include "host/document/Document.h"
#include "host/document/Runs.h"
#include "tests/support/HostFixture.h"
#include "tests/unit/document/RunSamples.h"

// The record of runs as a document saves and reads it.
namespace host::samples {
namespace {

TEST(Runs, SavesNothingWhileThereAreNone) {
  EXPECT_EQ(TextOf(document::Runs()), "");
  EXPECT_TRUE(document::Runs().Empty());
  EXPECT_EQ(document::Runs().HighestElement(), 0);
}

TEST(Runs, ReadsBackAllThatIsRecorded) {
  const auto runs = Loaded(ThreeRuns());
  ASSERT_EQ(runs.All().size(), 3U);
  const auto& run = runs.All()[1];
  const auto wanted = MakeRun("Bob");
  EXPECT_EQ(run.number, 2);
  EXPECT_EQ(run.begun, wanted.begun);
  EXPECT_EQ(run.ended, wanted.ended);
  EXPECT_EQ(run.end, wanted.end);
  EXPECT_EQ(run.by, "Bob");
  EXPECT_TRUE(run.simulated);
  EXPECT_EQ(run.timeScale, 2.5);
  EXPECT_EQ(run.port, wanted.port);
  EXPECT_EQ(run.program, wanted.program);
  EXPECT_EQ(run.equipment, wanted.equipment);
  EXPECT_EQ(run.testers, wanted.testers);
  EXPECT_TRUE(run.intact);
  EXPECT_EQ(run.Elements(), (std::vector<std::int32_t>{2, 1, 7}));
  ASSERT_EQ(run.steps.size(), wanted.steps.size());
  EXPECT_EQ(std::get<document::RecordedTakes>(run.steps[0]).elements, (std::vector<std::int32_t>{2, 1, 7}));
  EXPECT_EQ(std::get<document::RecordedTakes>(run.steps[3]).elements, std::vector<std::int32_t>{2});
  const auto& test = std::get<document::RecordedTest>(run.steps[4]);
  const auto& expected = std::get<document::RecordedTest>(wanted.steps[4]);
  EXPECT_EQ(test.element, 2);
  EXPECT_EQ(test.testId, 410);
  EXPECT_EQ(test.settings, 4);
  EXPECT_EQ(test.at, expected.at);
  EXPECT_EQ(test.status, 2);
  EXPECT_EQ(test.by, document::RecordedTest::By::kTester);
  EXPECT_EQ(test.tester, 2);
  EXPECT_EQ(test.said, expected.said);
  EXPECT_EQ(test.recorded, expected.recorded);
  EXPECT_EQ(test.judged, expected.judged);
  EXPECT_EQ(test.doubts, expected.doubts);
  const auto& aside = std::get<document::RecordedTest>(run.steps[2]);
  EXPECT_EQ(aside.by, document::RecordedTest::By::kOperator);
  EXPECT_EQ(aside.tester, 0);
  EXPECT_FALSE(aside.recorded);
}

TEST(Runs, ReadsBackEveryEndAndEveryText) {
  for (const auto end : {document::RunRecord::End::kNone, document::RunRecord::End::kFinished,
                         document::RunRecord::End::kStopped, document::RunRecord::End::kAborted,
                         document::RunRecord::End::kLost}) {
    auto run = MakeRun(kNasty);
    run.end = end;
    run.port = run.equipment.asset = kNasty;
    auto& test = std::get<document::RecordedTest>(run.steps[1]);
    test.said = {kNasty, "", "]]>"};
    test.doubts = {{"late-reply", {kNasty, ""}}};
    test.judged[0].standard = kNasty;
    document::Runs runs;
    Add(runs, run);
    Add(runs, MakeRun("Bob"));
    const auto again = Loaded(TextOf(runs));
    ASSERT_EQ(again.All().size(), 2U);
    const auto& read = again.All()[0];
    EXPECT_TRUE(read.intact);
    EXPECT_TRUE(again.All()[1].intact);
    EXPECT_EQ(read.end, end);
    EXPECT_EQ(read.ended, end == document::RunRecord::End::kNone ? "" : run.ended);
    EXPECT_EQ(read.by, kNasty);
    EXPECT_EQ(read.equipment.asset, kNasty);
    const auto& readTest = std::get<document::RecordedTest>(read.steps[1]);
    EXPECT_EQ(readTest.said, test.said);
    EXPECT_EQ(readTest.doubts, test.doubts);
    EXPECT_EQ(readTest.judged, test.judged);
    EXPECT_EQ(TextOf(again), TextOf(runs)) << "the same bytes";
  }
}

TEST(Runs, KeepsEarlierRunsDuringARun) {
  auto runs = Loaded(ThreeRuns());
  EXPECT_FALSE(runs.Current());
  auto& open = runs.Open(document::RunRecord{});
  EXPECT_EQ(open.number, 4);
  for (int saves = 0; saves < 3; ++saves) {
    runs.Current()->steps.emplace_back(document::RecordedTakes{{saves + 10}});
    EXPECT_EQ(StatesIn(TextOf(runs)), AllIntact(4));
    EXPECT_EQ(Loaded(TextOf(runs)).All().back().steps.size(), static_cast<std::size_t>(saves) + 1);
  }
  const auto body = [](const std::string& text) {
    const auto begin = text.find("<Run ");
    return text.substr(begin, text.rfind("</Runs>") - begin);
  };
  EXPECT_EQ(body(TextOf(runs)).find(body(ThreeRuns())), 0U);
  // A run that nobody closed ends where the next one begins.
  runs.Open(MakeRun("Dan"));
  EXPECT_EQ(runs.Current()->number, 5);
  runs.Close();
  EXPECT_FALSE(runs.Current());
  runs.Close();
  EXPECT_EQ(StatesIn(TextOf(runs)), AllIntact(5));
}

TEST(Runs, ContinuesAfterAKilledRun) {
  document::Runs killed;
  Add(killed, MakeRun("Ann"));
  killed.Open(MakeRun("Bob")).end = document::RunRecord::End::kNone;
  auto runs = Loaded(TextOf(killed));
  EXPECT_FALSE(runs.Current()) << "nobody goes on with it";
  Add(runs, MakeRun("Cleo"));
  const auto again = Loaded(TextOf(runs));
  ASSERT_EQ(again.All().size(), 3U);
  EXPECT_EQ(again.All()[1].end, document::RunRecord::End::kNone);
  EXPECT_EQ(StatesIn(TextOf(runs)), AllIntact(3));
}

TEST(Runs, FindsTheHighestIdentifierOfARun) {
  const std::string head = "<Runs><Run Number='1' Simulated='0' TimeScale='1'>";
  const std::string test = "<Test Element='9' TestID='1' Settings='0' Status='0' By='tester'/>";
  EXPECT_EQ(Loaded(head + "<Takes Elements='1 7 2'/></Run></Runs>").HighestElement(), 7);
  EXPECT_EQ(Loaded(head + "<Takes Elements='1 7'/>" + test + "</Run></Runs>").HighestElement(), 9);
}

class DocumentRuns : public support::HostFixture {};

TEST_F(DocumentRuns, AreTheSameBytesWhenSavedAgain) {
  const auto document = document::Document::Create(host_, folder_.Path() / "a.orvik");
  document->AddTest(110);
  Add(document->Runs(), MakeRun("Ann"));
  document->Runs().Open(MakeRun(kNasty));
  document->Save();
  const auto text = folder_.Read("a.orvik");
  const auto again =
      document::Document::Open(host_, folder_.Path() / "a.orvik", document::DocumentFile::Use::kRead);
  EXPECT_EQ(again->Text(), text);
  for (const auto& run : again->Runs().All()) EXPECT_TRUE(run.intact) << run.number;
}

TEST_F(DocumentRuns, AreTheSameInAFileReadAsAWhole) {
  const auto document = document::Document::Create(host_, folder_.Path() / "a.orvik");
  document->AddTest(110);
  Add(document->Runs(), MakeRun("Ann"));
  // Its elements cannot be cut out of the text, so it is read as one tree.
  auto text = document->Text();
  text.insert(text.find("<TestElement"), "<![CDATA[ ]]>");
  folder_.Write("b.orvik", text);
  const auto whole =
      document::Document::Open(host_, folder_.Path() / "b.orvik", document::DocumentFile::Use::kRead);
  ASSERT_EQ(whole->Runs().All().size(), 1U);
  EXPECT_TRUE(whole->Runs().All()[0].intact);
}

}  // namespace
}  // namespace host::samples
