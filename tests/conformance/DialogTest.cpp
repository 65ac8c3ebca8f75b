#include "OrvikTypeLib/ICallBack.h"
#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/ICustomControl.h"
#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/IDialogForm.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IResultData.h"
#include "platform/ITreeView.h"
#include "tests/conformance/Asked.h"
#include "tests/conformance/Windows.h"

namespace conformance {
namespace {

namespace platform = orvik::platform;

class Notices final : public orvik::ICallBack {
 public:
  std::vector<std::string> Heard;

 private:
  std::string IObject_ClassID() const override { return {}; }
  void ICallBack_Notify(const std::string& sText) override { Heard.push_back(sText); }
};

class Dialogs : public KeldPlugInLoaded {
 protected:
  std::shared_ptr<platform::IForm> FormOf(const std::shared_ptr<orvik::IDialog>& dialog) {
    const auto withForm = orvik::As<orvik::IDialogForm>(dialog);
    return withForm ? withForm->Form() : nullptr;
  }
  std::shared_ptr<platform::IContainerSite> SiteOf(const std::shared_ptr<orvik::IDialog>& dialog) {
    return Find<platform::IContainerSite>(*FormOf(dialog), "isc");
  }
  /// All dialogs that the plug-in makes.
  std::vector<std::shared_ptr<orvik::IDialog>> All() {
    const auto result = library_.New<orvik::IResultData>("orvikKELD.CKELDResultData");
    return {element_->Configuration()->CreateDialog(), group_->Configuration()->CreateDialog(),
            element_->Limits()->CreateDialog(), result->CreateDialog(),
            library_.New<orvik::IDialog>("orvikKELD.FElementSetup")};
  }
  std::string Options(const orvik::ITestElement& element) {
    const auto node = library_.NewNode("Configuration");
    element.Configuration()->Save(node);
    const auto saved = node->FindChild("PlugInData")->FindChild("KELDConfig");
    return saved->Attribute("Options") + "/" + saved->Attribute("ValueFilter");
  }

  std::shared_ptr<orvik::ITestElement> element_ = library_.NewTest(410);
  std::shared_ptr<orvik::ITestElement> group_ = library_.NewTest(400);
};

TEST_F(Dialogs, AreMadeForConfigurationLimitsAndResult) {
  for (const auto& dialog : All()) {
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(FormOf(dialog));
    EXPECT_FALSE(dialog->IsDocked());
  }
  EXPECT_TRUE(library_.Application().Forms().empty()) << "a dialog that nobody shows is not on the screen";
}

TEST_F(Dialogs, ShowTheHostNoError) {
  const auto host = library_.Application().CreateForm("FHost");
  host->Show();
  for (const auto& dialog : All()) {
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

TEST_F(Dialogs, DockTheirControlAndGiveItBack) {
  const auto host = library_.Application().CreateForm("FHost");
  host->Show();
  const auto dialog = element_->Configuration()->CreateDialog();
  const auto control = orvik::As<orvik::ICustomControl>(SiteOf(dialog)->Object());
  ASSERT_TRUE(control);
  const auto window = control->hWnd();
  ASSERT_NE(window, 0U);

  dialog->Dock(host->Handle());
  EXPECT_TRUE(dialog->IsDocked());
  EXPECT_EQ(library_.Application().Parent(window), host->Handle());
  dialog->Hide();
  EXPECT_FALSE(SiteOf(dialog)->Visible());
  dialog->Show();
  EXPECT_TRUE(SiteOf(dialog)->Visible());
  dialog->Move(150, 300, 4'500, 3'000);
  EXPECT_EQ(SiteOf(dialog)->Bounds(), (platform::Rect{150, 300, 4'500, 3'000}));

  dialog->UnDock();
  EXPECT_EQ(library_.Application().Parent(window), FormOf(dialog)->Handle());
  EXPECT_TRUE(dialog->IsDocked()) << "only docking ever changes the flag";
  dialog->Dock(host->Handle());
  dialog->Unload();
  EXPECT_NE(library_.Application().Parent(window), host->Handle())
      << "the host holds a window of an unloaded form";
}

TEST_F(Dialogs, MoveAndHideTheirFormWhenTheyAreNotDocked) {
  const auto dialog = element_->Configuration()->CreateDialog();
  const auto form = FormOf(dialog);
  form->Show();
  dialog->Move(150, 300, 4'500, 3'000);
  EXPECT_EQ(form->Bounds(), (platform::Rect{150, 300, 4'500, 3'000}));
  dialog->Hide();
  EXPECT_FALSE(form->Visible());
  dialog->Unload();
  EXPECT_FALSE(form->Loaded());
}

TEST_F(Dialogs, EditTheSettingsOfATest) {
  const auto dialog = element_->Configuration()->CreateDialog();
  const auto notices = std::make_shared<Notices>();
  dialog->SetCallBack(notices);
  EXPECT_EQ(dialog->CallBack(), notices);
  FormOf(dialog)->Show();
  const auto tree = Find<platform::ITreeView>(*SiteOf(dialog)->Panel(), "tvwSettings");
  ASSERT_TRUE(tree);
  EXPECT_EQ(tree->NodeKeys(), (std::vector<std::string>{"NA key", "Skip key"}));
  EXPECT_EQ(tree->NodeCaption("NA key"), "Enable NA button in test guide");
  tree->ClickNode("NA key");
  EXPECT_EQ(Options(*element_), "2/No values");
  EXPECT_EQ(notices->Heard, std::vector<std::string>{"Change"});
  dialog->SetLocked(true);
  tree->ClickNode("NA key");
  EXPECT_EQ(Options(*element_), "2/No values") << "a locked control was edited";
  dialog->SetLocked(false);
  dialog->SetCallBack(nullptr);
  tree->ClickNode("NA key");
  EXPECT_EQ(Options(*element_), "3/No values");
  EXPECT_EQ(notices->Heard.size(), 1U);
  dialog->Unload();
}

TEST_F(Dialogs, EditTheValuesThatAGroupKeeps) {
  const auto dialog = group_->Configuration()->CreateDialog();
  FormOf(dialog)->Show();
  const auto list = Find<platform::IComboBox>(*SiteOf(dialog)->Panel(), "cmbAssign");
  ASSERT_TRUE(list);
  EXPECT_EQ(list->Items(),
            (std::vector<std::string>{"No values", "All values", "Maximum value", "Minimum value"}));
  EXPECT_EQ(list->SelectedIndex(), 0);
  list->Choose(2);
  EXPECT_EQ(Options(*group_), "3/Maximum value");
  dialog->Unload();
}

TEST_F(Dialogs, ShowTheCommentOfAResultWithoutLettingItBeEdited) {
  const auto result = library_.New<orvik::IResultData>("orvikKELD.CKELDResultData");
  result->SetComment("cracked");
  const auto dialog = result->CreateDialog();
  FormOf(dialog)->Show();
  const auto box = Find<platform::ITextBox>(*SiteOf(dialog)->Panel(), "txtComment");
  ASSERT_TRUE(box);
  EXPECT_EQ(box->Text(), "cracked");
  box->Type("!");
  EXPECT_EQ(box->Text(), "cracked");
  dialog->Unload();
}

TEST_F(Dialogs, OutliveWhatTheyEdit) {
  const auto dialog = element_->Configuration()->CreateDialog();
  const auto limits = element_->Limits()->CreateDialog();
  FormOf(dialog)->Show();
  element_.reset();
  const auto tree = Find<platform::ITreeView>(*SiteOf(dialog)->Panel(), "tvwSettings");
  EXPECT_NO_THROW(tree->ClickNode("NA key"));
  EXPECT_NO_THROW(limits->Refresh());
  EXPECT_NO_THROW(dialog->Unload());
}

TEST_F(Dialogs, GoWithTheirLastReference) {
  auto dialog = element_->Configuration()->CreateDialog();
  FormOf(dialog)->Show();
  const std::weak_ptr<orvik::IDialog> watched = dialog;
  dialog.reset();
  EXPECT_TRUE(watched.expired());
  EXPECT_TRUE(library_.Application().Forms().empty()) << "a dialog is left on the screen";
}

}  // namespace
}  // namespace conformance
