#include "toolkit/controls/XLimitView.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ICallBack.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "toolkit/controls/ControlTexts.h"
#include "toolkit/controls/LimitBound.h"

namespace toolkit::controls {
namespace {

using orvik::Required;

void ShowBound(const LimitBound& bound, const std::vector<std::string>& units,
               orvik::platform::ITextBox& number, orvik::platform::IComboBox& unit) {
  number.SetText(bound.number);
  unit.ClearItems();
  for (const auto& item : units) unit.AddItem(item);
  unit.SetText(bound.unit);
}

/// Stores all or nothing. The old bounds are removed first: they may not fit the new nominal value.
void StoreBounds(orvik::ILimit& limit, const orvik::Variant& nominal, const std::string& low,
                 const std::string& high) {
  const orvik::Variant nominalBefore = limit.Nominal();
  const std::string lowBefore = limit.LowText();
  const std::string highBefore = limit.HighText();
  limit.SetBounds("", "");
  try {
    limit.SetNominal(nominal);
    limit.SetBounds(low, high);
  } catch (const orvik::HostError&) {
    limit.SetNominal(nominalBefore);
    limit.SetBounds(lowBefore, highBefore);
    throw;
  }
}

}  // namespace

std::string XLimitView::IObject_ClassID() const { return orvik::HostClasses::kLimitView; }

void XLimitView::Build(orvik::platform::IPanel& panel) {
  controls_ = LimitViewControls::Build(panel, [this](const std::string& text) { return Text(text); });
  ListenToControls();
  ShowBounds();
  controls_.SetLocked(locked_);
}

void XLimitView::ListenToControls() {
  const auto edited = [this] { OnEdited(); };
  for (const auto& box : {controls_.txtLow, controls_.txtHigh, controls_.txtNominal})
    subscriptions_.push_back(box->Changed().Subscribe(edited));
  for (const auto& box : {controls_.cboLowUnit, controls_.cboHighUnit})
    subscriptions_.push_back(box->Selected().Subscribe(edited));
  subscriptions_.push_back(controls_.lvwLimits->MouseUp().Subscribe(
      [this](const orvik::platform::MouseEvent&) { OnRowSelected(); }));
  subscriptions_.push_back(controls_.cmdApply->Clicked().Subscribe([this] { Store(); }));
  subscriptions_.push_back(controls_.cmdAdd->Clicked().Subscribe([this] { AddStandard(); }));
  subscriptions_.push_back(controls_.cmdRemove->Clicked().Subscribe([this] { RemoveStandard(); }));
}

void XLimitView::ICustomControl_SetCallBack(std::shared_ptr<orvik::ICallBack> CallBack) {
  callBack_ = std::move(CallBack);
}

orvik::WindowHandle XLimitView::ICustomControl_hWnd() const { return Required(Site()->Panel()).Handle(); }

void XLimitView::ICustomControl_SetLocked(bool fLocked) {
  locked_ = fLocked;
  if (controls_.lvwLimits) controls_.SetLocked(fLocked);
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
  ShowBounds();
}

void XLimitView::ICustomControl_Refresh() {
  FillList();
  if (!pending_) ShowBounds();
  Required(Site()->Panel()).Refresh();
}

void XLimitView::ICustomControl_SetFocus() { Required(controls_.lvwLimits).SetFocus(); }

void XLimitView::ILimitView_InitializeView(const std::string& sKey, const std::string& sCaption,
                                           const std::string& sUnit, const std::string& sAllowedUnits) {
  Required(controls_.lblCaption).SetCaption(sCaption);
  key_ = sKey;
  unit_ = sUnit;
  allowedUnits_ = sAllowedUnits;
  FillList();
  ShowBounds();
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
  // Input for a removed standard cannot be stored.
  if (shownRow_ != shown) pending_ = false;
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
  set(LimitColumns::kLow, limit ? BoundWithUnit(limit->LowText(), limit->Unit()) : "");
  set(LimitColumns::kHigh, limit ? BoundWithUnit(limit->HighText(), limit->Unit()) : "");
}

void XLimitView::ShowBounds() {
  const auto limit = LimitOf(shownRow_);
  // The limit's own unit, since the view's unit may have changed after the bounds were entered.
  const std::string unit = limit ? limit->Unit() : unit_;
  const auto units = UsableUnits(allowedUnits_, unit);
  showing_ = true;
  ShowBound(SplitBound(limit ? limit->LowText() : "", unit), units, *controls_.txtLow, *controls_.cboLowUnit);
  ShowBound(SplitBound(limit ? limit->HighText() : "", unit), units, *controls_.txtHigh,
            *controls_.cboHighUnit);
  controls_.txtNominal->SetText(limit ? orvik::TextOf(limit->Nominal()) : "");
  showing_ = false;
  pending_ = false;
  ShowMessage("");
}

void XLimitView::ShowMessage(const std::string& text) { controls_.lblMessage->SetCaption(text); }

void XLimitView::OnRowSelected() {
  const std::string selected = controls_.lvwLimits->SelectedRow();
  if (selected == shownRow_) return;
  if (!StorePending()) {
    controls_.lvwLimits->SelectRow(shownRow_);
    return;
  }
  controls_.lvwLimits->SelectRow(selected);
  shownRow_ = selected;
  ShowBounds();
}

void XLimitView::OnEdited() {
  if (showing_) return;
  pending_ = true;
  ShowMessage(Text(ControlTexts::kNotStored));
}

bool XLimitView::Store() {
  const auto self = shared_from_this();
  const auto reject = [this](const std::string& reason) {
    ShowMessage(reason);
    return false;
  };
  if (shownRow_.empty()) return reject(Text(ControlTexts::kNothingSelected));
  const auto limit = LimitOf(shownRow_);
  if (!limit) return reject(Text(ControlTexts::kNoLimit));

  // An unchanged number keeps the digits that are not shown.
  orvik::Variant nominal = limit->Nominal();
  const std::string nominalText = orvik::Trim(controls_.txtNominal->Text());
  if (nominalText != orvik::TextOf(nominal)) {
    const auto number = orvik::FiniteNumber(nominalText);
    if (!number && !nominalText.empty()) return reject(Text(ControlTexts::kNominalWrong));
    nominal = number ? orvik::Variant(*number) : orvik::Variant();
  }
  try {
    StoreBounds(*limit, nominal, JoinBound({controls_.txtLow->Text(), controls_.cboLowUnit->Text()}),
                JoinBound({controls_.txtHigh->Text(), controls_.cboHighUnit->Text()}));
  } catch (const orvik::HostError& error) {
    return reject(error.Description());
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
  const auto extended = data_->Standards();
  shownRow_ = std::to_string(extended ? extended->Count() : 0);
  FillList();
  ShowBounds();
  NotifyChange();
}

void XLimitView::RemoveStandard() {
  const auto self = shared_from_this();
  const auto standard = StandardOf(shownRow_);
  if (!standard) return ShowMessage(Text(ControlTexts::kNothingSelected));
  data_->Standards()->Remove(standard);
  FillList();
  ShowBounds();
  NotifyChange();
}

void XLimitView::NotifyChange() {
  if (const auto callBack = callBack_) callBack->Notify("Change");
}

std::shared_ptr<orvik::IStandard> XLimitView::StandardOf(const std::string& row) const {
  const auto standards = data_ ? data_->Standards() : nullptr;
  // The row key is the index of the standard.
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

}  // namespace toolkit::controls
