#include "OrvikTypeLib/ICallBack.h"
#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/ICustomControl.h"
#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/IDialogForm.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IResultData.h"
#include "platform/ITreeView.h"
#include "tests/contract/conformance/Asked.h"
#include "tests/contract/conformance/Windows.h"

namespace conformance {
namespace {

namespace platform = orvik::platform;

class Notices final : public orvik::ICallBack {
 public:
  std::vector<std::string> heard;

 private:
  std::string IObject_ClassID() const override { return {}; }
  void ICallBack_Notify(const std::string& sText) override { heard.push_back(sText); }
};

/// The dialog of an element's configuration, and its form.
class ConfigurationDialog : public KeldPlugInLoaded {
 protected:
  platform::IContainerSite& Site() { return *Find<platform::IContainerSite>(*form_, "isc"); }
  std::string Options() {
    const auto node = library_.NewNode("Configuration");
    element_->Configuration()->Save(node);
    return node->FindChild("PlugInData")->FindChild("KELDConfig")->Attribute("Options");
  }

  std::shared_ptr<orvik::ITestElement> element_ = library_.NewTest(410);
  std::shared_ptr<orvik::IDialog> dialog_ = element_->Configuration()->CreateDialog();
  std::shared_ptr<platform::IForm> form_ = orvik::As<orvik::IDialogForm>(dialog_)->Form();
};

TEST_F(ConfigurationDialog, DocksItsControlAndReturnsIt) {
  const auto host = library_.Application().CreateForm("FHost");
  host->Show();
  const auto window = orvik::As<orvik::ICustomControl>(Site().Object())->hWnd();
  ASSERT_NE(window, 0U);

  dialog_->Dock(host->Handle());
  EXPECT_TRUE(dialog_->IsDocked());
  EXPECT_EQ(library_.Application().Parent(window), host->Handle());
  dialog_->Hide();
  EXPECT_FALSE(Site().Visible());
  dialog_->Show();
  EXPECT_TRUE(Site().Visible());
  dialog_->Move(150, 300, 4'500, 3'000);
  EXPECT_EQ(Site().Bounds(), (platform::Rect{150, 300, 4'500, 3'000}));

  dialog_->UnDock();
  EXPECT_EQ(library_.Application().Parent(window), form_->Handle());
  EXPECT_TRUE(dialog_->IsDocked()) << "only docking ever changes the flag";
  dialog_->Dock(host->Handle());
  dialog_->Unload();
  EXPECT_NE(library_.Application().Parent(window), host->Handle());
}

TEST_F(ConfigurationDialog, EditsNotifiesAndLocks) {
  const auto notices = std::make_shared<Notices>();
  dialog_->SetCallBack(notices);
  EXPECT_EQ(dialog_->CallBack(), notices);
  form_->Show();
  const auto tree = Find<platform::ITreeView>(*Site().Panel(), "tvwSettings");
  ASSERT_TRUE(tree);
  tree->ClickNode("NA key");
  EXPECT_EQ(Options(), "2");
  EXPECT_EQ(notices->heard, std::vector<std::string>{"Change"});
  dialog_->SetLocked(true);
  tree->ClickNode("NA key");
  EXPECT_EQ(Options(), "2") << "a locked control was edited";
  dialog_->SetLocked(false);
  dialog_->SetCallBack(nullptr);
  tree->ClickNode("NA key");
  EXPECT_EQ(Options(), "3");
  EXPECT_EQ(notices->heard.size(), 1U);
  dialog_->Unload();
}

TEST_F(KeldPlugInLoaded, DialogsRaiseNoError) {
  const auto element = library_.NewTest(410);
  const auto result = library_.New<orvik::IResultData>("orvikKELD.CKELDResultData");
  const auto host = library_.Application().CreateForm("FHost");
  host->Show();
  for (const auto& dialog :
       {element->Configuration()->CreateDialog(), library_.NewTest(400)->Configuration()->CreateDialog(),
        element->Limits()->CreateDialog(), result->CreateDialog(),
        library_.New<orvik::IDialog>("orvikKELD.FElementSetup")}) {
    ASSERT_TRUE(orvik::As<orvik::IDialogForm>(dialog));
    EXPECT_NO_THROW({
      dialog->Initialize(nullptr, {}, std::int32_t{1}, "text");
      dialog->Initialize(dialog, 2.5, {}, std::vector<std::string>{"list"});
      dialog->SetCallBack(nullptr);
      dialog->CallBack();
      dialog->SetLocked(true);
      dialog->Locked();
      dialog->SetLocked(false);
      dialog->Dock(0);
      EXPECT_FALSE(dialog->IsDocked());
      dialog->UnDock();
      dialog->Dock(987'654'321);
      dialog->Show();
      dialog->Hide();
      dialog->Move(-1, 2'147'483'647, 0, -5);
      dialog->Refresh();
      dialog->SetFocus();
      dialog->Dock(host->Handle());
      dialog->Dock(host->Handle());
      dialog->Unload();
      dialog->Unload();
      dialog->UnDock();
      dialog->Refresh();
      dialog->SetFocus();
      dialog->Show();
    });
  }
  host->Unload();
  EXPECT_TRUE(library_.Application().Forms().empty());
}

}  // namespace
}  // namespace conformance
