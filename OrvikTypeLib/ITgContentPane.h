#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

class ITestElement;

/// A pane with guidance text and tabs (control class "orvikTGCL2.XTgContentPane").
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class ITgContentPane : public virtual IObject {
 public:
  /// Shows a guidance text.
  void SetGuidance(const std::string& sText) { ITgContentPane_SetGuidance(sText); }
  /// The guidance text.
  std::string Guidance() const { return ITgContentPane_Guidance(); }
  /// Adds a tab with caption, bitmap and a control of the class; returns the control's object.
  std::shared_ptr<IObject> AddTab(const std::string& sKey, const std::string& sCaption,
                                  const std::vector<std::byte>& Picture, const std::string& sClassID) {
    return ITgContentPane_AddTab(sKey, sCaption, Picture, sClassID);
  }
  /// The object of the control on a tab, or empty.
  std::shared_ptr<IObject> Tab(const std::string& sKey) const { return ITgContentPane_Tab(sKey); }
  /// The element whose data the pane shows.
  void SetTestElement(std::shared_ptr<ITestElement> iteElement) {
    ITgContentPane_SetTestElement(std::move(iteElement));
  }
  /// That element, or empty.
  std::shared_ptr<ITestElement> TestElement() const { return ITgContentPane_TestElement(); }
  /// Repaints the pane and the controls on its tabs.
  void Refresh() { ITgContentPane_Refresh(); }

 private:
  virtual void ITgContentPane_SetGuidance(const std::string& sText) = 0;
  virtual std::string ITgContentPane_Guidance() const = 0;
  virtual std::shared_ptr<IObject> ITgContentPane_AddTab(const std::string& sKey, const std::string& sCaption,
                                                         const std::vector<std::byte>& Picture,
                                                         const std::string& sClassID) = 0;
  virtual std::shared_ptr<IObject> ITgContentPane_Tab(const std::string& sKey) const = 0;
  virtual void ITgContentPane_SetTestElement(std::shared_ptr<ITestElement> iteElement) = 0;
  virtual std::shared_ptr<ITestElement> ITgContentPane_TestElement() const = 0;
  virtual void ITgContentPane_Refresh() = 0;
};

}  // namespace orvik
