#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ICustomControl.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/ITgContentPane.h"
#include "OrvikTypeLib/ITgToolbar.h"
#include "instrument/CKELDMeasurement.h"
#include "model/CKELDTestElement.h"
#include "platform/Controls.h"
#include "platform/IContainerSite.h"
#include "platform/IForm.h"
#include "platform/IListView.h"
#include "platform/IUserControl.h"
#include "plugin/configuration/CKELDTestConfiguration.h"
#include "results/CKELDLimitData.h"
#include "results/CKELDResultData.h"
#include "tests/support/VirtualBench.h"
#include "tests/unit/model/RecordingController.h"
#include "ui/FTestGuide.h"

namespace ui {

/// The guide as the operator sees it.
class GuideScreen {
 public:
  explicit GuideScreen(std::shared_ptr<orvik::platform::IForm> form) : form_(std::move(form)) {}

  orvik::platform::IForm& Form() const { return *form_; }
  std::shared_ptr<orvik::platform::IContainerSite> Site(const std::string& name) const {
    auto site = orvik::As<orvik::platform::IContainerSite>(form_->Find(name));
    if (!site) throw std::runtime_error("the guide has no control " + name);
    return site;
  }
  std::shared_ptr<orvik::ITgToolbar> Toolbar() const {
    return orvik::As<orvik::ITgToolbar>(Site("xtbToolbar")->Object());
  }
  std::shared_ptr<orvik::ITgContentPane> Pane(const std::string& name) const {
    return orvik::As<orvik::ITgContentPane>(Site(name)->Object());
  }
  /// The buttons inside the toolbar.
  std::shared_ptr<orvik::platform::IToolbar> Buttons() const {
    for (const auto& control : Site("xtbToolbar")->Panel()->Controls()) {
      if (auto buttons = orvik::As<orvik::platform::IToolbar>(control)) return buttons;
    }
    throw std::runtime_error("the toolbar has no buttons");
  }
  std::shared_ptr<orvik::platform::IListView> Results() const {
    return orvik::As<orvik::platform::IListView>(Site("xrvResultView")->Panel()->Find("lvwResults"));
  }
  /// The control with the tester's data, and one of its fields.
  std::shared_ptr<orvik::ICustomControl> InstrumentData() const {
    return orvik::As<orvik::ICustomControl>(Pane("xstShowMTI")->Tab("tab:MtiData"));
  }
  template <class Field>
  std::shared_ptr<Field> InstrumentField(const std::string& name) const {
    for (const auto& control : Site("xstShowMTI")->Panel()->Controls()) {
      const auto tabs = orvik::As<orvik::platform::ITabs>(control);
      const auto page = tabs ? tabs->Page("tab:MtiData") : nullptr;
      const auto data =
          page ? orvik::As<orvik::platform::IContainerSite>(page->Find("tab:MtiData")) : nullptr;
      if (data) return orvik::As<Field>(data->Panel()->Find(name));
    }
    throw std::runtime_error("the guide shows no data of the tester");
  }
  void Click(int command) const { Toolbar()->Click(command); }
  /// The enabled commands.
  std::vector<int> Enabled() const {
    std::vector<int> enabled;
    for (const int command : {101, 102, 103, 201, 202, 301, 302, 501, 900}) {
      if (Buttons()->CommandEnabled(command)) enabled.push_back(command);
    }
    return enabled;
  }

 private:
  std::shared_ptr<orvik::platform::IForm> form_;
};

/// A single test on the whole bench, performed with an operator at the guide.
class GuideTest : public testing::Test {
 protected:
  using Operator = std::function<void(GuideScreen)>;

  GuideTest() {
    controller_->standards = Standards({});
    shown_ = App().FormShown().Subscribe([this](const std::shared_ptr<orvik::platform::IForm>& form) {
      if (form->Name() != "FTestGuide") OnOtherForm(form);
    });
  }

  toolkit::headless::Application& App() { return bench_.Application(); }

  std::shared_ptr<keld::model::CKELDTestElement> Element(std::int32_t testId = 210) {
    auto element = orvik::As<keld::model::CKELDTestElement>(bench_.CreateTest(testId));
    element->SetID(7);
    return element;
  }

  /// A guide opened for the element, not shown.
  std::shared_ptr<keld::ui::FTestGuide> Opened(const std::shared_ptr<orvik::ITestElement>& element) {
    auto guide = keld::ui::FTestGuide::Create();
    guide->Initialize(element, controller_);
    return guide;
  }
  /// A guide opened for an element that the test drives.
  std::shared_ptr<keld::ui::FTestGuide> Driving(
      const std::shared_ptr<keld::model::CKELDTestElement>& element,
      const std::shared_ptr<keld::instrument::CKELDInstrument>& link) {
    auto guide = Opened(element);
    element->InitAutoRun(link, guide, controller_);
    return guide;
  }
  static void Command(const std::shared_ptr<keld::ui::FTestGuide>& guide, int command) {
    orvik::As<orvik::ITgToolbarEvents>(guide)->OnCommand(command);
  }
  static void Press(const std::shared_ptr<orvik::platform::IForm>& form, const std::string& button) {
    orvik::Required(orvik::As<orvik::platform::IButton>(form->Find(button))).Click();
  }
  /// Gives the element and the run a standard whose limit the simulated reading exceeds.
  void GiveFailingLimit(const std::shared_ptr<keld::model::CKELDTestElement>& element) {
    orvik::As<keld::results::CKELDLimitData>(element->Limits())->AddStandard(Standard("A", "1"));
    controller_->standards = Standards({"A"});
  }

  static void SetOptions(const orvik::ITestElement& element, std::int32_t options) {
    orvik::As<keld::configuration::CKELDTestConfiguration>(element.Configuration())->SetOptions(options);
  }

  /// Performs the element; the operator acts once the guide is on the screen, then leaves it.
  void Perform(const std::shared_ptr<orvik::ITestElement>& element, Operator act) {
    bool acted = false;
    const auto opened = App().FormShown().Subscribe([&](const std::shared_ptr<orvik::platform::IForm>& form) {
      if (form->Name() != "FTestGuide") return;
      App().Post([&, form] {
        acted = true;
        Operate([&] { act(GuideScreen(form)); });
        left_ = !form->Visible();
        if (!left_) form->Hide();
      });
    });
    element->Perform(controller_);
    EXPECT_TRUE(acted) << "the guide was never shown";
  }

  /// Calls `act` once, after the command was sent.
  void When(const std::string& command, std::function<void()> act) {
    whens_.push_back(bench_.Ports().TheWire()->Subscribe([this, command, act, done = false](
                                                             const host::serial::WireRecord& record) mutable {
      if (done || record.kind != host::serial::WireRecord::Kind::kSent || !record.text.starts_with(command))
        return;
      done = true;
      App().Post([act] { Operate(act); });
    }));
  }

  /// Answers every question whether to end the test.
  void AnswerQuestions(bool yes) { answer_ = yes ? "cmdAccept" : "cmdDecline"; }

  std::shared_ptr<orvik::IStandardColl> Standards(const std::vector<std::string>& names) {
    auto standards = Make<orvik::IStandardColl>(orvik::HostClasses::kStandardColl);
    for (const auto& name : names) standards->Add(Standard(name, ""));
    return standards;
  }

  /// A standard with an upper bound for the one measured value.
  std::shared_ptr<orvik::IStandard> Standard(const std::string& name, const std::string& high) {
    auto standard = Make<orvik::IStandard>(orvik::HostClasses::kStandard);
    standard->Initialize(name, name + " text", 1);
    auto limit = Make<orvik::ILimit>(orvik::HostClasses::kLimit);
    limit->Initialize("NO LIMIT KEY", "V", "", high);
    standard->AddLimit(limit);
    return standard;
  }

  template <class Interface>
  static std::shared_ptr<Interface> Make(const char* classId) {
    return keld::MKELDGlobalVars::CreateHostObject<Interface>(classId);
  }

  support::VirtualBench bench_;
  std::shared_ptr<support::RecordingController> controller_ =
      std::make_shared<support::RecordingController>();
  /// Names of the other windows shown.
  std::vector<std::string> windows_;
  /// Operates another window; by default prompts are answered.
  std::function<void(const std::shared_ptr<orvik::platform::IForm>&)> onWindow_;
  /// Whether the last guide was closed after the operator had acted.
  bool left_ = false;

 private:
  /// The element ignores errors of its guide, so an operator's error must be reported here.
  static void Operate(const std::function<void()>& act) {
    try {
      act();
    } catch (const std::exception& error) {
      ADD_FAILURE() << error.what();
    }
  }
  void OnOtherForm(const std::shared_ptr<orvik::platform::IForm>& form) {
    windows_.push_back(form->Name());
    App().Post([this, form] {
      if (onWindow_) return onWindow_(form);
      const auto name = form->Name() == "FYesNoPrompt" ? answer_ : std::string("cmdOK");
      if (const auto button = orvik::As<orvik::platform::IButton>(form->Find(name))) button->Click();
    });
  }

  std::string answer_ = "cmdDecline";
  std::vector<orvik::platform::Subscription> whens_;
  orvik::platform::Subscription shown_;
};

}  // namespace ui
