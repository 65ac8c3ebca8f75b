#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/IDialogForm.h"
#include "platform/Controls.h"
#include "results/XDetailedResult.h"
#include "tests/support/FailingLanguage.h"
#include "tests/unit/results/ContainerProbe.h"
#include "tests/unit/results/Tools.h"

namespace {

class XDetailedResultTest : public results::ResultsTest {
 protected:
  XDetailedResultTest() {
    site_ = Placed("orvikKELD.XDetailedResult");
    control_ = orvik::As<orvik::ICustomControl>(site_->Object());
    title_ = site_->Panel()->Find("lblTitle");
    comment_ = orvik::As<orvik::platform::ITextBox>(site_->Panel()->Find("txtComment"));
  }

  void Show(const std::string& comment) {
    const auto result = keld::results::CKELDResultData::Create();
    result->SetComment(comment);
    control_->Initialize(result, {}, {}, {});
  }

  std::shared_ptr<orvik::platform::IContainerSite> site_;
  std::shared_ptr<orvik::ICustomControl> control_;
  std::shared_ptr<orvik::platform::IControl> title_;
  std::shared_ptr<orvik::platform::ITextBox> comment_;
};

TEST_F(XDetailedResultTest, TitleIsTranslated) { EXPECT_EQ(title_->Caption(), "Comment"); }

TEST_F(XDetailedResultTest, ShowsTheCommentReadOnly) {
  Show("worn\nlead");
  EXPECT_EQ(comment_->Text(), "worn\nlead");
  EXPECT_TRUE(comment_->MultiLine());
  EXPECT_TRUE(comment_->Locked());
  EXPECT_EQ(comment_->BackColor(), 0x8000000FU);
}

TEST_F(XDetailedResultTest, EmptyCommentIsAnEmptyReadOnlyBox) {
  Show("earlier");
  Show("");
  EXPECT_EQ(comment_->Text(), "");
  EXPECT_TRUE(comment_->Locked());
}

TEST_F(XDetailedResultTest, TypingHasNoEffect) {
  comment_->Type("x");
  ASSERT_EQ(comment_->Text(), "x") << "the box takes typing before it is locked";
  Show("worn lead");
  comment_->Type("!");
  comment_->TypeOver("gone");
  EXPECT_EQ(comment_->Text(), "worn lead");
}

TEST_F(XDetailedResultTest, RejectsDataThatIsNotAResult) {
  EXPECT_THROW(control_->Initialize(nullptr, {}, {}, {}), orvik::HostError);
  EXPECT_THROW(control_->Initialize(keld::results::CKELDLimitData::Create(), {}, {}, {}), orvik::HostError);
}

TEST_F(XDetailedResultTest, CallBackAndLockAreIgnored) {
  control_->SetCallBack(nullptr);
  EXPECT_FALSE(control_->CallBack());
  control_->SetLocked(true);
  EXPECT_FALSE(control_->Locked());
}

TEST_F(XDetailedResultTest, WindowIsTheSites) {
  EXPECT_NE(control_->hWnd(), 0U);
  EXPECT_EQ(control_->hWnd(), site_->Handle());
  EXPECT_EQ(keld::results::XDetailedResult::Create()->ICustomControl::hWnd(), 0U);
}

TEST_F(XDetailedResultTest, ReadingVisibleFailsWithTheContainersError) {
  try {
    control_->Visible();
    FAIL() << "the container has no property Visbible";
  } catch (const orvik::HostError& error) {
    EXPECT_EQ(error.Number(), 438);
    EXPECT_NE(error.Description().find("Visbible"), std::string::npos);
  }
}

TEST_F(XDetailedResultTest, VisibleReadsTheMisspeltProperty) {
  const auto form = host_.Application().CreateForm("Other");
  const auto container = std::make_shared<results::ContainerProbe>(form);
  const auto control = keld::results::XDetailedResult::Create();
  control->AttachTo(container);
  orvik::ICustomControl& view = *control;
  container->properties["Visible"] = true;
  for (const auto& [property, visible] : std::vector<std::pair<results::ContainerProbe::Value, bool>>{
           {false, false}, {true, true}, {0, false}, {-1, true}}) {
    container->properties["Visbible"] = property;
    EXPECT_EQ(view.Visible(), visible);
  }
  EXPECT_EQ(container->asked, std::vector<std::string>(4, "Visbible"));
  container->properties["Visbible"] = std::string("shown");
  EXPECT_THROW(view.Visible(), orvik::HostError);

  view.SetVisible(false);
  EXPECT_EQ(container->properties.at("Visible"), results::ContainerProbe::Value(false));
  EXPECT_EQ(container->properties.at("Visbible"), results::ContainerProbe::Value(std::string("shown")));
}

TEST_F(XDetailedResultTest, SettingVisibleWritesVisible) {
  control_->SetVisible(false);
  EXPECT_FALSE(site_->Visible());
  control_->SetVisible(true);
  EXPECT_TRUE(site_->Visible());
}

TEST_F(XDetailedResultTest, TitleSpansTheWidthAfterItsIndent) {
  for (const orvik::platform::Twips width : {6000, 3000, 500, 120}) {
    form_->Resize({width, 4000});
    EXPECT_EQ(title_->Bounds().left, 120);
    EXPECT_EQ(title_->Bounds().top, 0);
    EXPECT_EQ(title_->Bounds().width, site_->Panel()->InnerSize().width - 120);
  }
}

TEST_F(XDetailedResultTest, TitleStaysIfThePanelIsTooNarrow) {
  form_->SetGrid({});
  site_->SetBounds({0, 0, 3000, 2000});
  const auto before = title_->Bounds();
  site_->SetBounds({0, 0, 100, 2000});
  ASSERT_LT(site_->Panel()->InnerSize().width, 120);
  EXPECT_EQ(title_->Bounds(), before);
}

TEST_F(XDetailedResultTest, CommentFillsTheSpaceBelowTheTitle) {
  form_->Resize({6000, 4000});
  const auto title = title_->Bounds();
  const auto box = comment_->Bounds();
  EXPECT_EQ(box.top, title.top + title.height);
  EXPECT_EQ(box.left, 0);
  EXPECT_EQ(box.width, 6000);
  EXPECT_EQ(box.top + box.height, 4000);
}

TEST_F(XDetailedResultTest, RefreshAndFocusReachTheControls) {
  const int before = site_->Panel()->RefreshCount();
  control_->Refresh();
  EXPECT_EQ(site_->Panel()->RefreshCount(), before + 1);
  control_->SetFocus();
  EXPECT_TRUE(comment_->HasFocus());
}

using support::LanguageFault;

class ResultsWithoutLanguageTest : public results::ResultsTest,
                                   public testing::WithParamInterface<LanguageFault> {
 protected:
  ResultsWithoutLanguageTest() { support::FailLanguage(host_.Host(), GetParam()); }
};

TEST_P(ResultsWithoutLanguageTest, DetailedResultIsShownAndClosed) {
  const auto result = keld::results::CKELDResultData::Create();
  result->SetComment("worn lead");
  const auto dialog = result->CreateDialog();
  ASSERT_TRUE(dialog);
  const auto form = orvik::As<orvik::IDialogForm>(dialog)->Form();
  form->Show();
  const auto site = orvik::As<orvik::platform::IContainerSite>(form->Find("isc"));
  ASSERT_TRUE(site);
  EXPECT_EQ(site->Panel()->Find("lblTitle")->Caption(), "1708::Comment");
  const auto comment = orvik::As<orvik::platform::ITextBox>(site->Panel()->Find("txtComment"));
  EXPECT_EQ(comment->Text(), "worn lead");
  EXPECT_TRUE(comment->Locked());
  EXPECT_GT(comment->Bounds().width, 0);
  form->Close();
  EXPECT_TRUE(host_.Application().Forms().empty());
}

// Limits propagate the host's errors unchanged, and no window may remain.
TEST_P(ResultsWithoutLanguageTest, LimitDialogFailsWithoutLeavingAWindow) {
  const auto element = Test(12);
  EXPECT_ANY_THROW(element->Limits()->CreateDialog());
  EXPECT_TRUE(host_.Application().Forms().empty());
}

INSTANTIATE_TEST_SUITE_P(Language, ResultsWithoutLanguageTest,
                         testing::Values(LanguageFault::kRaisesHostError, LanguageFault::kRaisesAnythingElse,
                                         LanguageFault::kIsMissing),
                         [](const auto& tested) { return support::NameOf(tested.param); });

}  // namespace
