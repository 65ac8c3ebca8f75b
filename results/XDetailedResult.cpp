#include "results/XDetailedResult.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IResultData.h"
#include "platform/Controls.h"
#include "platform/IContainerSite.h"
#include "plugin/base/ClassIdentifiers.h"
#include "plugin/base/MKELDConstants.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MKELDLanguageConstants.h"

namespace keld::results {

using orvik::As;
using orvik::Required;
using orvik::platform::Twips;

namespace {

constexpr char kTitleName[] = "lblTitle";
constexpr char kCommentName[] = "txtComment";
constexpr Twips kTitleLeft = 120;
constexpr Twips kTitleHeight = 315;

/// The text box fills the space below the title; the title is placed by hand, exact to the twip.
orvik::platform::Grid BelowTitle() {
  orvik::platform::Grid grid;
  grid.rows = {{kTitleHeight, 0}, {1500, 1}};
  grid.columns = {{3000, 1}};
  grid.cells = {{kCommentName, 1, 0}};
  grid.margin = 0;
  grid.gap = 0;
  return grid;
}

bool AsBoolean(const orvik::platform::IContainerSite::Value& Property) {
  if (const auto* pfValue = std::get_if<bool>(&Property)) return *pfValue;
  if (const auto* pnValue = std::get_if<int>(&Property)) return *pnValue != 0;
  throw orvik::HostError(orvik::HostError::kTypeMismatch, MKELDConstants::kPlugInID,
                         "the container's property is no Boolean");
}

}  // namespace

std::shared_ptr<XDetailedResult> XDetailedResult::Create() { return std::make_shared<XDetailedResult>(); }

std::string XDetailedResult::IObject_ClassID() const { return ClassIdentifiers::kDetailedResult; }

void XDetailedResult::AttachTo(const std::shared_ptr<orvik::platform::IContainerSite>& site) {
  mSite = site;
  const auto Panel = Required(site).Panel();
  lblTitle = Required(Panel).AddLabel(kTitleName);
  lblTitle->SetCaption(MKELDLanguageConstants::kComment);
  txtComment = Panel->AddTextBox(kCommentName);
  txtComment->SetMultiLine(true);
  MKELDGlobalVars::TranslateCaptions(Panel);
  Panel->SetGrid(BelowTitle());
  mResized = Panel->Resized().Subscribe([this] { PlaceTitle(); });
  PlaceTitle();
}

void XDetailedResult::PlaceTitle() {
  const Twips lWidth = Required(Required(mSite)->Panel()).InnerSize().width - kTitleLeft;
  if (lWidth < 0) return;
  lblTitle->SetBounds({kTitleLeft, 0, lWidth, kTitleHeight});
}

orvik::WindowHandle XDetailedResult::ICustomControl_hWnd() const {
  const auto Site = mSite.lock();
  return Site ? Site->Handle() : 0;
}

// Misspelt on purpose: a container without such a property reports its own error.
bool XDetailedResult::ICustomControl_Visible() const {
  return AsBoolean(Required(mSite)->ExtenderProperty("Visbible"));
}

void XDetailedResult::ICustomControl_SetVisible(bool fVisible) {
  Required(mSite)->SetExtenderProperty("Visible", fVisible);
}

void XDetailedResult::ICustomControl_Initialize(std::shared_ptr<orvik::IObject> Data, const orvik::Variant&,
                                                const orvik::Variant&, const orvik::Variant&) {
  const auto Result = As<orvik::IResultData>(Data);
  auto& Comment = Required(txtComment);
  Comment.SetText(Required(Result).Comment());
  Comment.SetLocked(true);
  Comment.SetBackColor(orvik::platform::kButtonFace);
}

void XDetailedResult::ICustomControl_Refresh() { Required(Required(mSite)->Panel()).Refresh(); }

void XDetailedResult::ICustomControl_SetFocus() { Required(txtComment).SetFocus(); }

}  // namespace keld::results
