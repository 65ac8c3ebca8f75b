#include <gtest/gtest.h>

#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "host/elements/ElementFactory.h"
#include "host/instruments/InstrumentColl.h"
#include "host/run/AutoOperator.h"
#include "host/run/DocumentRunner.h"
#include "host/run/ElementSummary.h"
#include "host/run/GuideToolbar.h"
#include "host/run/RunController.h"
#include "tests/support/VirtualBench.h"

namespace {

using bench::DocumentRunner;
using Elements = std::vector<std::shared_ptr<orvik::ITestElement>>;

class RunControllerTest : public testing::Test {
 protected:
  RunControllerTest() { bench_.Host().Elements()->AddPlugIn(bench_.PlugIn()); }

  std::shared_ptr<orvik::ITestElement> Element(std::int32_t testId, std::int32_t id) {
    auto element = bench_.CreateTest(testId);
    element->SetID(id);
    return element;
  }

  DocumentRunner::End Run(const Elements& elements) {
    bench::AutoOperator person(bench_.Only().SharedApplication(), stop_);
    return DocumentRunner(controller_, link_, stop_).Run(elements);
  }

  bench::ElementSummary Summary(const std::shared_ptr<orvik::ITestElement>& element) {
    return bench::Summarise({element}, *bench_.Host().Elements(), standards_).front();
  }

  /// Answers as the tester does, with this reading.
  void AnswerWith(const std::string& reading) {
    bench_.Line().AnswerBy([this, reading](const std::string& command) {
      if (command == "IREM") return bench_.Line().Reply("irem,KELD(IN),1,1");
      if (command == "EREM") return bench_.Line().Reply("erem");
      if (command.substr(0, 4) == "STST") return bench_.Line().Reply("stst" + command.substr(4));
      bench_.Line().Reply("gres" + command.substr(4) + "," + reading);
    });
  }

  support::VirtualBench bench_;
  bench::StopRequest stop_;
  bench::DoubtTracker doubts_{*bench_.Ports().TheWire()};
  bench::LinkWatch link_{bench_.Ports()};
  std::shared_ptr<orvik::IStandardColl> standards_ =
      orvik::As<orvik::IStandardColl>(bench_.Host().CreateObject(orvik::HostClasses::kStandardColl));
  std::function<void()> save_ = [] {};
  std::shared_ptr<bench::RunController> controller_ = std::make_shared<bench::RunController>(
      bench::RunController::Parts{standards_, std::make_shared<bench::InstrumentColl>(),
                                  *bench_.Host().Elements(), doubts_, [this] { save_(); }});
};

TEST_F(RunControllerTest, ADoubtfulResultStaysDoubtfulUntilItIsMeasuredAgain) {
  const auto element = Element(410, 1);
  AnswerWith("0.1,1,Ohm");
  Run({element});
  EXPECT_EQ(Summary(element).Verdict(), "doubtful");

  // The guide is opened and left without a run.
  stop_.Ask();
  {
    bench::AutoOperator person(bench_.Only().SharedApplication(), stop_);
    controller_->Open(*element);
    element->Perform(controller_);
  }
  EXPECT_EQ(Summary(element).Verdict(), "doubtful");

  AnswerWith("0.1,0,Ohm");
  bench::StopRequest none;
  bench::AutoOperator person(bench_.Only().SharedApplication(), none);
  DocumentRunner(controller_, link_, none).Run({element});
  EXPECT_EQ(Summary(element).Verdict(), "passed");
}

TEST_F(RunControllerTest, AReadingInAnotherUnitThanItsLimitsIsDoubtful) {
  const auto element = Element(610, 1);
  const auto standard = element->Limits()->CreateStandard("S", "");
  standard->Limit(1)->SetBounds("", "500");
  standards_->Add(standard);
  AnswerWith("0.9,0,mA");  // 900 times a thousandth of the limit's unit
  Run({element});
  EXPECT_EQ(Summary(element).status, 1);
  EXPECT_EQ(Summary(element).Verdict(), "doubtful");
}

TEST_F(RunControllerTest, ASequenceWithADoubtfulChildIsIncomplete) {
  const auto sequence = Element(400, 1);
  std::int32_t id = 2;
  const auto children = orvik::As<orvik::ITestContainer>(sequence)->NewEnum();
  while (const auto child = children->Next()) child->SetID(id++);
  AnswerWith("0.1,1,Ohm");
  Run({sequence});
  const auto summaries = bench::Summarise({sequence}, *bench_.Host().Elements(), standards_);
  EXPECT_EQ(summaries.at(0).status, 1);
  EXPECT_EQ(bench::OutcomeOf(summaries), bench::Outcome::kIncomplete);
}

TEST_F(RunControllerTest, TheDocumentIsSavedAfterEachElementOfASequence) {
  const auto sequence = Element(400, 1);
  int saved = 0;
  save_ = [&] { ++saved; };
  Run({sequence});
  EXPECT_EQ(saved, 4);  // two children, the sequence, and the end of the session
}

TEST_F(RunControllerTest, ADocumentThatCannotBeSavedEndsTheRun) {
  save_ = [] { throw orvik::HostError(orvik::HostError::kPathError, "test", "the disk is full"); };
  const auto first = Element(410, 1);
  const auto second = Element(420, 2);
  bench::AutoOperator person(bench_.Only().SharedApplication(), stop_);
  DocumentRunner runner(controller_, link_, stop_);
  EXPECT_EQ(runner.Run({first, second}), DocumentRunner::End::kNotSaved);
  EXPECT_EQ(runner.Reason(), "the disk is full");
  EXPECT_FALSE(second->Result());
}

TEST_F(RunControllerTest, AResultThatChangesWhileTheSessionIsClosedDoesNotCount) {
  // The tester's last word of the session makes the test "not applicable", passed or failed as it was.
  bench_.Line().AnswerBy([this](const std::string& command) {
    if (command == "IREM") return bench_.Line().Reply("irem,KELD(IN),1,1");
    if (command == "STST,210,0") return bench_.Line().Reply("ERRM,6002");
    if (command == "EREM") return bench_.Line().Reply("erem");
    if (command.starts_with("STST")) return bench_.Line().Reply("stst" + command.substr(4));
    bench_.Line().Reply("gres" + command.substr(4) + ",0.1,0,Ohm");
  });
  const auto element = Element(410, 1);
  Run({element});
  EXPECT_NE(Summary(element).Verdict(), "passed");
  EXPECT_NE(Summary(element).Verdict(), "not applicable");
}

TEST_F(RunControllerTest, ATestThatIsLackingOnlyWhenItsResultIsAskedForDoesNotCount) {
  bench_.Line().AnswerBy([this](const std::string& command) {
    if (command == "IREM") return bench_.Line().Reply("irem,KELD(IN),1,1");
    if (command.starts_with("GRES")) return bench_.Line().Reply("ERRM,+6002.0");
    if (command.starts_with("STST")) return bench_.Line().Reply("stst" + command.substr(4));
    bench_.Line().Reply("erem");
  });
  const auto element = Element(410, 1);
  Run({element});
  EXPECT_EQ(Summary(element).status, 3);
  EXPECT_EQ(Summary(element).Verdict(), "doubtful");
}

TEST_F(RunControllerTest, ASequenceDoesNotCountWhenATestOfItDoesNot) {
  for (const auto* reply : {"ERRM,77", "gres,410,0,0.1,1,Ohm"}) {
    const auto sequence = Element(400, 1);
    const auto children = orvik::As<orvik::ITestContainer>(sequence);
    for (std::int32_t i = 1; i <= children->Count(); ++i) children->item(i)->SetID(1 + i);
    ASSERT_EQ(children->Count(), 2);
    bench_.Line().AnswerBy([this, reply](const std::string& command) {
      if (command == "IREM") return bench_.Line().Reply("irem,KELD(IN),1,1");
      if (command == "GRES,410,0") return bench_.Line().Reply(reply);
      if (command == "EREM") return bench_.Line().Reply("erem");
      if (command.starts_with("STST")) return bench_.Line().Reply("stst" + command.substr(4));
      bench_.Line().Reply("gres" + command.substr(4) + ",0.1,0,Ohm");
    });
    Run({sequence});
    EXPECT_EQ(Summary(children->item(2)).Verdict(), "passed");
    EXPECT_NE(Summary(children->item(1)).Verdict(), "passed") << reply;
    EXPECT_EQ(Summary(sequence).status, 1) << "one test that passed makes a sequence pass";
    EXPECT_EQ(Summary(sequence).Verdict(), "doubtful") << reply;
  }
}

TEST_F(RunControllerTest, RefusesNavigationThatIsNotThere) {
  orvik::IRunController& controller = *controller_;
  EXPECT_THROW(controller.NavigationRequest(5), orvik::HostError);
  EXPECT_THROW(controller.NavigationRequest(-1), orvik::HostError);
  EXPECT_THROW(controller.StartQuery(nullptr), orvik::HostError);
  EXPECT_THROW(controller.FinishedNotice(nullptr), orvik::HostError);
}

// Presses these buttons, one for each guide that opens.
class Presser {
 public:
  Presser(support::VirtualBench& bench, std::vector<std::int32_t> buttons) : buttons_(std::move(buttons)) {
    shown_ = bench.Application().FormShown().Subscribe(
        [this, &bench](const std::shared_ptr<orvik::platform::IForm>& form) {
          if (form->Name() != bench::guide::kGuideForm || place_ >= buttons_.size()) return;
          bench.Application().Post([form, button = buttons_[place_++]] {
            if (button == bench::guide::kNext) bench::GuideToolbar(*form)->Click(bench::guide::kPlay);
            bench::GuideToolbar(*form)->Click(button);
          });
        });
  }
  std::size_t Guides() const { return place_; }

 private:
  std::vector<std::int32_t> buttons_;
  std::size_t place_ = 0;
  orvik::platform::Subscription shown_;
};

TEST_F(RunControllerTest, PreviousGoesBackAndStaysAtTheFirst) {
  using namespace bench::guide;
  const Presser person(bench_, {kPrevious, kNext, kPrevious, kNext, kNext});
  std::vector<std::size_t> places;
  DocumentRunner runner(controller_, link_, stop_);
  const auto reached = runner.Reached().Subscribe(
      [&](std::size_t place, std::size_t, const auto&) { places.push_back(place); });
  EXPECT_EQ(runner.Run({Element(410, 1), Element(420, 2)}), DocumentRunner::End::kFinished);
  EXPECT_EQ(places, (std::vector<std::size_t>{1, 1, 2, 1, 2}));
}

TEST_F(RunControllerTest, SkippedIsNotTestedAndNotApplicableIsDone) {
  using namespace bench::guide;
  const Presser person(bench_, {kSkip, kNotApplicable});
  const auto skipped = Element(410, 1);
  const auto notApplicable = Element(420, 2);
  EXPECT_EQ(DocumentRunner(controller_, link_, stop_).Run({skipped, notApplicable}),
            DocumentRunner::End::kFinished);
  EXPECT_EQ(Summary(skipped).Verdict(), "not tested");
  EXPECT_EQ(Summary(notApplicable).Verdict(), "not applicable");
  EXPECT_TRUE(bench_.Wire().Sent().empty());
}

TEST_F(RunControllerTest, AMuteTesterEndsTheRunAfterItsBoundedWaits) {
  bench_.Line().AnswerBy([](const std::string&) {});
  EXPECT_EQ(Run({Element(410, 1), Element(420, 2)}), DocumentRunner::End::kTesterLost);
  EXPECT_EQ(bench_.Wire().Sent(), (std::vector<std::string>{"IREM", "IREM", "IREM"}));
  EXPECT_EQ(bench_.Application().Now(), std::chrono::milliseconds(3 * (3500 + 2000)));
}

}  // namespace
