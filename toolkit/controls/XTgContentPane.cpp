#include "toolkit/controls/XTgContentPane.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ICustomControl.h"
#include "OrvikTypeLib/ITestElement.h"
#include "platform/IPanel.h"

namespace toolkit::controls {

using orvik::Required;

namespace {

/// Makes the control fill the page.
void FillPage(orvik::platform::IPanel& page, const std::string& control) {
  orvik::platform::Grid grid;
  grid.rows = {{0, 1}};
  grid.columns = {{0, 1}};
  grid.cells = {{control, 0, 0}};
  page.SetGrid(grid);
}

}  // namespace

std::string XTgContentPane::IObject_ClassID() const { return orvik::HostClasses::kContentPane; }

void XTgContentPane::Build(orvik::platform::IPanel& panel) {
  guidance_ = panel.AddLabel("lblGuidance");
  guidance_->SetVisible(false);
  tabs_ = panel.AddTabs("tabPages");
  tabs_->SetVisible(false);
  orvik::platform::Grid grid;
  grid.rows = {{}, {0, 1}};
  grid.columns = {{0, 1}};
  grid.cells = {{"lblGuidance", 0, 0}, {"tabPages", 1, 0}};
  panel.SetGrid(grid);
}

void XTgContentPane::ITgContentPane_SetGuidance(const std::string& sText) {
  Required(guidance_).SetCaption(sText);
  guidance_->SetVisible(!sText.empty());
}

std::string XTgContentPane::ITgContentPane_Guidance() const { return Required(guidance_).Caption(); }

std::shared_ptr<orvik::IObject> XTgContentPane::ITgContentPane_AddTab(const std::string& sKey,
                                                                      const std::string& sCaption,
                                                                      const std::vector<std::byte>& Picture,
                                                                      const std::string& sClassID) {
  if (sites_.count(sKey) != 0)
    throw orvik::HostError(orvik::HostError::kInvalidArgument, orvik::HostClasses::kContentPane,
                           "the pane already has a tab \"" + sKey + "\"");
  auto page = Required(tabs_).Page(sKey);
  if (!page) page = tabs_->AddPage(sKey, sCaption);
  tabs_->SetPageBitmap(sKey, Picture);
  tabs_->SetVisible(true);
  const auto site = page->AddControl(sClassID, sKey);
  sites_[sKey] = site;
  FillPage(*page, sKey);
  return ITgContentPane_Tab(sKey);
}

std::shared_ptr<orvik::IObject> XTgContentPane::ITgContentPane_Tab(const std::string& sKey) const {
  const auto found = sites_.find(sKey);
  return found == sites_.end() ? nullptr : orvik::As<orvik::IObject>(found->second->Object());
}

void XTgContentPane::ITgContentPane_SetTestElement(std::shared_ptr<orvik::ITestElement> iteElement) {
  element_ = iteElement;
}

std::shared_ptr<orvik::ITestElement> XTgContentPane::ITgContentPane_TestElement() const {
  return element_.lock();
}

void XTgContentPane::ITgContentPane_Refresh() {
  const auto self = shared_from_this();
  Required(Site()->Panel()).Refresh();
  const auto sites = sites_;
  for (const auto& [key, site] : sites) {
    site->Refresh();
    if (const auto control = orvik::As<orvik::ICustomControl>(site->Object())) control->Refresh();
  }
}

}  // namespace toolkit::controls
