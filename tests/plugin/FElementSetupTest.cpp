#include <gtest/gtest.h>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostError.h"
#include "platform/IContainerSite.h"
#include "platform/IForm.h"
#include "platform/IUserControl.h"
#include "plugin/FElementSetup.h"
#include "tests/plugin/Recorders.h"
#include "tests/support/HostOnly.h"

namespace {

using orvik::As;
using orvik::Variant;
using orvik::platform::Rect;
using Texts = std::vector<std::string>;

/// A custom control that notes down what the dialog asks of it.
class RecordingControl final : public virtual orvik::ICustomControl, public orvik::platform::IUserControl {
 public:
  Texts calls;
  bool fails = false;
  std::vector<Variant> values;
  std::shared_ptr<orvik::IObject> data;

  void AttachTo(const std::shared_ptr<orvik::platform::IContainerSite>& site) override { site_ = site; }

 private:
  void Note(const std::string& call) {
    calls.push_back(call);
    if (fails) throw orvik::HostError(5, "control", "no");
  }
  void Answer() const {
    if (fails) throw orvik::HostError(5, "control", "no");
  }
  std::shared_ptr<orvik::ICallBack> ICustomControl_CallBack() const override {
    Answer();
    return callBack_;
  }
  void ICustomControl_SetCallBack(std::shared_ptr<orvik::ICallBack> CallBack) override {
    Note("CallBack");
    callBack_ = std::move(CallBack);
  }
  orvik::WindowHandle ICustomControl_hWnd() const override {
    Answer();
    return site_.lock()->Handle();
  }
  bool ICustomControl_Locked() const override {
    Answer();
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

/// A user control that is no custom control.
class OtherControl final : public virtual orvik::IObject, public orvik::platform::IUserControl {
 public:
  void AttachTo(const std::shared_ptr<orvik::platform::IContainerSite>&) override {}
};

class ElementSetup : public testing::Test {
 protected:
  ElementSetup() {
    bench_.Host().Register("Test.Recorder", [] { return std::make_shared<RecordingControl>(); });
    bench_.Host().Register("Test.Other", [] { return std::make_shared<OtherControl>(); });
    setup_ = keld::FElementSetup::Create();
    dialog_ = setup_;
    form_ = As<orvik::IDialogForm>(setup_)->Form();
    window_ = bench_.Application().CreateForm("HostWindow");
  }

  void PlaceControl() {
    site_ = setup_->CreateSetupCtrl("Test.Recorder");
    ASSERT_TRUE(site_);
    control_ = As<RecordingControl>(site_->Object());
    ASSERT_TRUE(control_);
  }

  orvik::WindowHandle ParentOfControl() { return bench_.Application().Parent(site_->Handle()); }

  support::HostOnly bench_;
  std::shared_ptr<keld::FElementSetup> setup_;
  std::shared_ptr<orvik::IDialog> dialog_;
  std::shared_ptr<orvik::platform::IForm> form_;
  std::shared_ptr<orvik::platform::IForm> window_;
  std::shared_ptr<orvik::platform::IContainerSite> site_;
  std::shared_ptr<RecordingControl> control_;
};

TEST_F(ElementSetup, StartsUndockedHiddenAndTitled) {
  ASSERT_TRUE(form_);
  EXPECT_EQ(form_->Name(), "FElementSetup");
  EXPECT_EQ(form_->Caption(), "KELD Safety Tester");
  EXPECT_FALSE(form_->Visible());
  EXPECT_FALSE(dialog_->IsDocked());
  EXPECT_EQ(setup_->ClassID(), "orvikKELD.FElementSetup");
}

TEST_F(ElementSetup, CreatesItsControlUnderTheNameIsc) {
  PlaceControl();
  EXPECT_EQ(site_->Name(), "isc");
  EXPECT_EQ(form_->Find("isc"), site_);
}

TEST_F(ElementSetup, CreatesNothingForAnEmptyIdentifier) {
  EXPECT_FALSE(setup_->CreateSetupCtrl(""));
  EXPECT_TRUE(form_->Controls().empty());
}

TEST_F(ElementSetup, CreatesNothingForAnUnknownIdentifier) {
  EXPECT_FALSE(setup_->CreateSetupCtrl("Test.Unknown"));
  EXPECT_TRUE(form_->Controls().empty());
  EXPECT_FALSE(dialog_->Locked());
}

TEST_F(ElementSetup, KeepsTheOneControlWhenAskedForASecond) {
  PlaceControl();
  EXPECT_EQ(setup_->CreateSetupCtrl("Test.Recorder"), site_);
  EXPECT_EQ(form_->Controls().size(), 1U);
  dialog_->Refresh();
  EXPECT_EQ(control_->calls, Texts{"Refresh"});
}

TEST_F(ElementSetup, KeepsASiteWhoseControlIsNoCustomControl) {
  site_ = setup_->CreateSetupCtrl("Test.Other");
  ASSERT_TRUE(site_);
  EXPECT_NO_THROW(dialog_->Refresh());
  dialog_->Dock(window_->Handle());
  EXPECT_FALSE(dialog_->IsDocked());
}

TEST_F(ElementSetup, ForwardsToTheCustomControl) {
  PlaceControl();
  const auto callBack = std::make_shared<recorders::CallBack>();
  dialog_->SetCallBack(callBack);
  EXPECT_EQ(dialog_->CallBack(), callBack);
  dialog_->SetLocked(true);
  EXPECT_TRUE(dialog_->Locked());
  dialog_->SetLocked(false);
  EXPECT_FALSE(dialog_->Locked());
  dialog_->Refresh();
  dialog_->SetFocus();
  EXPECT_EQ(control_->calls, (Texts{"CallBack", "Locked", "Locked", "Refresh", "SetFocus"}));
}

TEST_F(ElementSetup, PassesTheFourValuesUnchanged) {
  PlaceControl();
  const auto data = std::make_shared<orvik::IObject>();
  const std::vector<Variant> values = {std::int32_t{7}, std::string("text"), Texts{"a", "b"}};
  dialog_->Initialize(data, values[0], values[1], values[2]);
  EXPECT_EQ(control_->data, data);
  EXPECT_EQ(control_->values, values);
}

TEST_F(ElementSetup, IgnoresErrorsOfTheControl) {
  PlaceControl();
  control_->fails = true;
  EXPECT_NO_THROW(dialog_->SetCallBack(nullptr));
  EXPECT_NO_THROW(dialog_->SetLocked(true));
  EXPECT_NO_THROW(dialog_->Refresh());
  EXPECT_NO_THROW(dialog_->SetFocus());
  EXPECT_NO_THROW(dialog_->Initialize(nullptr, {}, {}, {}));
  EXPECT_EQ(control_->calls.size(), 5U);
}

TEST_F(ElementSetup, AnswersWithNothingWhereTheControlFails) {
  PlaceControl();
  dialog_->SetCallBack(std::make_shared<recorders::CallBack>());
  dialog_->SetLocked(true);
  control_->fails = true;
  EXPECT_FALSE(dialog_->CallBack());
  EXPECT_FALSE(dialog_->Locked());
  EXPECT_NO_THROW(dialog_->Dock(window_->Handle()));
  EXPECT_FALSE(dialog_->IsDocked());
  EXPECT_NO_THROW(dialog_->UnDock());
}

TEST_F(ElementSetup, DoesNothingWithoutAControl) {
  EXPECT_NO_THROW(dialog_->SetCallBack(std::make_shared<recorders::CallBack>()));
  EXPECT_FALSE(dialog_->CallBack());
  EXPECT_NO_THROW(dialog_->SetLocked(true));
  EXPECT_FALSE(dialog_->Locked());
  EXPECT_NO_THROW(dialog_->Refresh());
  EXPECT_NO_THROW(dialog_->SetFocus());
  EXPECT_NO_THROW(dialog_->Initialize(nullptr, {}, {}, {}));
  EXPECT_NO_THROW(dialog_->Dock(window_->Handle()));
  EXPECT_FALSE(dialog_->IsDocked());
  EXPECT_NO_THROW(dialog_->UnDock());
  EXPECT_NO_THROW(dialog_->Show());
  EXPECT_NO_THROW(dialog_->Hide());
  EXPECT_NO_THROW(dialog_->Move(0, 0, 100, 100));
  EXPECT_NO_THROW(dialog_->Unload());
}

TEST_F(ElementSetup, DockingInNoWindowDoesNothing) {
  PlaceControl();
  const auto before = ParentOfControl();
  dialog_->Dock(0);
  EXPECT_FALSE(dialog_->IsDocked());
  EXPECT_EQ(ParentOfControl(), before);
}

TEST_F(ElementSetup, DockingGivesTheControlsWindowToTheHost) {
  PlaceControl();
  dialog_->Dock(window_->Handle());
  EXPECT_TRUE(dialog_->IsDocked());
  EXPECT_EQ(ParentOfControl(), window_->Handle());
}

TEST_F(ElementSetup, DockingInAWindowThatDoesNotExistLeavesItUndocked) {
  PlaceControl();
  dialog_->Dock(0x7FFFFFFF);
  EXPECT_FALSE(dialog_->IsDocked());
}

TEST_F(ElementSetup, MovesTheFormWhileItIsNotDocked) {
  PlaceControl();
  form_->Show();
  dialog_->Move(300, 450, 6000, 4500);
  EXPECT_EQ(form_->Bounds(), (Rect{300, 450, 6000, 4500}));
}

TEST_F(ElementSetup, FillsTheFormWithItsControlWhileItIsNotDocked) {
  PlaceControl();
  form_->Show();
  form_->Resize({9000, 6000});
  EXPECT_EQ(site_->Bounds(), (Rect{0, 0, 9000, 6000}));
}

TEST_F(ElementSetup, MovesTheControlOnceItIsDocked) {
  PlaceControl();
  form_->Show();
  form_->Resize({9000, 6000});
  const auto form = form_->Bounds();
  dialog_->Dock(window_->Handle());
  dialog_->Move(15, 30, 4500, 3000);
  EXPECT_EQ(site_->Bounds(), (Rect{15, 30, 4500, 3000}));
  EXPECT_EQ(form_->Bounds(), form);
}

TEST_F(ElementSetup, HidesTheFormAndLeavesShowingItToTheHost) {
  PlaceControl();
  dialog_->Show();
  EXPECT_FALSE(form_->Visible());
  form_->Show();
  dialog_->Hide();
  EXPECT_FALSE(form_->Visible());
  EXPECT_TRUE(site_->Visible());
}

TEST_F(ElementSetup, ShowsAndHidesTheControlOnceItIsDocked) {
  PlaceControl();
  dialog_->Dock(window_->Handle());
  dialog_->Hide();
  EXPECT_FALSE(site_->Visible());
  dialog_->Show();
  EXPECT_TRUE(site_->Visible());
  EXPECT_FALSE(form_->Visible());
}

TEST_F(ElementSetup, StaysMarkedAsDockedAfterUndocking) {
  PlaceControl();
  dialog_->Dock(window_->Handle());
  dialog_->UnDock();
  EXPECT_EQ(ParentOfControl(), form_->Handle());
  EXPECT_TRUE(dialog_->IsDocked());
  const auto form = form_->Bounds();
  dialog_->Move(15, 30, 4500, 3000);
  EXPECT_EQ(site_->Bounds(), (Rect{15, 30, 4500, 3000}));
  EXPECT_EQ(form_->Bounds(), form);
  dialog_->Hide();
  EXPECT_FALSE(site_->Visible());
  dialog_->Show();
  EXPECT_TRUE(site_->Visible());
}

TEST_F(ElementSetup, GivesTheControlBackBeforeTheFormIsUnloaded) {
  PlaceControl();
  form_->Load();
  dialog_->Dock(window_->Handle());
  orvik::WindowHandle parentWhileUnloading = 0;
  const auto subscription = form_->Unloading().Subscribe([&] { parentWhileUnloading = ParentOfControl(); });
  dialog_->Unload();
  EXPECT_EQ(parentWhileUnloading, form_->Handle());
  EXPECT_FALSE(form_->Loaded());
}

TEST_F(ElementSetup, IsUnloadedEvenWhenTheControlDoesNotTellItsWindow) {
  PlaceControl();
  form_->Load();
  dialog_->Dock(window_->Handle());
  control_->fails = true;
  EXPECT_NO_THROW(dialog_->Unload());
  EXPECT_FALSE(form_->Loaded());
}

TEST_F(ElementSetup, UnloadsTheFormWhenItIsNotDocked) {
  PlaceControl();
  form_->Show();
  dialog_->Unload();
  EXPECT_FALSE(form_->Loaded());
  EXPECT_FALSE(form_->Visible());
  EXPECT_NO_THROW(dialog_->Unload());
}

TEST_F(ElementSetup, PassesTheFocusOfTheFormToTheControl) {
  PlaceControl();
  form_->Load();
  form_->GotFocus().Raise();
  EXPECT_EQ(control_->calls, Texts{"SetFocus"});
}

TEST_F(ElementSetup, TakesItsFormAlongWhenItIsLetGo) {
  PlaceControl();
  dialog_->Dock(window_->Handle());
  form_->Show();
  const std::weak_ptr<keld::FElementSetup> watched = setup_;
  setup_.reset();
  dialog_.reset();
  EXPECT_TRUE(watched.expired());
  EXPECT_FALSE(form_->Loaded());
  EXPECT_EQ(ParentOfControl(), form_->Handle());
  EXPECT_NO_THROW(form_->GotFocus().Raise());
}

}  // namespace
