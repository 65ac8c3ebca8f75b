#include <array>
#include <utility>

#include "OrvikTypeLib/IMeasurement.h"
#include "results/XKELDResultView.h"
#include "tests/support/WatchedLanguage.h"
#include "tests/unit/results/Tools.h"

namespace {

using orvik::platform::Alignment;
using Texts = std::vector<std::string>;

/// A measurement with another key and format than an instrument's.
class OtherMeasurement final : public virtual orvik::IMeasurement {
 public:
  std::string key = "NO LIMIT KEY";
  std::string format = "0";

 private:
  std::string IMeasurement_Description() const override { return {}; }
  std::string IMeasurement_Key() const override { return {}; }
  std::string IMeasurement_LimitKey() const override { return key; }
  std::int32_t IMeasurement_Status() const override { return 1; }
  std::string IMeasurement_Unit() const override { return "V"; }
  orvik::Variant IMeasurement_value() const override { return 5.25; }
  orvik::Variant IMeasurement_PresetValue() const override { return {}; }
  std::int32_t IMeasurement_ValueType() const override { return 2; }
  std::string IMeasurement_ValueFormat() const override { return format; }
  std::string IMeasurement_Flags() const override { return {}; }
  std::string IMeasurement_ToolTipText() const override { return {}; }
  void IMeasurement_Load(std::shared_ptr<orvik::IXmlNode>) override {}
  std::shared_ptr<orvik::IXmlNode> IMeasurement_Save(std::shared_ptr<orvik::IXmlNode>) const override {
    return {};
  }
};

class XKELDResultViewTest : public results::ResultsTest {
 protected:
  XKELDResultViewTest() {
    site_ = Placed("orvikKELD.XKELDResultView");
    view_ = orvik::As<keld::results::XKELDResultView>(site_->Object());
    list_ = orvik::As<orvik::platform::IListView>(site_->Panel()->Find("lvwResults"));
  }

  std::string Text(const std::string& row, const std::string& column) const {
    return list_->Cell(row, column).text;
  }
  /// The upper and the lower limit of a row.
  Texts Limits(const std::string& row) const { return {Text(row, "HIL"), Text(row, "LOL")}; }

  /// A measured element with limits of the standard "A".
  std::shared_ptr<keld::model::CKELDTestElement> WithLimits(std::int32_t id, const std::string& low,
                                                            const std::string& high) {
    auto element = Measured(id, 5.3);
    orvik::As<keld::results::CKELDLimitData>(element->Limits())->AddStandard(Standard("A", low, high));
    return element;
  }

  std::shared_ptr<orvik::platform::IContainerSite> site_;
  std::shared_ptr<keld::results::XKELDResultView> view_;
  std::shared_ptr<orvik::platform::IListView> list_;
};

TEST_F(XKELDResultViewTest, HasFourColumns) {
  const auto columns = list_->Columns();
  ASSERT_EQ(columns.size(), 4U);
  const std::vector<std::string> keys{"NAM", "VAL", "HIL", "LOL"};
  const std::vector<std::string> captions{"KELD test", "Value", "High limit", "Low limit"};
  const std::vector<orvik::platform::Twips> widths{4500, 1500, 1000, 1000};
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(columns[i].key, keys[i]);
    EXPECT_EQ(columns[i].caption, captions[i]);
    EXPECT_EQ(columns[i].width, widths[i]);
    EXPECT_EQ(columns[i].alignment, i == 0 ? Alignment::kLeft : Alignment::kRight);
  }
  EXPECT_TRUE(list_->Visible());
}

TEST_F(XKELDResultViewTest, ListIsHiddenWhileItsColumnsAreAdded) {
  form_->Unload();
  keld::MKELDGlobalVars::Close();
  keld::MKELDGlobalVars::Open(host_.SharedHost());
  const auto language = support::WatchLanguage(host_.Host());
  std::vector<bool> visible;
  // A caption is translated for each column that is added.
  language->onText = [&](const std::string&) {
    const auto site = orvik::As<orvik::platform::IContainerSite>(form_->Find("ctl"));
    visible.push_back(site->Panel()->Find("lvwResults")->Visible());
  };
  site_ = Placed("orvikKELD.XKELDResultView");
  language->onText = nullptr;
  EXPECT_EQ(visible, std::vector<bool>(4, false));
  EXPECT_TRUE(site_->Panel()->Find("lvwResults")->Visible());
}

TEST_F(XKELDResultViewTest, CreatesItsColumnsOnce) {
  view_->ShowLimitsInRow();
  EXPECT_EQ(list_->Columns().size(), 4U);
}

TEST_F(XKELDResultViewTest, ListFillsTheControlAtAnySize) {
  for (const orvik::platform::Size size :
       {orvik::platform::Size{6000, 4000}, orvik::platform::Size{9000, 2500}}) {
    form_->Resize(size);
    EXPECT_EQ(list_->Bounds(), (orvik::platform::Rect{0, 0, size.width, size.height}));
  }
}

TEST_F(XKELDResultViewTest, ElementWithoutMeasurementIsNotShown) {
  const auto element = Test(12);
  view_->ShowResult(element);
  EXPECT_EQ(list_->RowCount(), 0);
  GiveResult(*element, 1);
  view_->ShowResult(element);
  EXPECT_EQ(list_->RowCount(), 0);
}

TEST_F(XKELDResultViewTest, RowShowsNameAndValue) {
  const auto element = Test(12);
  GiveResult(*element, 1)->SetMeasurement(Measurement(12.6, "mA"));
  view_->ShowResult(element);
  ASSERT_EQ(list_->RowKeys(), (std::vector<std::string>{"12::"}));
  EXPECT_EQ(Text("12::", "NAM"), "Test 12");
  EXPECT_EQ(Text("12::", "VAL"), "13  mA");
  EXPECT_EQ(Limits("12::"), (Texts{" ", " "}));
  EXPECT_EQ(list_->SelectedRow(), "12::");
  EXPECT_EQ(std::any_cast<std::weak_ptr<orvik::ITestElement>>(list_->RowTag("12::")).lock(), element);
  EXPECT_EQ(std::any_cast<std::shared_ptr<orvik::IMeasurement>>(list_->Cell("12::", "VAL").tag),
            element->Result()->Measurement(1));
}

TEST_F(XKELDResultViewTest, EmptyNameIsASingleBlank) {
  const auto element = Measured(12, 1.0);
  element->Information()->SetDisplayName("");
  view_->ShowResult(element);
  EXPECT_EQ(Text("12::", "NAM"), " ");
}

TEST_F(XKELDResultViewTest, SecondResultReplacesTheValueInTheSameRow) {
  const auto element = Measured(12, 5.0);
  view_->ShowResult(element);
  view_->ShowResult(Measured(13, 6.0));
  EXPECT_EQ(list_->SelectedRow(), "13::");
  const auto first = element->Result()->Measurement(1);
  GiveResult(*element, 1)->SetMeasurement(Measurement(7.0, "V"));
  view_->ShowResult(element);
  EXPECT_EQ(list_->RowKeys(), (std::vector<std::string>{"12::", "13::"}));
  EXPECT_EQ(Text("12::", "VAL"), "7  V");
  EXPECT_EQ(list_->SelectedRow(), "12::");
  // Only the text is replaced.
  EXPECT_EQ(std::any_cast<std::shared_ptr<orvik::IMeasurement>>(list_->Cell("12::", "VAL").tag), first);
}

TEST_F(XKELDResultViewTest, SecondResultKeepsNameAndLimits) {
  view_->SelectStandard("A", "A text");
  const auto element = WithLimits(12, "2", "10");
  view_->ShowResult(element);
  element->Information()->SetDisplayName("Another");
  element->Limits()->Standards()->item(1)->Limit(1)->SetBounds("3", "8");
  view_->ShowResult(element);
  EXPECT_EQ(Text("12::", "NAM"), "Test 12");
  EXPECT_EQ(Limits("12::"), (Texts{"10 mA", "2 mA"}));
}

TEST_F(XKELDResultViewTest, ResultIsScrolledIntoViewAndPainted) {
  for (std::int32_t id = 1; id <= 100; ++id) {
    const int painted = list_->RefreshCount();
    view_->ShowResult(Measured(id, 5.0));
    EXPECT_EQ(list_->RefreshCount(), painted + 1);
  }
  // The topmost visible row, found by a click on it.
  const auto topRow = [&] {
    list_->ClickAt({1, 0, 100, 300});
    return list_->SelectedRow();
  };
  EXPECT_NE(topRow(), "1::") << "the last row is out of sight";
  view_->ShowResult(Measured(1, 6.0));
  EXPECT_EQ(topRow(), "1::");
}

TEST_F(XKELDResultViewTest, OverloadIsShownInsteadOfTheValue) {
  const auto element = Test(12);
  const auto result = GiveResult(*element, 1);
  for (const char* flags : {"O", "xOy"}) {
    result->SetMeasurement(Measurement(5.0, "mA", flags));
    view_->ShowResult(element);
    EXPECT_EQ(Text("12::", "VAL"), "OL") << flags;
  }
  result->SetMeasurement(Measurement(5.0, "mA", "o"));
  view_->ShowResult(element);
  EXPECT_EQ(Text("12::", "VAL"), "5  mA");
}

TEST_F(XKELDResultViewTest, MeasurementWithoutValueShowsOnlyItsUnit) {
  view_->ShowResult(Measured(12, {}));
  EXPECT_EQ(Text("12::", "VAL"), "  mA");
}

TEST_F(XKELDResultViewTest, FailedRowIsBoldAndRedUntilItPasses) {
  const auto element = Measured(12, 5.0);
  const auto measurement = orvik::As<keld::instrument::CKELDMeasurement>(element->Result()->Measurement(1));
  const auto expectStyle = [&](bool bold, orvik::platform::Color color) {
    for (const char* column : {"NAM", "VAL", "HIL", "LOL"}) {
      EXPECT_EQ(list_->Cell("12::", column).bold, bold) << column;
      EXPECT_EQ(list_->Cell("12::", column).color, color) << column;
    }
  };
  measurement->SetStatus(2);
  view_->ShowResult(element);
  expectStyle(true, 255);
  measurement->SetStatus(1);
  view_->ShowResult(element);
  expectStyle(false, orvik::platform::kWindowText);
}

TEST_F(XKELDResultViewTest, SelectedStandardFillsTheLimitCells) {
  view_->SelectStandard("A", "A text");
  view_->ShowResult(WithLimits(12, "2", "10"));
  EXPECT_EQ(Limits("12::"), (Texts{"10 mA", "2 mA"}));
  EXPECT_EQ(list_->Cell("12::", "HIL").toolTip, "A text");
  EXPECT_EQ(list_->Cell("12::", "LOL").toolTip, "A text");
}

TEST_F(XKELDResultViewTest, SelectingAStandardRefreshesEveryRow) {
  const auto first = WithLimits(12, "2", "");
  const auto second = WithLimits(13, "", "7");
  view_->ShowResult(first);
  view_->ShowResult(second);
  EXPECT_EQ(Text("12::", "LOL"), " ");
  view_->SelectStandard("A", "A text");
  EXPECT_EQ(Limits("12::"), (Texts{" ", "2 mA"}));
  EXPECT_EQ(Limits("13::"), (Texts{"7 mA", " "}));
}

TEST_F(XKELDResultViewTest, UnknownStandardClearsTheLimitCells) {
  view_->SelectStandard("A", "A text");
  const auto element = WithLimits(12, "2", "10");
  view_->ShowResult(element);
  for (const auto& [name, text] :
       {std::pair<std::string, std::string>{"B", "A text"}, {"A", "other"}, {"", ""}}) {
    view_->SelectStandard("A", "A text");
    ASSERT_EQ(Text("12::", "HIL"), "10 mA");
    view_->SelectStandard(name, text);
    EXPECT_EQ(Limits("12::"), (Texts{" ", " "})) << name;
    EXPECT_EQ(list_->Cell("12::", "HIL").toolTip, text);
  }
}

TEST_F(XKELDResultViewTest, LimitCellsKeepTheRowsStyle) {
  const auto element = WithLimits(12, "2", "10");
  orvik::As<keld::instrument::CKELDMeasurement>(element->Result()->Measurement(1))->SetStatus(2);
  view_->ShowResult(element);
  view_->SelectStandard("A", "A text");
  EXPECT_TRUE(list_->Cell("12::", "HIL").bold);
  EXPECT_EQ(list_->Cell("12::", "HIL").color, 255U);
}

TEST_F(XKELDResultViewTest, TightestOfSeveralLimitsIsShown) {
  const auto element = WithLimits(12, "2", "10");
  const auto standard = element->Limits()->Standards()->item(1);
  standard->AddLimit(Limit("3", "8"));
  standard->AddLimit(Limit("1", "9"));
  standard->AddLimit(Limit("7", "7.5", "another key"));
  view_->SelectStandard("A", "A text");
  view_->ShowResult(element);
  EXPECT_EQ(Limits("12::"), (Texts{"8 mA", "3 mA"}));
}

TEST_F(XKELDResultViewTest, KeyFormatAndUnitAreTheMeasurements) {
  const auto measurement = std::make_shared<OtherMeasurement>();
  measurement->format = "";
  const auto element = WithLimits(12, "2", "10");
  GiveResult(*element, 1)->SetMeasurement(measurement);
  element->Limits()->Standards()->item(1)->AddLimit(Limit("", "4", ""));
  view_->SelectStandard("A", "A text");
  view_->ShowResult(element);
  EXPECT_EQ(Text("12::", "VAL"), "5.25  V");
  EXPECT_EQ(Limits("12::"), (Texts{"10 V", "2 V"}));
  // Without a key there is no limit, not even one without a key.
  measurement->key = "";
  view_->SelectStandard("A", "A text");
  EXPECT_EQ(Limits("12::"), (Texts{" ", " "}));
}

TEST_F(XKELDResultViewTest, BoundsAreRoundedToWholeNumbers) {
  view_->SelectStandard("A", "A text");
  view_->ShowResult(WithLimits(12, "-0.4", "0.5"));
  EXPECT_EQ(Limits("12::"), (Texts{"1 mA", "0 mA"}));
}

TEST_F(XKELDResultViewTest, ElementWithoutLimitsShowsBlanks) {
  view_->SelectStandard("A", "A text");
  const auto element = Measured(12, 5.0);
  element->BaseElement()->SetLimits(nullptr);
  view_->ShowResult(element);
  EXPECT_EQ(Limits("12::"), (Texts{" ", " "}));
}

TEST_F(XKELDResultViewTest, RowOutlivesItsElement) {
  auto element = WithLimits(12, "2", "10");
  view_->SelectStandard("A", "A text");
  view_->ShowResult(element);
  const std::weak_ptr<keld::model::CKELDTestElement> weak = element;
  element.reset();
  EXPECT_TRUE(weak.expired());
  view_->SelectStandard("A", "A text");
  EXPECT_EQ(Text("12::", "VAL"), "5  mA");
  EXPECT_EQ(Text("12::", "HIL"), " ");
}

TEST_F(XKELDResultViewTest, ClearDisplayRemovesAllRows) {
  view_->ShowResult(Measured(12, 5.0));
  view_->ShowResult(Measured(13, 5.0));
  view_->ClearDisplay();
  EXPECT_EQ(list_->RowCount(), 0);
  view_->ShowResult(Measured(13, 5.0));
  EXPECT_EQ(list_->RowCount(), 1);
}

TEST_F(XKELDResultViewTest, ForwardsTheMouseEventOfTheList) {
  std::vector<std::array<int, 4>> heard;
  const auto listening = view_->MouseUp().Subscribe([&](int button, int shift, int x, int y) {
    heard.push_back({button, shift, x, y});
  });
  list_->ClickAt({2, 1, 300, 450});
  EXPECT_EQ(heard, (std::vector<std::array<int, 4>>{{2, 1, 300, 450}}));
}

TEST_F(XKELDResultViewTest, PropagatesErrors) {
  EXPECT_THROW(view_->ShowResult(nullptr), orvik::HostError);
  EXPECT_THROW(keld::results::XKELDResultView::Create()->ClearDisplay(), orvik::HostError);
}

}  // namespace
