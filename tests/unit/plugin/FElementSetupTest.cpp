#include <gtest/gtest.h>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostError.h"
#include "platform/IContainerSite.h"
#include "platform/IForm.h"
#include "platform/IUserControl.h"
#include "plugin/configuration/FElementSetup.h"
#include "tests/support/HostOnly.h"
#include "tests/unit/plugin/Recorders.h"

namespace {

using orvik::As;
using orvik::Variant;
using orvik::platform::Rect;
using Texts = std::vector<std::string>;

/// A custom control that records the calls of the dialog.
class RecordingControl final : public virtual orvik::ICustomControl, public orvik::platform::IUserControl {
 public:
  Texts calls;
  bool fails = false;
  std::vector<Variant> values;
  std::shared_ptr<orvik::IObject> data;

  void AttachTo(const std::shared_ptr<orvik::platform::IContainerSite>& site) override { site_ = site; }

 private:
  void Check() const {
    if (fails) throw orvik::HostError(5, "control", "no");
  }
  void Note(const std::string& call) {
    calls.push_back(call);
    Check();
  }
  std::shared_ptr<orvik::ICallBack> ICustomControl_CallBack() const override {
    Check();
    return callBack_;
  }
  void ICustomControl_SetCallBack(std::shared_ptr<orvik::ICallBack> CallBack) override {
    Note("CallBack");
    callBack_ = std::move(CallBack);
  }
  orvik::WindowHandle ICustomControl_hWnd() const override {
    Check();
    return site_.lock()->Handle();
  }
  bool ICustomControl_Locked() const override {
    Check();
    return locked_;
  }
  void ICustomControl_SetLocked(bool fLocked) override {
    Note("Locked");
    locked_ = fLocked;
  }
  bool ICustomControl_Visible() const override { return true; }
  void ICustomControl_SetVisible(bool) override { Note("Visible"); }
  void ICustomControl_Initialize(std::shared_ptr<orvik::IObject> Data, const Variant& v1, const Variant& v2,
                                 const Variant& v3) override {
    Note("Initialize");
    data = std::move(Data);
    values = {v1, v2, v3};
  }
  void ICustomControl_Refresh() override { Note("Refresh"); }
  void ICustomControl_SetFocus() override { Note("SetFocus"); }

  std::weak_ptr<orvik::platform::IContainerSite> site_;
  std::shared_ptr<orvik::ICallBack> callBack_;
  bool locked_ = false;
};

/// A user control that is not a custom control.
class OtherControl final : public virtual orvik::IObject, public orvik::platform::IUserControl {
 public:
  void AttachTo(const std::shared_ptr<orvik::platform::IContainerSite>&) override {}
};

/// A dialog without a control.
class EmptyElementSetup : public testing::Test {
 protected:
  EmptyElementSetup() {
    bench_.Host().Register("Test.Recorder", [] { return std::make_shared<RecordingControl>(); });
    bench_.Host().Register("Test.Other", [] { return std::make_shared<OtherControl>(); });
    setup_ = keld::configuration::FElementSetup::Create();
    dialog_ = setup_;
    form_ = As<orvik::IDialogForm>(setup_)->Form();
    window_ = bench_.Application().CreateForm("HostWindow");
  }

  support::HostOnly bench_;
  std::shared_ptr<keld::configuration::FElementSetup> setup_;
  std::shared_ptr<orvik::IDialog> dialog_;
  std::shared_ptr<orvik::platform::IForm> form_;
  std::shared_ptr<orvik::platform::IForm> window_;
};

/// A dialog with the recording control.
class ElementSetup : public EmptyElementSetup {
 protected:
  ElementSetup()
      : site_(setup_->CreateSetupCtrl("Test.Recorder")), control_(As<RecordingControl>(site_->Object())) {}

  orvik::WindowHandle ParentOfControl() { return bench_.Application().Parent(site_->Handle()); }

  std::shared_ptr<orvik::platform::IContainerSite> site_;
  std::shared_ptr<RecordingControl> control_;
};

TEST_F(EmptyElementSetup, StartsUndockedHiddenAndTitled) {
  ASSERT_TRUE(form_);
  EXPECT_EQ(form_->Name(), "FElementSetup");
  EXPECT_EQ(form_->Caption(), "KELD Safety Tester");
  EXPECT_FALSE(form_->Visible());
  EXPECT_FALSE(dialog_->IsDocked());
  EXPECT_EQ(setup_->ClassID(), "orvikKELD.FElementSetup");
}

TEST_F(EmptyElementSetup, CreatesNoControlForAnUnknownIdentifier) {
  for (const char* identifier : {"", "Test.Unknown"}) {
    EXPECT_FALSE(setup_->CreateSetupCtrl(identifier)) << identifier;
    EXPECT_TRUE(form_->Controls().empty()) << identifier;
  }
}

TEST_F(EmptyElementSetup, DoesNothingWithoutAControl) {
  dialog_->SetCallBack(std::make_shared<recorders::CallBack>());
  EXPECT_FALSE(dialog_->CallBack());
  dialog_->SetLocked(true);
  EXPECT_FALSE(dialog_->Locked());
  dialog_->Refresh();
  dialog_->SetFocus();
  dialog_->Initialize(nullptr, {}, {}, {});
  dialog_->Dock(window_->Handle());
  EXPECT_FALSE(dialog_->IsDocked());
  dialog_->UnDock();
  dialog_->Show();
  dialog_->Hide();
  dialog_->Move(0, 0, 100, 100);
  dialog_->Unload();
}

TEST_F(EmptyElementSetup, CannotDockAControlOfAnotherKind) {
  ASSERT_TRUE(setup_->CreateSetupCtrl("Test.Other"));
  dialog_->Refresh();
  dialog_->Dock(window_->Handle());
  EXPECT_FALSE(dialog_->IsDocked());
}

TEST_F(ElementSetup, CreatesOneControlNamedIsc) {
  ASSERT_TRUE(control_);
  EXPECT_EQ(site_->Name(), "isc");
  EXPECT_EQ(form_->Find("isc"), site_);
  EXPECT_EQ(setup_->CreateSetupCtrl("Test.Recorder"), site_) << "a second control is not created";
  EXPECT_EQ(form_->Controls().size(), 1U);
  dialog_->Refresh();
  EXPECT_EQ(control_->calls, Texts{"Refresh"});
}

TEST_F(ElementSetup, ForwardsToTheControl) {
  const auto callBack = std::make_shared<recorders::CallBack>();
  dialog_->SetCallBack(callBack);
  EXPECT_EQ(dialog_->CallBack(), callBack);
  dialog_->SetLocked(true);
  EXPECT_TRUE(dialog_->Locked());
  dialog_->SetLocked(false);
  EXPECT_FALSE(dialog_->Locked());
  dialog_->Refresh();
  dialog_->SetFocus();
  const auto data = std::make_shared<orvik::IObject>();
  const std::vector<Variant> values = {std::int32_t{7}, std::string("text"), Texts{"a", "b"}};
  dialog_->Initialize(data, values[0], values[1], values[2]);
  EXPECT_EQ(control_->data, data);
  EXPECT_EQ(control_->values, values);
  form_->Load();
  form_->GotFocus().Raise();
  EXPECT_EQ(control_->calls,
            (Texts{"CallBack", "Locked", "Locked", "Refresh", "SetFocus", "Initialize", "SetFocus"}));
}

TEST_F(ElementSetup, IgnoresErrorsOfTheControl) {
  dialog_->SetCallBack(std::make_shared<recorders::CallBack>());
  dialog_->SetLocked(true);
  control_->calls.clear();
  control_->fails = true;
  dialog_->SetCallBack(nullptr);
  dialog_->SetLocked(true);
  dialog_->Refresh();
  dialog_->SetFocus();
  dialog_->Initialize(nullptr, {}, {}, {});
  EXPECT_EQ(control_->calls.size(), 5U);
  EXPECT_FALSE(dialog_->CallBack());
  EXPECT_FALSE(dialog_->Locked());
  dialog_->Dock(window_->Handle());
  EXPECT_FALSE(dialog_->IsDocked());
  dialog_->UnDock();
}

TEST_F(ElementSetup, DocksTheControlInAnExistingWindow) {
  const auto before = ParentOfControl();
  for (const orvik::WindowHandle missing : {0, 0x7FFFFFFF}) {
    dialog_->Dock(missing);
    EXPECT_FALSE(dialog_->IsDocked()) << missing;
    EXPECT_EQ(ParentOfControl(), before) << missing;
  }
  dialog_->Dock(window_->Handle());
  EXPECT_TRUE(dialog_->IsDocked());
  EXPECT_EQ(ParentOfControl(), window_->Handle());
}

TEST_F(ElementSetup, MovesAndHidesTheFormUntilDocked) {
  dialog_->Show();
  EXPECT_FALSE(form_->Visible()) << "the host shows the form";
  form_->Show();
  dialog_->Move(300, 450, 6000, 4500);
  EXPECT_EQ(form_->Bounds(), (Rect{300, 450, 6000, 4500}));
  form_->Resize({9000, 6000});
  EXPECT_EQ(site_->Bounds(), (Rect{0, 0, 9000, 6000})) << "the control fills the form";
  dialog_->Hide();
  EXPECT_FALSE(form_->Visible());
  EXPECT_TRUE(site_->Visible());
}

TEST_F(ElementSetup, MovesAndHidesTheControlOnceDocked) {
  form_->Show();
  form_->Resize({9000, 6000});
  const auto form = form_->Bounds();
  dialog_->Dock(window_->Handle());
  for (const bool undocked : {false, true}) {
    // Undocking returns the control to the form, but the dialog stays marked as docked.
    if (undocked) dialog_->UnDock();
    EXPECT_EQ(ParentOfControl(), undocked ? form_->Handle() : window_->Handle());
    EXPECT_TRUE(dialog_->IsDocked());
    const Rect place{15, undocked ? 45 : 30, 4500, 3000};
    dialog_->Move(place.left, place.top, place.width, place.height);
    EXPECT_EQ(site_->Bounds(), place);
    EXPECT_EQ(form_->Bounds(), form);
    dialog_->Hide();
    EXPECT_FALSE(site_->Visible());
    EXPECT_TRUE(form_->Visible());
    form_->Hide();
    dialog_->Show();
    EXPECT_TRUE(site_->Visible());
    EXPECT_FALSE(form_->Visible());
    form_->Show();
  }
}

TEST_F(ElementSetup, ReturnsTheControlBeforeTheFormUnloads) {
  form_->Load();
  dialog_->Dock(window_->Handle());
  orvik::WindowHandle parentWhileUnloading = 0;
  const auto subscription = form_->Unloading().Subscribe([&] { parentWhileUnloading = ParentOfControl(); });
  dialog_->Unload();
  EXPECT_EQ(parentWhileUnloading, form_->Handle());
  EXPECT_FALSE(form_->Loaded());
}

TEST_F(ElementSetup, UnloadsTheFormInEveryState) {
  for (const bool docked : {false, true}) {
    form_->Show();
    if (docked) dialog_->Dock(window_->Handle());
    control_->fails = docked;
    dialog_->Unload();
    EXPECT_FALSE(form_->Loaded()) << docked;
    EXPECT_FALSE(form_->Visible()) << docked;
    dialog_->Unload();
  }
}

TEST_F(ElementSetup, UnloadsItsFormWhenDestroyed) {
  dialog_->Dock(window_->Handle());
  form_->Show();
  const std::weak_ptr<keld::configuration::FElementSetup> watched = setup_;
  setup_.reset();
  dialog_.reset();
  EXPECT_TRUE(watched.expired());
  EXPECT_FALSE(form_->Loaded());
  EXPECT_EQ(ParentOfControl(), form_->Handle());
  form_->GotFocus().Raise();
}

}  // namespace
