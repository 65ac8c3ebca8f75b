#include "results/XKELDResultView.h"

#include <any>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Codes.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/ITestElement.h"
#include "platform/IContainerSite.h"
#include "plugin/base/ClassIdentifiers.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MKELDLanguageConstants.h"
#include "results/ElementName.h"
#include "results/ShownLimits.h"

namespace keld::results {

using orvik::Required;
using orvik::platform::Alignment;

namespace {

constexpr char kListName[] = "lvwResults";
constexpr char kNameColumn[] = "NAM";
constexpr char kValueColumn[] = "VAL";
constexpr char kHighColumn[] = "HIL";
constexpr char kLowColumn[] = "LOL";

// Weak: an element holds the guide that contains this list.
using ElementTag = std::weak_ptr<orvik::ITestElement>;
using MeasurementTag = std::shared_ptr<orvik::IMeasurement>;

std::string RowKey(const orvik::ITestElement& iteElement) { return std::to_string(iteElement.ID()) + "::"; }

std::string ValueText(const orvik::IMeasurement& Measurement) {
  if (Measurement.Flags().find('O') != std::string::npos)
    return MKELDGlobalVars::Translated(MKELDLanguageConstants::kOverload);
  return orvik::FormatValue(Measurement.value(), Measurement.ValueFormat()) + "  " + Measurement.Unit();
}

/// An empty text is written as a single blank.
orvik::platform::ListCell CellWith(const std::string& sText) {
  orvik::platform::ListCell Cell;
  Cell.text = sText.empty() ? " " : sText;
  return Cell;
}

template <class Tag>
Tag TagOf(const std::any& Held) {
  const auto* Found = std::any_cast<Tag>(&Held);
  return Found ? *Found : Tag();
}

}  // namespace

std::shared_ptr<XKELDResultView> XKELDResultView::Create() { return std::make_shared<XKELDResultView>(); }

std::string XKELDResultView::IObject_ClassID() const { return ClassIdentifiers::kResultView; }

void XKELDResultView::AttachTo(const std::shared_ptr<orvik::platform::IContainerSite>& site) {
  const auto Panel = Required(site).Panel();
  lvwResults = Required(Panel).AddListView(kListName);
  ShowLimitsInRow();
  mResized = Panel->Resized().Subscribe([this, Weak = std::weak_ptr(Panel)] { FillPanel(Weak); });
  FillPanel(Panel);
  mListMouseUp = lvwResults->MouseUp().Subscribe([this](const orvik::platform::MouseEvent& Mouse) {
    const auto Self = shared_from_this();
    mMouseUp.Raise(Mouse.button, Mouse.shift, Mouse.x, Mouse.y);
  });
}

// By hand: a layout would not make the list narrower than its columns.
void XKELDResultView::FillPanel(const std::weak_ptr<orvik::platform::IPanel>& Panel) {
  const orvik::platform::Size Inner = Required(Panel)->InnerSize();
  List().SetBounds({0, 0, Inner.width, Inner.height});
}

orvik::platform::IListView& XKELDResultView::List() const { return Required(lvwResults); }

void XKELDResultView::ShowLimitsInRow() {
  auto& Results = List();
  if (!Results.Columns().empty()) return;
  const auto AddColumn = [&Results](const char* sKey, const char* sCaption, orvik::platform::Twips lWidth,
                                    Alignment eAlignment) {
    Results.AddColumn({sKey, MKELDGlobalVars::Translated(sCaption), lWidth, eAlignment});
  };
  Results.SetVisible(false);
  AddColumn(kNameColumn, MKELDLanguageConstants::kKELDTest, 4500, Alignment::kLeft);
  AddColumn(kValueColumn, MKELDLanguageConstants::kValue, 1500, Alignment::kRight);
  AddColumn(kHighColumn, MKELDLanguageConstants::kHighLimit, 1000, Alignment::kRight);
  AddColumn(kLowColumn, MKELDLanguageConstants::kLowLimit, 1000, Alignment::kRight);
  Results.SetVisible(true);
}

void XKELDResultView::ClearDisplay() { List().ClearRows(); }

void XKELDResultView::SelectStandard(const std::string& sName, const std::string& sText) {
  sStandardName = sName;
  sStandardText = sText;
  for (const std::string& sRow : List().RowKeys()) FillLimitCells(sRow);
}

void XKELDResultView::ShowResult(const std::shared_ptr<orvik::ITestElement>& iteElement) {
  const auto Result = Required(iteElement).Result();
  const auto Measurement = Result ? Result->Measurement(1) : nullptr;
  if (!Measurement) return;
  const std::string sValue = ValueText(*Measurement);
  const std::string sRow = RowKey(*iteElement);
  if (List().HasRow(sRow)) {
    ReplaceValue(sRow, sValue);
  } else {
    AddRow(sRow, iteElement, sValue, Measurement);
  }
  StyleRow(sRow, Measurement->Status() == orvik::MeasurementStatus::kFailed);
  List().EnsureVisible(sRow);
  List().Refresh();
  List().SelectRow(sRow);
}

void XKELDResultView::AddRow(const std::string& sRow, const std::shared_ptr<orvik::ITestElement>& iteElement,
                             const std::string& sValue,
                             const std::shared_ptr<orvik::IMeasurement>& Measurement) {
  auto& Results = List();
  Results.AddRow(sRow);
  Results.SetRowTag(sRow, ElementTag(iteElement));
  Results.SetCell(sRow, kNameColumn, CellWith(ElementName(*iteElement)));
  auto Value = CellWith(sValue);
  Value.tag = MeasurementTag(Measurement);
  Results.SetCell(sRow, kValueColumn, Value);
  Results.SetCell(sRow, kHighColumn, CellWith(" "));
  Results.SetCell(sRow, kLowColumn, CellWith(" "));
  FillLimitCells(sRow);
}

// Only the text: the cell keeps the measurement that its row was created with.
void XKELDResultView::ReplaceValue(const std::string& sRow, const std::string& sValue) {
  auto Value = List().Cell(sRow, kValueColumn);
  Value.text = sValue;
  List().SetCell(sRow, kValueColumn, Value);
}

void XKELDResultView::StyleRow(const std::string& sRow, bool fFailed) {
  for (const char* sColumn : {kNameColumn, kValueColumn, kHighColumn, kLowColumn}) {
    auto Cell = List().Cell(sRow, sColumn);
    Cell.bold = fFailed;
    Cell.color = fFailed ? orvik::platform::kRed : orvik::platform::kWindowText;
    List().SetCell(sRow, sColumn, Cell);
  }
}

void XKELDResultView::FillLimitCells(const std::string& sRow) {
  const auto iteElement = TagOf<ElementTag>(List().RowTag(sRow)).lock();
  const auto Measurement = TagOf<MeasurementTag>(List().Cell(sRow, kValueColumn).tag);
  const ShownLimits Shown = LimitsOf(iteElement.get(), Measurement.get(), sStandardName, sStandardText);
  const auto Fill = [&](const char* sColumn, const std::string& sText) {
    auto Cell = List().Cell(sRow, sColumn);
    Cell.text = sText;
    Cell.toolTip = sStandardText;
    List().SetCell(sRow, sColumn, Cell);
  };
  Fill(kHighColumn, Shown.sHigh);
  Fill(kLowColumn, Shown.sLow);
}

}  // namespace keld::results
