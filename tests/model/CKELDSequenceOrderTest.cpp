#include "host/serial/PortManager.h"
#include "platform/IForm.h"
#include "platform/IListView.h"
#include "tests/model/ModelTest.h"
#include "ui/FTestGuide.h"

// What a sequence has done, and what not yet, at the moment in which somebody looks; and a second run.
namespace keld {

class CKELDSequenceOrderTest : public support::ModelTest {
 protected:
  CKELDSequenceOrderTest() { AnswerResult("5,0,V"); }

  std::vector<std::int32_t> ChildStatus() const {
    std::vector<std::int32_t> found;
    for (std::int32_t i = 1; i <= Container(sequence)->Count(); ++i)
      found.push_back(Status(Container(sequence)->item(i)));
    return found;
  }
  /// The guide at a notice: "finished visible", "navigate hidden".
  std::string Seen(const std::string& what) const {
    return what.substr(0, what.find(' ')) + (person.Guide()->Visible() ? " visible" : " hidden");
  }
  /// Acts while the second child is being measured.
  void PerformWith(int command) {
    const auto call = bench.Application().CallAt(bench.Application().Now() + std::chrono::seconds(13),
                                                 [&] { person.Press(command); });
    Perform(sequence);
    bench.Application().Forget(call);
  }
  using Codes = std::vector<std::int32_t>;

  const Element sequence = MakeSequence({MakeTest(411, 1), MakeTest(412, 2), MakeTest(413, 3)});
};

TEST_F(CKELDSequenceOrderTest, ChildrenAndSummaryAreShownBeforeTheHostHearsOfTheEnd) {
  int rows = -1;
  controller->onTold = [&](const std::string& what) {
    if (what != "finished 100") return;
    const auto view = orvik::As<orvik::platform::IContainerSite>(person.Guide()->Find("xrvResultView"));
    rows = orvik::As<orvik::platform::IListView>(view->Panel()->Find("lvwResults"))->RowCount();
  };
  Perform(sequence);
  EXPECT_EQ(rows, 4);
}

TEST_F(CKELDSequenceOrderTest, ASummaryWithoutAValueIsAMeasurementToo) {
  Configuration(sequence).SetValueFilter(1);
  Perform(sequence);
  ASSERT_TRUE(sequence->Result());
  EXPECT_EQ(sequence->Result()->MeasurementCount(), 1);
  ASSERT_TRUE(sequence->Result()->Measurement(1));
  EXPECT_EQ(sequence->Result()->Measurement(1)->Status(), 1);
  EXPECT_EQ(sequence->Result()->Measurement(1)->value(), orvik::Variant(std::string()));
}

TEST_F(CKELDSequenceOrderTest, ChildrenComeFirstThenTheNoticeThenTheGuideGoesThenTheRequest) {
  for (const auto& [command, status] :
       {std::pair{support::GuideOperator::kSkip, -1}, {support::GuideOperator::kNotApplicable, 3}}) {
    person.guide = {support::GuideOperator::kPlay};
    Perform(sequence);
    ASSERT_EQ(ChildStatus(), (Codes{1, 1, 1}));
    Texts seen;
    Codes states;
    controller->onTold = [&](const std::string& what) {
      if (!person.Guide()) return;
      seen.push_back(Seen(what));
      if (what == "finished 100") {
        states = ChildStatus();
        states.push_back(Status(sequence));
      }
    };
    person.guide = {command};
    Perform(sequence);
    EXPECT_EQ(seen, (Texts{"finished visible", "navigate hidden"})) << command;
    EXPECT_EQ(states, (Codes(4, status))) << command;
    controller->onTold = nullptr;
  }
}

TEST_F(CKELDSequenceOrderTest, AnAbortAndTheOtherWaysOutHideTheGuideBeforeTheRequest) {
  using support::GuideOperator;
  for (const int command : {GuideOperator::kAbort, GuideOperator::kNext, GuideOperator::kPrevious}) {
    Texts seen;
    controller->onTold = [&](const std::string& what) {
      if (person.Guide()) seen.push_back(Seen(what));
    };
    person.guide = {command};
    Perform(sequence);
    EXPECT_EQ(seen, Texts{"navigate hidden"}) << command;
  }
}

TEST_F(CKELDSequenceOrderTest, AnAbortEndsTheSessionBeforeItRecords) {
  const auto link = CKELDInstrument::Create();
  Test(sequence)->InitAutoRun(link, nullptr, controller);
  Test(sequence)->RunTest();
  ASSERT_EQ(Status(sequence), 1);
  std::int32_t status = -1;
  const auto listening = bench.Ports().TheWire()->Subscribe([&](const bench::WireRecord& record) {
    if (record.kind == bench::WireRecord::Kind::kClosed) status = Status(sequence);
  });
  Test(sequence)->AbortTest();
  EXPECT_EQ(bench.Wire().Sent().back(), "EREM");
  EXPECT_EQ(status, 1) << "the status while the port was being closed";
  EXPECT_EQ(Status(sequence), 0);
}

// --- another run ---

TEST_F(CKELDSequenceOrderTest, ARunAfterAStopOrAnAbortIsWhole) {
  for (const int command : {support::GuideOperator::kStop, support::GuideOperator::kAbort}) {
    PerformWith(command);
    ASSERT_EQ(Status(sequence), 0) << command;
    Perform(sequence);
    EXPECT_EQ(ChildStatus(), (Codes{1, 1, 1})) << command;
    EXPECT_EQ(Status(sequence), 1) << command;
  }
}

TEST_F(CKELDSequenceOrderTest, AStopWhileTheHostIsAskedCounts) {
  int asked = 0;
  controller->mayStart = [&](const auto& iteElement) {
    // First for the guide, then for the run.
    if (iteElement == sequence && ++asked == 2) Test(sequence)->StopTest();
    return true;
  };
  Perform(sequence);
  EXPECT_EQ(controller->Count("start 412"), 0u);
  EXPECT_EQ(Status(sequence), 0);
  EXPECT_EQ(Value(sequence), "none");
}

}  // namespace keld
