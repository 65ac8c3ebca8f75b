#include "OrvikTypeLib/ICustomControl.h"
#include "OrvikTypeLib/IResultData.h"
#include "tests/contract/conformance/Asked.h"
#include "tests/contract/conformance/Windows.h"

namespace conformance {
namespace {

namespace platform = orvik::platform;

/// Every class of a library that is a user control.
class Controls : public EveryPlugIn {
 protected:
  std::vector<std::string> Identifiers() {
    std::vector<std::string> identifiers;
    auto& classes = library_.Classes();
    for (std::int32_t index = 1; index <= classes.Count(); ++index) {
      const auto id = classes.ClassIdentifier(index);
      if (std::dynamic_pointer_cast<platform::IUserControl>(classes.CreateObject(id)))
        identifiers.push_back(id);
    }
    return identifiers;
  }

  /// Calls every operation of a control.
  void CallEverything(orvik::ICustomControl& control, const std::shared_ptr<orvik::IObject>& stranger,
                      const std::string& when) {
    SCOPED_TRACE(when);
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { control.CallBack(); }));
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { control.SetCallBack(nullptr); }));
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { control.hWnd(); }));
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { control.SetLocked(!control.Locked()); }));
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { control.SetLocked(false); }));
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { control.Visible(); }));
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { control.SetVisible(false); }));
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { control.SetVisible(true); }));
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { control.Initialize(nullptr, {}, {}, {}); }));
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { control.Initialize(stranger, std::int32_t{1}, 2.5, "text"); }));
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { control.Refresh(); }));
    EXPECT_TRUE(OnlyHostErrorCrosses([&] { control.SetFocus(); }));
  }
};
FOR_EVERY_PLUG_IN(Controls);

TEST_P(Controls, ArePlacedShownResizedAndReleased) {
  const auto identifiers = Identifiers();
  ASSERT_FALSE(identifiers.empty());
  for (const auto& id : identifiers) {
    SCOPED_TRACE(id);
    auto form = library_.Application().CreateForm("FControls");
    auto site = form->AddControl(id, "isc");
    ASSERT_TRUE(site->Object());
    EXPECT_FALSE(site->Panel()->Controls().empty()) << "the control shows nothing";
    form->SetGrid({{{0, 1}}, {{0, 1}}, {{"isc", 0, 0}}});
    form->Show();
    for (const auto size : {platform::Size{9'000, 6'000}, {15, 15}, {0, 0}})
      EXPECT_NO_THROW(form->Resize(size));
    for (const auto& control : site->Panel()->Controls())
      EXPECT_EQ(control->Caption().find("::"), std::string::npos) << control->Name() << " is not translated";
    const std::weak_ptr<platform::IUserControl> watched = site->Object();
    form->Unload();
    site.reset();
    form.reset();
    library_.Application().ProcessMessages();
    EXPECT_TRUE(watched.expired()) << "the control is still referenced";
  }
}

TEST_P(Controls, WorkBeforeDuringAndAfterPlacement) {
  const auto stranger = library_.NewTest();
  for (const auto& id : Identifiers()) {
    SCOPED_TRACE(id);
    const auto alone = library_.New<orvik::ICustomControl>(id);
    if (!alone) continue;
    CallEverything(*alone, stranger, "never placed");
    std::shared_ptr<orvik::ICustomControl> control;
    {
      const auto form = library_.Application().CreateForm("FControls");
      form->Show();
      control = FindObject<orvik::ICustomControl>(*form, (form->AddControl(id, "isc"), "isc"));
      CallEverything(*control, stranger, "placed");
      form->Unload();
      CallEverything(*control, stranger, "form unloaded");
    }
    CallEverything(*control, stranger, "form gone");
  }
}

TEST_P(Controls, AreReleasedWithTheirForm) {
  for (const auto& id : Identifiers()) {
    auto form = library_.Application().CreateForm("FControls");
    form->Show();
    const std::weak_ptr<platform::IUserControl> watched = form->AddControl(id, "isc")->Object();
    form->Unload();
    form.reset();
    library_.Application().ProcessMessages();
    EXPECT_TRUE(watched.expired()) << id << " holds its site";
  }
}

}  // namespace
}  // namespace conformance
