#pragma once

#include <memory>
#include <utility>

#include "OrvikTypeLib/IObject.h"
#include "OrvikTypeLib/Variant.h"
#include "OrvikTypeLib/WindowHandle.h"

namespace orvik {

class ICallBack;

/// The inner object of an embedded control that edits or shows the data of one element.
/// Operations whose work needs a host object may pass its error on (`HostError`).
///
/// Implemented by: the host and the plug-in. Mandatory. Since contract version 1. User-interface thread only.
class ICustomControl : public virtual IObject {
 public:
  /// The object that is notified of changes; empty if none is set.
  std::shared_ptr<ICallBack> CallBack() const { return ICustomControl_CallBack(); }
  /// Sets the object that is notified of changes; empty ends the notices.
  void SetCallBack(std::shared_ptr<ICallBack> CallBack) { ICustomControl_SetCallBack(std::move(CallBack)); }
  /// The control's own window; 0 when it is not placed in a window.
  WindowHandle hWnd() const { return ICustomControl_hWnd(); }
  /// Whether editing is locked.
  bool Locked() const { return ICustomControl_Locked(); }
  /// Locks or frees editing.
  void SetLocked(bool fLocked) { ICustomControl_SetLocked(fLocked); }
  /// Whether the container shows the control.
  bool Visible() const { return ICustomControl_Visible(); }
  /// Asks the container to show or hide the control.
  void SetVisible(bool fVisible) { ICustomControl_SetVisible(fVisible); }
  /// Gives the control the data object it works on, and three values whose meaning is the control's own.
  void Initialize(std::shared_ptr<IObject> Data, const Variant& v1, const Variant& v2, const Variant& v3) {
    ICustomControl_Initialize(std::move(Data), v1, v2, v3);
  }
  /// Repaints the control from its data.
  void Refresh() { ICustomControl_Refresh(); }
  /// Sets the focus to the control that the operator uses first.
  void SetFocus() { ICustomControl_SetFocus(); }

 private:
  virtual std::shared_ptr<ICallBack> ICustomControl_CallBack() const = 0;
  virtual void ICustomControl_SetCallBack(std::shared_ptr<ICallBack> CallBack) = 0;
  virtual WindowHandle ICustomControl_hWnd() const = 0;
  virtual bool ICustomControl_Locked() const = 0;
  virtual void ICustomControl_SetLocked(bool fLocked) = 0;
  virtual bool ICustomControl_Visible() const = 0;
  virtual void ICustomControl_SetVisible(bool fVisible) = 0;
  virtual void ICustomControl_Initialize(std::shared_ptr<IObject> Data, const Variant& v1, const Variant& v2,
                                         const Variant& v3) = 0;
  virtual void ICustomControl_Refresh() = 0;
  virtual void ICustomControl_SetFocus() = 0;
};

}  // namespace orvik
