#include <algorithm>

#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IServiceRecord.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITgToolbar.h"
#include "host/instruments/InstrumentColl.h"
#include "tests/contract/conformance/Asked.h"
#include "tests/contract/conformance/RunRecord.h"
#include "tests/contract/conformance/Windows.h"

namespace conformance {
namespace {

namespace platform = orvik::platform;
using Texts = std::vector<std::string>;
using Numbers = std::vector<std::int32_t>;

constexpr int kNext = 103, kPlay = 202;

/// One element performed under a controller, with an operator who acts on every window that is shown.
class Running : public KeldPlugInLoaded {
 protected:
  Running() {
    controller_->instruments = std::make_shared<host::instruments::InstrumentColl>();
    controller_->standards = library_.New<orvik::IStandardColl>(orvik::HostClasses::kStandardColl);
    shown_ = library_.Application().FormShown().Subscribe(
        [this](const auto& form) { library_.Application().Post([this, form] { Operate(*form); }); });
  }

  void Perform(const std::shared_ptr<orvik::ITestElement>& element) {
    EXPECT_NO_THROW(element->Perform(controller_));
    EXPECT_TRUE(library_.Application().Forms().empty()) << "a window is left open";
    EXPECT_EQ(library_.Line().Line()->Connected(), false) << "the port is left open";
  }

  void Operate(platform::IForm& form) {
    if (!form.Visible()) return;
    if (form.Name() == "FTestGuide") {
      for (const int button : {kPlay, kNext})
        FindObject<orvik::ITgToolbar>(form, "xtbToolbar")->Click(button);
      if (form.Visible()) form.Hide();
    } else {
      prompts_.push_back(form.Find("lblPrompt")->Caption());
      EXPECT_TRUE(Click(form, "cmdOK") || Click(form, "cmdAccept")) << form.Name();
    }
  }

  std::shared_ptr<RunRecord> controller_ = std::make_shared<RunRecord>();
  Texts prompts_;
  platform::Subscription shown_;
};

TEST_F(Running, MeasuresJudgesAndNotifies) {
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
