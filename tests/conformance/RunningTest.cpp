#include <algorithm>

#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IServiceRecord.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITgToolbar.h"
#include "host/instruments/InstrumentColl.h"
#include "tests/conformance/Asked.h"
#include "tests/conformance/RunRecord.h"
#include "tests/conformance/Windows.h"

namespace conformance {
namespace {

namespace platform = orvik::platform;
using Texts = std::vector<std::string>;
using Numbers = std::vector<std::int32_t>;

enum Button {
  kAbort = 101,
  kPrevious = 102,
  kNext = 103,
  kStop = 201,
  kPlay = 202,
  kNotApplicable = 301,
  kSkip = 302
};

/// One element performed under a controller, with an operator who acts on every window that is shown.
class Running : public KeldPlugInLoaded {
 protected:
  Running() {
    controller_->instruments = std::make_shared<bench::InstrumentColl>();
    controller_->standards = library_.New<orvik::IStandardColl>(orvik::HostClasses::kStandardColl);
    shown_ = library_.Application().FormShown().Subscribe(
        [this](const auto& form) { library_.Application().Post([this, form] { Operate(*form); }); });
  }

  /// What the operator presses in the guide, one after the other.
  void Press(std::vector<int> buttons) { buttons_ = std::move(buttons); }

  void Perform(const std::shared_ptr<orvik::ITestElement>& element) {
    EXPECT_NO_THROW(element->Perform(controller_));
    EXPECT_TRUE(library_.Application().Forms().empty()) << "a window is left open";
    EXPECT_EQ(library_.Line().Line()->Connected(), false) << "the port is left open";
  }

  void Operate(platform::IForm& form) {
    if (!form.Visible()) return;
    if (form.Name() == "FTestGuide") {
      for (const int button : buttons_) Toolbar(form)->Click(button);
      if (form.Visible()) form.Hide();
    } else {
      prompts_.push_back(form.Find("lblPrompt")->Caption());
      EXPECT_TRUE(Click(form, "cmdOK") || Click(form, yes_ ? "cmdAccept" : "cmdDecline")) << form.Name();
    }
  }

  std::shared_ptr<orvik::ITgToolbar> Toolbar(const platform::IForm& form) {
    return FindObject<orvik::ITgToolbar>(form, "xtbToolbar");
  }
  std::shared_ptr<platform::IForm> Guide() {
    for (const auto& form : library_.Application().Forms()) {
      if (form->Name() == "FTestGuide") return form;
    }
    return nullptr;
  }

  std::shared_ptr<RunRecord> controller_ = std::make_shared<RunRecord>();
  std::vector<int> buttons_{kPlay, kNext};
  bool yes_ = true;
  Texts prompts_;
  platform::Subscription shown_;
};

TEST_F(Running, MeasuresJudgesAndTells) {
  const auto element = library_.NewTest(410);
  Perform(element);
  const auto result = element->Result();
  ASSERT_TRUE(result);
  EXPECT_EQ(result->Status(), 1);
  const auto measurement = result->Measurement(1);
  ASSERT_TRUE(measurement);
  EXPECT_EQ(measurement->Unit(), "mOhm") << "ohms are recorded in the element's own unit";
  EXPECT_EQ(measurement->Status(), 1);
  ASSERT_TRUE(result->ServiceRecord());
  EXPECT_EQ(result->ServiceRecord()->Code(), "P");
  EXPECT_EQ(result->MTIID(), 1);
  EXPECT_EQ(controller_->instruments->Count(), 1);
  EXPECT_EQ(controller_->finished, Numbers{410});
  EXPECT_EQ(controller_->requests, (Numbers{0, 0}));
  const auto sent = library_.Wire().Sent();
  ASSERT_EQ(sent.size(), 5U);
  EXPECT_EQ(sent.front(), "IREM");
  EXPECT_EQ(sent[1].substr(0, 8), "STST,410");
  EXPECT_EQ(sent[2].substr(0, 8), "GRES,410");
  EXPECT_EQ(sent[3].substr(0, 8), "STST,210");
  EXPECT_EQ(sent.back(), "EREM");
  EXPECT_TRUE(prompts_.empty());
}

TEST_F(Running, FailsWhatBreaksALimit) {
  const auto element = library_.NewTest(410);
  element->Limits()->CreateStandard("IEC 62353", "class I")->Limit(1)->SetBounds("", "0.001");
  controller_->standards = element->Limits()->Standards();
  Perform(element);
  EXPECT_EQ(element->Result()->Status(), 2);
  EXPECT_EQ(element->Result()->ServiceRecord()->Code(), "F");
}

TEST_F(Running, RunsAGroupInOneSession) {
  const auto group = library_.NewTest(400);
  Perform(group);
  const auto children = orvik::As<orvik::ITestContainer>(group);
  EXPECT_EQ(children->item(1)->Result()->Status(), 1);
  EXPECT_EQ(children->item(2)->Result()->Status(), 1);
  EXPECT_EQ(group->Result()->Status(), 1);
  EXPECT_EQ(controller_->finished, (Numbers{410, 420, 400}));
  const auto sent = library_.Wire().Sent();
  EXPECT_EQ(std::count(sent.begin(), sent.end(), "IREM"), 1);
  EXPECT_EQ(std::count(sent.begin(), sent.end(), "EREM"), 1);
}

TEST_F(Running, DoesNotStartWhatMayNot) {
  controller_->mayStart = false;
  const auto element = library_.NewTest(410);
  Perform(element);
  EXPECT_TRUE(library_.Wire().Sent().empty());
  EXPECT_TRUE(controller_->requests.empty());
}

TEST_F(Running, NeverPassesWithoutATester) {
  library_.TakePortAway();
  const auto element = library_.NewTest(410);
  Perform(element);
  ASSERT_TRUE(element->Result());
  EXPECT_EQ(element->Result()->Status(), 0);
  EXPECT_EQ(element->Result()->MeasurementCount(), 0);
}

TEST_F(Running, NeverPassesWithAMuteTester) {
  library_.Line().AnswerBy([](const std::string&) {});
  const auto element = library_.NewTest(410);
  Perform(element);
  ASSERT_TRUE(element->Result());
  EXPECT_NE(element->Result()->Status(), 1);
  ASSERT_FALSE(prompts_.empty());
  EXPECT_NE(prompts_.front().find("Can not find a KELD"), std::string::npos);
}

TEST_F(Running, NeverPassesOnGarbage) {
  for (const std::string reply :
       {"", "\x01\x02", "gres", "GRES,410,0,1,0,Ohm", "gres,420", "\"", ",,,,", "stst"}) {
    SCOPED_TRACE(reply);
    library_.Line().AnswerBy([&](const std::string&) { library_.Line().SendBytes(reply + "\r\n"); });
    const auto element = library_.NewTest(410);
    Perform(element);
    EXPECT_TRUE(!element->Result() || element->Result()->Status() != 1);
  }
}

TEST_F(Running, NeverPassesWhenTheCableIsPulled) {
  int commands = 0;
  library_.Line().AnswerBy([&](const std::string& command) {
    if (++commands == 2) return library_.Line().Unplug();
    library_.Line().Reply(command == "IREM" ? "irem,KELD(IN),1,3.10" : "stst");
  });
  const auto element = library_.NewTest(410);
  Perform(element);
  EXPECT_TRUE(!element->Result() || element->Result()->Status() != 1);
}

TEST_F(Running, RecordsWhatTheTesterLacksAsNotApplicable) {
  library_.Line().AnswerBy([&](const std::string& command) {
    if (command == "IREM")
      library_.Line().Reply("irem,KELD(IN),1,3.10");
    else if (command.starts_with("STST,410"))
      library_.Line().Reply("ERRM,6002");
    else
      library_.Line().Reply(command == "EREM" ? "erem" : "stst");
  });
  const auto element = library_.NewTest(410);
  Perform(element);
  ASSERT_TRUE(element->Result());
  EXPECT_EQ(element->Result()->Status(), 3);
  EXPECT_EQ(element->Result()->ServiceRecord()->Code(), "NA");
  ASSERT_EQ(prompts_.size(), 1U);
  EXPECT_NE(prompts_.front().find("The connected KELD does not support the test  "), std::string::npos);
}

struct Choice {
  const char* name;
  int button;
  std::int32_t request;
  std::int32_t status;  ///< -1 for no result
};

void PrintTo(const Choice& choice, std::ostream* stream) { *stream << choice.name; }

class Choices : public Running, public testing::WithParamInterface<Choice> {};

TEST_P(Choices, LeaveTheElementAsTheOperatorSays) {
  Press({GetParam().button});
  const auto element = library_.NewTest(410);
  Perform(element);
  EXPECT_EQ(controller_->requests.back(), GetParam().request);
  EXPECT_EQ(element->Result() ? element->Result()->Status() : -1, GetParam().status);
  EXPECT_TRUE(library_.Wire().Sent().empty());
}

INSTANTIATE_TEST_SUITE_P(Guide, Choices,
                         testing::Values(Choice{"Next", kNext, 0, 0}, Choice{"Previous", kPrevious, 1, 0},
                                         Choice{"Abort", kAbort, 2, 4}, Choice{"Skip", kSkip, 3, -1},
                                         Choice{"NotApplicable", kNotApplicable, 4, 3}),
                         [](const auto& choice) { return choice.param.name; });

TEST_F(Running, AsksBeforeItAborts) {
  yes_ = false;
  Press({kAbort});
  const auto element = library_.NewTest(410);
  Perform(element);
  EXPECT_EQ(prompts_, Texts{"Do you want to end this test and discard all previous test results?"});
  EXPECT_EQ(controller_->requests, Numbers{0}) << "nobody asked for anything";
  EXPECT_EQ(element->Result()->Status(), 0);
}

/// A run in which the operator presses a button of the guide at one call of the message pump.
class AtEveryPump : public Running, public testing::WithParamInterface<int> {
 protected:
  /// Performs an element and presses the button at that pump call; -1 for never. Answers how many calls there
  /// were.
  int PerformPressingAt(int call, const std::shared_ptr<orvik::ITestElement>& element) {
    int calls = 0;
    const auto acting = library_.Application().Pumped().Subscribe([&] {
      const auto guide = Guide();
      if (calls++ == call && guide) Toolbar(*guide)->Click(GetParam());
    });
    library_.Wire().Clear();
    prompts_.clear();
    Perform(element);
    return calls;
  }

  bool Received(const std::string& mnemonic) {
    const auto received = library_.Wire().Received();
    return std::any_of(received.begin(), received.end(),
                       [&](const std::string& line) { return line.starts_with(mnemonic); });
  }
};

TEST_P(AtEveryPump, EndsTheRunWithoutHangAndWithoutAPassThatNobodyMeasured) {
  const int calls = PerformPressingAt(-1, library_.NewTest(410));
  ASSERT_GT(calls, 10);
  int effective = 0;
  for (int call = 0; call < calls; ++call) {
    SCOPED_TRACE("pump call " + std::to_string(call) + " of " + std::to_string(calls));
    const auto element = library_.NewTest(410);
    PerformPressingAt(call, element);
    const auto sent = library_.Wire().Sent();
    const auto status = element->Result() ? element->Result()->Status() : 0;
    const bool opened = std::find(sent.begin(), sent.end(), "IREM") != sent.end();
    EXPECT_TRUE(!opened || sent.back() == "EREM") << "the session with the tester is left open";
    EXPECT_TRUE(status != 1 || Received("gres")) << "passed without a reading";
    EXPECT_TRUE(status != 1 || prompts_.empty()) << "passed although it was aborted";
    if (status != 1) ++effective;
  }
  EXPECT_GT(effective, calls / 4) << "the button hardly ever did anything";
}

INSTANTIATE_TEST_SUITE_P(Guide, AtEveryPump, testing::Values(kStop, kAbort),
                         [](const auto& button) { return button.param == kStop ? "Stop" : "Abort"; });

TEST(CheckerRunning, RecordsTheOperatorsVerdict) {
  LoadedLibrary library(CheckerPlugIn());
  for (const auto& [button, status, request] :
       {std::tuple{"cmdUndamaged", 1, 0}, std::tuple{"cmdDamaged", 2, 0}, std::tuple{"", 0, 2}}) {
    const auto shown = library.Application().FormShown().Subscribe([&, button = button](const auto& form) {
      library.Application().Post([form, button] {
        if (!Click(*form, button)) form->Close();
      });
    });
    const auto controller = std::make_shared<RunRecord>();
    const auto element = library.NewTest();
    element->Perform(controller);
    ASSERT_TRUE(element->Result()) << button;
    EXPECT_EQ(element->Result()->Status(), status) << button;
    EXPECT_EQ(controller->requests, Numbers{request});
    EXPECT_EQ(controller->finished, Numbers{10});
    EXPECT_TRUE(library.Application().Forms().empty());
  }
}

}  // namespace
}  // namespace conformance
