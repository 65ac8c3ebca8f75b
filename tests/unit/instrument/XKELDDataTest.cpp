#include <gtest/gtest.h>

#include "instrument/CKELDData.h"
#include "instrument/XKELDData.h"
#include "platform/Controls.h"
#include "platform/IForm.h"
#include "tests/support/HostOnly.h"

namespace instrument_test {
namespace {

namespace platform = orvik::platform;

class XKELDDataTest : public testing::Test {
 protected:
  XKELDDataTest() {
    const auto data = keld::instrument::CKELDData::Shared();
    data->SetSerialNumber("0815");
    data->SetCalibValue(12);
    data->SetSerialNumber("4711");
    data->SetCalibValue(35);
    data->SetFirmwareVersion("1.05");
    site_ = form_->AddControl("orvikKELD.XKELDData", "xdtData");
    form_->Show();
  }
  template <class Control>
  std::shared_ptr<Control> Find(const char* name) {
    return orvik::As<Control>(site_->Panel()->Find(name));
  }
  std::string Field(const char* name) { return Find<platform::ITextBox>(name)->Text(); }
  platform::IComboBox& Serial() { return *Find<platform::IComboBox>("cboSerial"); }
  std::shared_ptr<keld::instrument::XKELDData> Control() {
    return orvik::As<keld::instrument::XKELDData>(site_->Object());
  }

  support::HostOnly host_;
  const std::shared_ptr<platform::IForm> form_ = host_.Application().CreateForm("FTest");
  std::shared_ptr<platform::IContainerSite> site_;
};

TEST_F(XKELDDataTest, ShowsTheTesterAndOffersTheCalibratedOnes) {
  EXPECT_EQ(Serial().Text(), "4711");
  EXPECT_EQ(Serial().Items(), (std::vector<std::string>{"0815", "4711"}));
  EXPECT_EQ(Field("txtMTIType"), "KELD(IN)");
  EXPECT_EQ(Field("txtFwVer"), "1.05");
  EXPECT_EQ(Field("txtCalib"), "35");
}

TEST_F(XKELDDataTest, ItsLabelsAreTranslated) {
  EXPECT_EQ(Find<platform::ILabel>("lblSerial")->Caption(), "Serial number:");
  EXPECT_EQ(Find<platform::ILabel>("lblMTIType")->Caption(), "MTI Type:");
}

TEST_F(XKELDDataTest, OnlyTheSerialNumberCanBeEdited) {
  for (const char* name : {"txtMTIType", "txtFwVer", "txtCalib"}) {
    Find<platform::ITextBox>(name)->TypeOver("x");
    EXPECT_NE(Field(name), "x") << name;
  }
}

TEST_F(XKELDDataTest, ChoosingASerialNumberSelectsIt) {
  Serial().Choose(0);
  EXPECT_EQ(keld::instrument::CKELDData::Shared()->SerialNumber(), "0815");
  EXPECT_EQ(Serial().Text(), "0815");
  EXPECT_EQ(Field("txtCalib"), "12");
}

TEST_F(XKELDDataTest, TypedSerialNumberIsUsedWhenFocusIsLost) {
  Serial().SetFocus();
  Serial().TypeOver("new");
  EXPECT_EQ(keld::instrument::CKELDData::Shared()->SerialNumber(), "4711");
  Find<platform::ITextBox>("txtMTIType")->SetFocus();
  EXPECT_EQ(keld::instrument::CKELDData::Shared()->SerialNumber(), "new");
  EXPECT_EQ(Field("txtCalib"), "0");
}

TEST_F(XKELDDataTest, EmptiedBoxReverts) {
  for (const char* text : {"", "  "}) {
    Serial().SetFocus();
    Serial().TypeOver(text);
    Find<platform::ITextBox>("txtMTIType")->SetFocus();
    EXPECT_EQ(keld::instrument::CKELDData::Shared()->SerialNumber(), "4711");
    EXPECT_EQ(Serial().Text(), "4711");
  }
}

TEST_F(XKELDDataTest, RefreshShowsWhatHasChanged) {
  const auto data = keld::instrument::CKELDData::Shared();
  data->TakeIdentity(
      {std::string("type"), std::string("new"), std::string("2.0"), std::string(), std::string()});
  data->SetCalibValue(99);
  EXPECT_EQ(Serial().Text(), "4711");
  Control()->Refresh();
  EXPECT_EQ(Serial().Text(), "new");
  EXPECT_EQ(Serial().Items(), (std::vector<std::string>{"0815", "4711", "new"}));
  EXPECT_EQ(Field("txtMTIType"), "type");
  EXPECT_EQ(Field("txtFwVer"), "2.0");
  EXPECT_EQ(Field("txtCalib"), "99");
  data->SetCalibValue(100);
  Control()->Initialize(nullptr, {}, {}, {});
  EXPECT_EQ(Field("txtCalib"), "100");
}

TEST_F(XKELDDataTest, RefreshSetsNoSerialNumber) {
  keld::instrument::CKELDData::Shared()->SetSerialNumber("");
  Control()->Refresh();
  EXPECT_EQ(keld::instrument::CKELDData::Shared()->SerialNumber(), "");
  EXPECT_EQ(Serial().Text(), "");
}

TEST_F(XKELDDataTest, LockedControlIgnoresTheChoice) {
  Control()->SetLocked(true);
  EXPECT_TRUE(Control()->Locked());
  Serial().Choose(0);
  EXPECT_EQ(keld::instrument::CKELDData::Shared()->SerialNumber(), "4711");
  Control()->SetLocked(false);
  Serial().Choose(0);
  EXPECT_EQ(keld::instrument::CKELDData::Shared()->SerialNumber(), "0815");
}

TEST_F(XKELDDataTest, BackColorHandleAndVisibility) {
  Control()->SetBackColor(0x123456);
  EXPECT_EQ(Control()->BackColor(), 0x123456U);
  EXPECT_EQ(Find<platform::ILabel>("lblSerial")->BackColor(), 0x123456U);
  EXPECT_EQ(Control()->hWnd(), site_->Handle());
  Control()->SetVisible(false);
  EXPECT_FALSE(site_->Visible());
  EXPECT_FALSE(Control()->Visible());
}

TEST_F(XKELDDataTest, UnplacedControlDoesNothing) {
  const auto control = keld::instrument::XKELDData::Create();
  control->Refresh();
  control->SetFocus();
  control->SetLocked(true);
  EXPECT_EQ(control->hWnd(), 0U);
  EXPECT_FALSE(control->Visible());
  EXPECT_EQ(control->ClassID(), "orvikKELD.XKELDData");
}

}  // namespace
}  // namespace instrument_test
