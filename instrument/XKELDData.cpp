#include "instrument/XKELDData.h"

#include <utility>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Conversions.h"
#include "instrument/CKELDData.h"
#include "platform/IPanel.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/ClassIdentifiers.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MKELDLanguageConstants.h"

namespace keld::instrument {

namespace platform = orvik::platform;

namespace {

constexpr platform::Twips kFieldWidth = 2400;

platform::Grid LabelsAndFields() {
  platform::Grid grid;
  grid.rows = {{}, {}, {}, {}};
  grid.columns = {{}, {kFieldWidth, 1}};
  grid.cells = {{"lblSerial", 0, 0}, {"cboSerial", 0, 1}, {"lblMTIType", 1, 0}, {"txtMTIType", 1, 1},
                {"lblFwVer", 2, 0},  {"txtFwVer", 2, 1},  {"lblCalib", 3, 0},   {"txtCalib", 3, 1}};
  return grid;
}

}  // namespace

std::shared_ptr<XKELDData> XKELDData::Create() { return std::shared_ptr<XKELDData>(new XKELDData); }

std::string XKELDData::IObject_ClassID() const { return ClassIdentifiers::kDataControl; }

void XKELDData::AttachTo(const std::shared_ptr<platform::IContainerSite>& site) {
  mSite = site;
  const auto panel = site->Panel();
  AddControls(*panel);
  panel->SetGrid(LabelsAndFields());
  MKELDGlobalVars::TranslateCaptions(panel);

  // The handler keeps the control alive, because a new serial number may release it.
  const auto Take = [this, Weak = weak_from_this()] {
    if (const auto Self = Weak.lock()) TakeSerialNumber();
  };
  // Typing clears the selection; the typed text is used when the box loses the focus.
  mSelectedSubscription = cboSerial->Selected().Subscribe([this, Take] {
    if (cboSerial->SelectedIndex() >= 0) Take();
  });
  mLostFocusSubscription = cboSerial->LostFocus().Subscribe(Take);
  ShowData();
}

void XKELDData::AddControls(platform::IPanel& panel) {
  panel.AddLabel("lblSerial")->SetCaption(MKELDLanguageConstants::kSerialNumber);
  cboSerial = panel.AddComboBox("cboSerial");
  cboSerial->SetEditable(true);

  panel.AddLabel("lblMTIType")->SetCaption(MKELDLanguageConstants::kMtiType);
  txtMTIType = panel.AddTextBox("txtMTIType");
  panel.AddLabel("lblFwVer")->SetCaption(MKELDLanguageConstants::kFirmwareVersion);
  txtFwVer = panel.AddTextBox("txtFwVer");
  panel.AddLabel("lblCalib")->SetCaption(MKELDLanguageConstants::kLeadCalibration);
  txtCalib = panel.AddTextBox("txtCalib");
  for (const auto& field : {txtMTIType, txtFwVer, txtCalib}) field->SetLocked(true);
}

void XKELDData::ShowData() {
  if (!cboSerial) return;
  const auto Data = CKELDData::Shared();
  mfFilling = true;
  Attempt([&] {
    cboSerial->ClearItems();
    for (const auto& sSerialNumber : Data->CalibratedSerialNumbers()) cboSerial->AddItem(sSerialNumber);
  });
  Attempt([&] { cboSerial->SetText(Data->SerialNumber()); });
  mfFilling = false;
  Attempt([&] { txtMTIType->SetText(Data->MTIType()); });
  Attempt([&] { txtFwVer->SetText(Data->FirmwareVersion()); });
  Attempt([&] { txtCalib->SetText(std::to_string(Data->CalibValue())); });
}

void XKELDData::TakeSerialNumber() {
  if (mfFilling) return;
  const std::string sEntered = cboSerial->Text();
  const auto Data = CKELDData::Shared();
  if (!orvik::Trim(sEntered).empty() && sEntered != Data->SerialNumber()) Data->SetSerialNumber(sEntered);
  ShowData();
}

platform::Color XKELDData::BackColor() const {
  const auto site = mSite.lock();
  return site ? site->Panel()->BackColor() : platform::kButtonFace;
}

void XKELDData::SetBackColor(platform::Color color) {
  const auto site = mSite.lock();
  if (!site) return;
  site->Panel()->SetBackColor(color);
  for (const auto& control : site->Panel()->Controls())
    if (const auto label = orvik::As<platform::ILabel>(control)) label->SetBackColor(color);
}

void XKELDData::ICustomControl_SetCallBack(std::shared_ptr<orvik::ICallBack> CallBack) {
  mCallBack = std::move(CallBack);
}

orvik::WindowHandle XKELDData::ICustomControl_hWnd() const {
  const auto site = mSite.lock();
  return site ? site->Handle() : 0;
}

void XKELDData::ICustomControl_SetLocked(bool fLocked) {
  mfLocked = fLocked;
  if (cboSerial) cboSerial->SetEnabled(!fLocked);
}

bool XKELDData::ICustomControl_Visible() const {
  const auto site = mSite.lock();
  return site && site->Visible();
}

void XKELDData::ICustomControl_SetVisible(bool fVisible) {
  if (const auto site = mSite.lock()) site->SetVisible(fVisible);
}

void XKELDData::ICustomControl_Initialize(std::shared_ptr<orvik::IObject> /*Data*/,
                                          const orvik::Variant& /*v1*/, const orvik::Variant& /*v2*/,
                                          const orvik::Variant& /*v3*/) {
  ShowData();
}

void XKELDData::ICustomControl_Refresh() {
  ShowData();
  if (const auto site = mSite.lock()) site->Panel()->Refresh();
}

void XKELDData::ICustomControl_SetFocus() {
  if (cboSerial) cboSerial->SetFocus();
}

}  // namespace keld::instrument
