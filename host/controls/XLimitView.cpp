#include "host/controls/XLimitView.h"

#include <algorithm>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ICallBack.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "host/controls/ControlTexts.h"
#include "host/controls/LimitBound.h"

namespace bench {
namespace {

using orvik::Required;

void ShowBound(const LimitBound& bound, orvik::platform::ITextBox& number, orvik::platform::IComboBox& unit) {
  number.SetText(bound.number);
  unit.SetSelectedIndex(-1);
  unit.SetText(bound.unit);
}

/// Stores all or nothing: what a bound refuses leaves the nominal value too.
void StoreBounds(orvik::ILimit& limit, const orvik::Variant& nominal, const std::string& low,
                 const std::string& high) {
  const orvik::Variant nominalBefore = limit.Nominal();
  try {
    limit.SetNominal(nominal);
    limit.SetBounds(low, high);
  } catch (const orvik::HostError&) {
    limit.SetNominal(nominalBefore);
    throw;
  }
}

}  // namespace

std::string XLimitView::IObject_ClassID() const { return orvik::HostClasses::kLimitView; }

void XLimitView::Build(orvik::platform::IPanel& panel) {
  controls_ = LimitViewControls::Build(panel, [this](const std::string& text) { return Text(text); });
  ListenToControls();
  FillUnits();
  controls_.SetLocked(locked_);
}

void XLimitView::ListenToControls() {
  const auto edited = [this] { Edited(); };
  for (const auto& box : {controls_.txtLow, controls_.txtHigh, controls_.txtNominal})
    subscriptions_.push_back(box->Changed().Subscribe(edited));
  for (const auto& box : {controls_.cboLowUnit, controls_.cboHighUnit})
    subscriptions_.push_back(box->Selected().Subscribe(edited));
  subscriptions_.push_back(
      controls_.lvwLimits->MouseUp().Subscribe([this](const orvik::platform::MouseEvent&) { RowPicked(); }));
  subscriptions_.push_back(controls_.cmdApply->Clicked().Subscribe([this] { Store(); }));
  subscriptions_.push_back(controls_.cmdAdd->Clicked().Subscribe([this] { AddStandard(); }));
  subscriptions_.push_back(controls_.cmdRemove->Clicked().Subscribe([this] { RemoveStandard(); }));
}

void XLimitView::ICustomControl_SetCallBack(std::shared_ptr<orvik::ICallBack> CallBack) {
  callBack_ = std::move(CallBack);
}

orvik::WindowHandle XLimitView::ICustomControl_hWnd() const { return Required(Site()->Panel()).Handle(); }

void XLimitView::ICustomControl_SetLocked(bool fLocked) {
  Required(controls_.lvwLimits);
  locked_ = fLocked;
  controls_.SetLocked(fLocked);
}

bool XLimitView::ICustomControl_Visible() const {
  return std::get<bool>(Site()->ExtenderProperty("Visible"));
}

void XLimitView::ICustomControl_SetVisible(bool fVisible) {
  Site()->SetExtenderProperty("Visible", fVisible);
}

void XLimitView::ICustomControl_Initialize(std::shared_ptr<orvik::IObject> Data, const orvik::Variant&,
                                           const orvik::Variant&, const orvik::Variant&) {
  data_ = orvik::As<orvik::ILimitData>(Data);
  shownRow_.clear();
  FillList();
}

void XLimitView::ICustomControl_Refresh() {
  FillList();
  Required(Site()->Panel()).Refresh();
}

void XLimitView::ICustomControl_SetFocus() { Required(controls_.lvwLimits).SetFocus(); }

void XLimitView::ILimitView_InitializeView(const std::string& sKey, const std::string& sCaption,
                                           const std::string& sUnit, const std::string& sAllowedUnits) {
  Required(controls_.lblCaption).SetCaption(sCaption);
  key_ = sKey;
  unit_ = sUnit;
  allowedUnits_ = sAllowedUnits;
  FillUnits();
  FillList();
}

void XLimitView::FillUnits() {
  showing_ = true;
  for (const auto& box : {controls_.cboLowUnit, controls_.cboHighUnit}) {
    box->ClearItems();
    for (const auto& unit : UsableUnits(allowedUnits_, unit_)) box->AddItem(unit);
  }
  showing_ = false;
}

void XLimitView::FillList() {
  const std::string shown = shownRow_;
  auto& list = Required(controls_.lvwLimits);
  list.ClearRows();
  const auto standards = data_ ? data_->Standards() : nullptr;
  const std::int32_t count = standards ? standards->Count() : 0;
  for (std::int32_t index = 1; index <= count; ++index) {
    const std::string row = std::to_string(index);
    list.AddRow(row);
    FillRow(row);
  }
  shownRow_ = list.HasRow(shown) ? shown : count > 0 ? "1" : "";
  if (!shownRow_.empty()) list.SelectRow(shownRow_);
  ShowBounds();
}

void XLimitView::FillRow(const std::string& row) {
  const auto standard = StandardOf(row);
  const auto limit = LimitOf(row);
  const auto set = [&](const char* column, const std::string& text) {
    orvik::platform::ListCell cell;
    cell.text = text;
    controls_.lvwLimits->SetCell(row, column, cell);
  };
  set(LimitColumns::kStandard, standard->Name());
  set(LimitColumns::kDescription, standard->Description());
  set(LimitColumns::kLow, limit ? limit->LowText() : "");
  set(LimitColumns::kHigh, limit ? limit->HighText() : "");
}

void XLimitView::ShowBounds() {
  const auto limit = LimitOf(shownRow_);
  showing_ = true;
  ShowBound(SplitBound(limit ? limit->LowText() : "", unit_), *controls_.txtLow, *controls_.cboLowUnit);
  ShowBound(SplitBound(limit ? limit->HighText() : "", unit_), *controls_.txtHigh, *controls_.cboHighUnit);
  controls_.txtNominal->SetText(limit ? orvik::TextOf(limit->Nominal()) : "");
  showing_ = false;
  pending_ = false;
  ShowMessage("");
}

void XLimitView::ShowMessage(const std::string& text) { controls_.lblMessage->SetCaption(text); }

void XLimitView::RowPicked() {
  const std::string picked = controls_.lvwLimits->SelectedRow();
  if (picked == shownRow_) return;
  if (!StorePending()) {
    controls_.lvwLimits->SelectRow(shownRow_);
    return;
  }
  controls_.lvwLimits->SelectRow(picked);
  shownRow_ = picked;
  ShowBounds();
}

void XLimitView::Edited() {
  if (showing_) return;
  pending_ = true;
  ShowMessage(Text(ControlTexts::kNotStored));
}

bool XLimitView::Store() {
  const auto self = shared_from_this();
  const auto refuse = [this](const std::string& reason) {
    ShowMessage(reason);
    return false;
  };
  if (shownRow_.empty()) return refuse(Text(ControlTexts::kNothingSelected));
  const auto limit = LimitOf(shownRow_);
  if (!limit) return refuse(Text(ControlTexts::kNoLimit));

  orvik::Variant nominal;
  if (!orvik::Trim(controls_.txtNominal->Text()).empty()) {
    const auto number = WholeNumber(controls_.txtNominal->Text());
    if (!number) return refuse(Text(ControlTexts::kNominalWrong));
    nominal = *number;
  }
  try {
    StoreBounds(*limit, nominal, JoinBound({controls_.txtLow->Text(), controls_.cboLowUnit->Text()}),
                JoinBound({controls_.txtHigh->Text(), controls_.cboHighUnit->Text()}));
  } catch (const orvik::HostError& error) {
    return refuse(error.Description());
  }
  FillRow(shownRow_);
  ShowBounds();
  NotifyChange();
  return true;
}

void XLimitView::AddStandard() {
  const auto self = shared_from_this();
  const std::string name = orvik::Trim(controls_.txtName->Text());
  const std::string description = orvik::Trim(controls_.txtDescription->Text());
  if (name.empty()) return ShowMessage(Text(ControlTexts::kNameMissing));
  if (!data_ || !StorePending()) return;
  const auto standards = data_->Standards();
  if (standards && standards->Find(name, description)) return ShowMessage(Text(ControlTexts::kNameTaken));
  try {
    data_->CreateStandard(name, description);
  } catch (const orvik::HostError& error) {
    return ShowMessage(error.Description());
  }
  controls_.txtName->SetText("");
  controls_.txtDescription->SetText("");
  const auto grown = data_->Standards();
  shownRow_ = std::to_string(grown ? grown->Count() : 0);
  FillList();
  NotifyChange();
}

void XLimitView::RemoveStandard() {
  const auto self = shared_from_this();
  const auto standard = StandardOf(shownRow_);
  if (!standard) return ShowMessage(Text(ControlTexts::kNothingSelected));
  data_->Standards()->Remove(standard);
  FillList();
  NotifyChange();
}

void XLimitView::NotifyChange() {
  if (const auto callBack = callBack_) callBack->Notify("Change");
}

std::shared_ptr<orvik::IStandard> XLimitView::StandardOf(const std::string& row) const {
  const auto standards = data_ ? data_->Standards() : nullptr;
  // Rows are numbered as the standards are.
  const auto index = static_cast<std::int32_t>(orvik::LeadingNumber(row));
  return standards && index >= 1 && index <= standards->Count() ? standards->item(index) : nullptr;
}

std::shared_ptr<orvik::ILimit> XLimitView::LimitOf(const std::string& row) const {
  const auto standard = StandardOf(row);
  const std::int32_t count = standard ? standard->LimitCount() : 0;
  for (std::int32_t index = 1; index <= count; ++index) {
    const auto limit = standard->Limit(index);
    if (limit && limit->Key() == key_) return limit;
  }
  return nullptr;
}

}  // namespace bench
