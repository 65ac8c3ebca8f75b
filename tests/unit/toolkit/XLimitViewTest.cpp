#include "OrvikTypeLib/ICallBack.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/ILimitView.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "tests/unit/toolkit/ControlTest.h"

namespace toolkit::headless {
namespace {

using orvik::As;
namespace classes = orvik::HostClasses;

constexpr char kKey[] = "NO LIMIT KEY";

/// An element's limits: the host's own standards in the host's own collection.
class Limits : public orvik::ILimitData {
 public:
  Limits(const std::shared_ptr<host::document::Host>& host, std::string unit)
      : host_(host),
        unit_(std::move(unit)),
        standards_(As<orvik::IStandardColl>(host->CreateObject(classes::kStandardColl))) {}

  std::shared_ptr<orvik::ILimit> LimitAt(int index) const { return standards_->item(index)->Limit(1); }

 private:
  std::string ILimitData_Description() const override { return {}; }
  void ILimitData_SetDescription(const std::string&) override {}
  bool ILimitData_HasDialog() const override { return false; }
  std::shared_ptr<orvik::IStandardColl> ILimitData_Standards() const override { return standards_; }
  std::shared_ptr<IObject> ILimitData_Owner() const override { return nullptr; }
  std::shared_ptr<orvik::ILimitData> ILimitData_Clone() const override { return nullptr; }
  std::shared_ptr<orvik::IDialog> ILimitData_CreateDialog() override { return nullptr; }
  std::shared_ptr<orvik::IStandard> ILimitData_CreateStandard(const std::string& sName,
                                                              const std::string& sDescription) override {
    const auto host = orvik::Required(host_);
    auto standard = As<orvik::IStandard>(host->CreateObject(classes::kStandard));
    standard->Initialize(sName, sDescription, 1);
    auto limit = As<orvik::ILimit>(host->CreateObject(classes::kLimit));
    limit->Initialize(kKey, unit_, "", "");
    standard->AddLimit(limit);
    standards_->Add(standard);
    return standard;
  }
  void ILimitData_Load(std::shared_ptr<orvik::IXmlNode>, std::shared_ptr<IObject>) override {}
  std::shared_ptr<orvik::IXmlNode> ILimitData_Save(std::shared_ptr<orvik::IXmlNode>) const override {
    return nullptr;
  }
  void ILimitData_PrintReport(std::shared_ptr<orvik::IReport>, std::shared_ptr<IObject>) override {}
  void ILimitData_UpdateLimits(std::shared_ptr<IObject>) override {}
  std::shared_ptr<orvik::IStandardColl> ILimitData_FindFailedStandards(
      std::shared_ptr<orvik::IMeasurement>, std::shared_ptr<orvik::IStandardColl>) const override {
    return nullptr;
  }

  // The host keeps the windows, which keep the view and with it these limits.
  std::weak_ptr<host::document::Host> host_;
  std::string unit_;
  std::shared_ptr<orvik::IStandardColl> standards_;
};

class Notices : public virtual orvik::ICallBack {
 public:
  std::vector<std::string> texts;

 private:
  void ICallBack_Notify(const std::string& sText) override { texts.push_back(sText); }
};

class XLimitViewTest : public ControlTest {
 protected:
  XLimitViewTest() {
    limits->CreateStandard("IEC 62353", "class I");
    limits->CreateStandard("IEC 60601", "class II");
    limits->LimitAt(1)->SetBounds("", "0.3");
    view->InitializeView(kKey, "KELD test", "Ohm", "Ohm;%");
    view->SetCallBack(notices);
    view->Initialize(limits, {}, {}, {});
  }

  std::shared_ptr<platform::ITextBox> Text(const std::string& name) {
    return Inner<platform::ITextBox>(name);
  }
  std::shared_ptr<platform::IComboBox> Unit(const std::string& name) {
    return Inner<platform::IComboBox>(name);
  }
  void Click(const std::string& name) { Inner<platform::IButton>(name)->Click(); }
  std::string Message() { return Inner<platform::ILabel>("lblMessage")->Caption(); }
  std::shared_ptr<platform::IListView> List() { return Inner<platform::IListView>("lvwLimits"); }
  std::string Cell(const std::string& row, const std::string& column) {
    return List()->Cell(row, column).text;
  }
  /// Clicks on the row, counted from 1, as the operator does.
  void PickRow(int row) { List()->ClickAt({1, 0, 100, 255 * row + 10}); }

  std::shared_ptr<Limits> limits = std::make_shared<Limits>(host, "Ohm");
  std::shared_ptr<Notices> notices = std::make_shared<Notices>();
  std::shared_ptr<orvik::ILimitView> view = Place<orvik::ILimitView>(classes::kLimitView);
};

TEST_F(XLimitViewTest, ListsTheStandardsWithTheirBounds) {
  EXPECT_EQ(Inner<platform::ILabel>("lblCaption")->Caption(), "KELD test");
  EXPECT_EQ(List()->RowKeys(), (std::vector<std::string>{"1", "2"}));
  EXPECT_EQ(Cell("1", "NAM"), "IEC 62353");
  EXPECT_EQ(Cell("1", "DES"), "class I");
  EXPECT_EQ(Cell("1", "LOL"), "");
  EXPECT_EQ(Cell("1", "HIL"), "0.3 Ohm");
  EXPECT_EQ(Cell("2", "HIL"), "");
}

TEST_F(XLimitViewTest, ShowsTheBoundsOfTheSelectedStandard) {
  EXPECT_EQ(List()->SelectedRow(), "1");
  EXPECT_EQ(Text("txtHigh")->Text(), "0.3");
  EXPECT_EQ(Unit("cboHighUnit")->Text(), "Ohm");
  EXPECT_EQ(Unit("cboHighUnit")->Items(), (std::vector<std::string>{"Ohm", "%"}));
  PickRow(2);
  EXPECT_EQ(Text("txtHigh")->Text(), "");
  PickRow(1);
  EXPECT_EQ(Text("txtHigh")->Text(), "0.3");
  EXPECT_TRUE(notices->texts.empty()) << "nothing was changed";
}

TEST_F(XLimitViewTest, StoresWithApply) {
  Text("txtLow")->TypeOver("0.1");
  EXPECT_NE(Message().find("not stored"), std::string::npos);
  EXPECT_EQ(limits->LimitAt(1)->LowText(), "");
  Click("cmdApply");
  EXPECT_EQ(limits->LimitAt(1)->LowText(), "0.1");
  EXPECT_EQ(limits->LimitAt(1)->HighText(), "0.3");
  EXPECT_EQ(Cell("1", "LOL"), "0.1 Ohm");
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(notices->texts, (std::vector<std::string>{"Change"}));
}

TEST_F(XLimitViewTest, RemovesTheBoundForEmptyInput) {
  Text("txtHigh")->TypeOver("");
  Click("cmdApply");
  EXPECT_FALSE(limits->LimitAt(1)->HighBound());
}

TEST_F(XLimitViewTest, RejectsInvalidNumbersAndKeepsTheInput) {
  for (const char* text : {"0,5", "abc", "1 2", "inf", "5 Ohm"}) {
    Text("txtHigh")->TypeOver(text);
    Click("cmdApply");
    EXPECT_EQ(limits->LimitAt(1)->HighText(), "0.3") << text;
    EXPECT_EQ(Text("txtHigh")->Text(), text);
    EXPECT_NE(Message(), "") << text;
    EXPECT_EQ(Message().find("not stored until"), std::string::npos) << text;
  }
  EXPECT_TRUE(notices->texts.empty());
}

TEST_F(XLimitViewTest, RejectsALowerBoundAboveTheUpperOne) {
  Text("txtLow")->TypeOver("0.5");
  Click("cmdApply");
  EXPECT_EQ(limits->LimitAt(1)->LowText(), "");
  EXPECT_EQ(limits->LimitAt(1)->HighText(), "0.3");
  EXPECT_NE(Message(), "");
}

TEST_F(XLimitViewTest, RejectsAPercentageWithoutNominalValue) {
  Text("txtHigh")->TypeOver("110");
  Unit("cboHighUnit")->Choose(1);
  Click("cmdApply");
  EXPECT_EQ(limits->LimitAt(1)->HighText(), "0.3");
  EXPECT_NE(Message().find("nominal"), std::string::npos) << Message();
}

TEST_F(XLimitViewTest, AcceptsAPercentageOfTheNominalValue) {
  Text("txtNominal")->TypeOver("2");
  Text("txtHigh")->TypeOver("110");
  Unit("cboHighUnit")->Choose(1);
  Click("cmdApply");
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(limits->LimitAt(1)->HighText(), "110%");
  EXPECT_DOUBLE_EQ(limits->LimitAt(1)->HighBound().value(), 2.2);
  EXPECT_EQ(Cell("1", "HIL"), "110 %");
  EXPECT_EQ(Text("txtHigh")->Text(), "110");
  EXPECT_EQ(Unit("cboHighUnit")->Text(), "%");
}

TEST_F(XLimitViewTest, KeepsTheNominalValueOfARejectedBound) {
  Text("txtNominal")->TypeOver("2");
  Text("txtHigh")->TypeOver("abc");
  Click("cmdApply");
  EXPECT_TRUE(orvik::IsEmpty(limits->LimitAt(1)->Nominal()));
  EXPECT_EQ(limits->LimitAt(1)->HighText(), "0.3");
}

TEST_F(XLimitViewTest, RejectsAnInvalidNominalValue) {
  Text("txtNominal")->TypeOver("2,5");
  Click("cmdApply");
  EXPECT_NE(Message().find("nominal"), std::string::npos);
  EXPECT_TRUE(orvik::IsEmpty(limits->LimitAt(1)->Nominal()));
}

TEST_F(XLimitViewTest, ChangesNominalValueAndBoundsTogether) {
  limits->LimitAt(1)->SetBounds("", "");
  limits->LimitAt(1)->SetNominal(5.0);
  limits->LimitAt(1)->SetBounds("90%", "10");
  view->Refresh();
  Text("txtNominal")->TypeOver("20");
  Text("txtHigh")->TypeOver("30");
  Click("cmdApply");
  EXPECT_EQ(Message(), "");
  EXPECT_DOUBLE_EQ(limits->LimitAt(1)->LowBound().value(), 18);
  EXPECT_DOUBLE_EQ(limits->LimitAt(1)->HighBound().value(), 30);
}

TEST_F(XLimitViewTest, KeepsDigitsThatAreNotShown) {
  const double exact = 0.1 + 0.2;
  limits->LimitAt(1)->SetNominal(exact);
  view->Refresh();
  EXPECT_EQ(Text("txtNominal")->Text(), "0.3");
  Text("txtLow")->TypeOver("0.1");
  Click("cmdApply");
  EXPECT_EQ(std::get<double>(limits->LimitAt(1)->Nominal()), exact);
}

TEST_F(XLimitViewTest, StoresInputWhenAnotherStandardIsSelected) {
  Text("txtHigh")->TypeOver("0.2");
  PickRow(2);
  EXPECT_EQ(limits->LimitAt(1)->HighText(), "0.2");
  EXPECT_EQ(List()->SelectedRow(), "2");
  EXPECT_EQ(Text("txtHigh")->Text(), "");
  EXPECT_EQ(notices->texts.size(), 1U);
}

TEST_F(XLimitViewTest, KeepsTheStandardOfRejectedInputSelected) {
  Text("txtHigh")->TypeOver("abc");
  PickRow(2);
  EXPECT_EQ(List()->SelectedRow(), "1");
  EXPECT_EQ(Text("txtHigh")->Text(), "abc");
  EXPECT_NE(Message(), "");
}

TEST_F(XLimitViewTest, AddsAStandardAndSelectsIt) {
  Text("txtName")->TypeOver(" Own rules ");
  Text("txtDescription")->TypeOver("ward 5");
  Click("cmdAdd");
  ASSERT_EQ(limits->Standards()->Count(), 3);
  EXPECT_EQ(limits->Standards()->item(3)->Name(), "Own rules");
  EXPECT_EQ(limits->Standards()->item(3)->Description(), "ward 5");
  EXPECT_EQ(List()->SelectedRow(), "3");
  EXPECT_EQ(Text("txtName")->Text(), "");
  EXPECT_EQ(notices->texts, (std::vector<std::string>{"Change"}));
  Text("txtHigh")->TypeOver("7");
  Click("cmdApply");
  EXPECT_EQ(limits->LimitAt(3)->HighText(), "7");
}

TEST_F(XLimitViewTest, RejectsAStandardWithEmptyOrExistingName) {
  Text("txtName")->TypeOver("  ");
  Click("cmdAdd");
  EXPECT_NE(Message().find("name"), std::string::npos);
  Text("txtName")->TypeOver("IEC 62353");
  Text("txtDescription")->TypeOver("class I");
  Click("cmdAdd");
  EXPECT_NE(Message().find("already"), std::string::npos);
  EXPECT_EQ(limits->Standards()->Count(), 2);
  EXPECT_TRUE(notices->texts.empty());
}

TEST_F(XLimitViewTest, AddsNoStandardWhileInputIsRejected) {
  Text("txtHigh")->TypeOver("abc");
  Text("txtName")->TypeOver("Own rules");
  Click("cmdAdd");
  EXPECT_EQ(limits->Standards()->Count(), 2);
  EXPECT_EQ(Text("txtHigh")->Text(), "abc");
}

TEST_F(XLimitViewTest, RemovesTheSelectedStandard) {
  PickRow(2);
  Click("cmdRemove");
  ASSERT_EQ(limits->Standards()->Count(), 1);
  EXPECT_EQ(limits->Standards()->item(1)->Name(), "IEC 62353");
  EXPECT_EQ(List()->SelectedRow(), "1");
  EXPECT_EQ(Text("txtHigh")->Text(), "0.3");
  Click("cmdRemove");
  EXPECT_EQ(List()->RowCount(), 0);
  EXPECT_EQ(notices->texts.size(), 2U);
  Click("cmdRemove");
  EXPECT_NE(Message(), "");
  EXPECT_EQ(notices->texts.size(), 2U);
}

TEST_F(XLimitViewTest, StoresNothingWithoutStandard) {
  Click("cmdRemove");
  Click("cmdRemove");
  Text("txtHigh")->TypeOver("1");
  Click("cmdApply");
  EXPECT_NE(Message().find("Select"), std::string::npos);
}

TEST_F(XLimitViewTest, DoesNotEditAStandardWithoutTheKey) {
  view->InitializeView("ANOTHER KEY", "KELD test", "Ohm", "Ohm;%");
  EXPECT_EQ(Cell("1", "HIL"), "");
  Text("txtHigh")->TypeOver("1");
  Click("cmdApply");
  EXPECT_NE(Message().find("no limit"), std::string::npos);
  EXPECT_EQ(limits->LimitAt(1)->HighText(), "0.3");
}

TEST_F(XLimitViewTest, EditsNothingWhenLocked) {
  view->SetLocked(true);
  EXPECT_TRUE(view->Locked());
  Text("txtHigh")->TypeOver("9");
  Unit("cboHighUnit")->Choose(1);
  Text("txtName")->TypeOver("Own rules");
  Click("cmdApply");
  Click("cmdAdd");
  Click("cmdRemove");
  EXPECT_EQ(limits->Standards()->Count(), 2);
  EXPECT_EQ(limits->LimitAt(1)->HighText(), "0.3");
  EXPECT_EQ(Text("txtHigh")->Text(), "0.3");
  view->SetLocked(false);
  Text("txtHigh")->TypeOver("9");
  Click("cmdApply");
  EXPECT_EQ(limits->LimitAt(1)->HighText(), "9");
}

TEST_F(XLimitViewTest, WorksWithoutCallBack) {
  view->SetCallBack(nullptr);
  EXPECT_FALSE(view->CallBack());
  Text("txtHigh")->TypeOver("0.2");
  Click("cmdApply");
  EXPECT_EQ(limits->LimitAt(1)->HighText(), "0.2");
}

TEST_F(XLimitViewTest, ShowsChangesAndKeepsInputOnRefresh) {
  limits->LimitAt(1)->SetBounds("", "0.4");
  view->Refresh();
  EXPECT_EQ(Text("txtHigh")->Text(), "0.4");
  Text("txtHigh")->TypeOver("0.45");
  limits->LimitAt(2)->SetBounds("1", "");
  view->Refresh();
  EXPECT_EQ(Text("txtHigh")->Text(), "0.45");
  EXPECT_EQ(Cell("2", "LOL"), "1 Ohm");
}

TEST_F(XLimitViewTest, IsShownAndHiddenByItsContainer) {
  EXPECT_TRUE(view->Visible());
  view->SetVisible(false);
  EXPECT_FALSE(view->Visible());
  EXPECT_FALSE(site->Visible());
  view->SetVisible(true);
  view->SetFocus();
  EXPECT_TRUE(List()->HasFocus());
  EXPECT_EQ(app->Parent(view->hWnd()), form->Handle());
}

TEST_F(XLimitViewTest, IsEmptyWithoutLimitData) {
  view->Initialize(nullptr, {}, {}, {});
  EXPECT_EQ(List()->RowCount(), 0);
  Text("txtName")->TypeOver("Own rules");
  Click("cmdAdd");
  Click("cmdRemove");
  EXPECT_TRUE(notices->texts.empty());
}

TEST_F(XLimitViewTest, TranslatesEveryText) {
  for (const auto& control : site->Panel()->Controls()) {
    EXPECT_EQ(control->Caption().find("::"), std::string::npos) << control->Name();
    EXPECT_EQ(control->ToolTip().find("::"), std::string::npos) << control->Name();
  }
}

}  // namespace
}  // namespace toolkit::headless
