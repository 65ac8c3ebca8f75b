#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/ITgContentPane.h"
#include "platform/Controls.h"
#include "toolkit/controls/HostControl.h"

namespace toolkit::controls {

/// The guidance text "lblGuidance" above the pages "tabPages"; each page has one control, named as the page's
/// key. Empty parts are hidden. Operations fail with `HostError` 91 until the control is placed.
class XTgContentPane final : public virtual orvik::ITgContentPane, public HostControl {
 public:
  using HostControl::HostControl;

 private:
  std::string IObject_ClassID() const override;
  void ITgContentPane_SetGuidance(const std::string& sText) override;
  std::string ITgContentPane_Guidance() const override;
  /// `HostError` 5 for an existing key. A page whose control could not be created stays empty; another call
  /// can fill it.
  std::shared_ptr<orvik::IObject> ITgContentPane_AddTab(const std::string& sKey, const std::string& sCaption,
                                                        const std::vector<std::byte>& Picture,
                                                        const std::string& sClassID) override;
  std::shared_ptr<orvik::IObject> ITgContentPane_Tab(const std::string& sKey) const override;
  void ITgContentPane_SetTestElement(std::shared_ptr<orvik::ITestElement> iteElement) override;
  std::shared_ptr<orvik::ITestElement> ITgContentPane_TestElement() const override;
  void ITgContentPane_Refresh() override;

  void Build(orvik::platform::IPanel& panel) override;

  std::shared_ptr<orvik::platform::ILabel> guidance_;
  std::shared_ptr<orvik::platform::ITabs> tabs_;
  std::map<std::string, std::shared_ptr<orvik::platform::IContainerSite>> sites_;
  // Weak: the element owns the window that owns this pane.
  std::weak_ptr<orvik::ITestElement> element_;
};

}  // namespace toolkit::controls
