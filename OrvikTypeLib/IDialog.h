#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "OrvikTypeLib/IObject.h"
#include "OrvikTypeLib/Variant.h"
#include "OrvikTypeLib/WindowHandle.h"

namespace orvik {

class ICallBack;

/// The frame through which a set-up control reaches the host: a window of its own, or docked into one of the
/// host's.
///
/// Implemented by: the plug-in. Mandatory. Since contract version 1. User-interface thread only.
class IDialog : public virtual IObject {
 public:
  /// The inner control's call-back object.
  std::shared_ptr<ICallBack> CallBack() const { return IDialog_CallBack(); }
  /// Sets the inner control's call-back object.
  void SetCallBack(std::shared_ptr<ICallBack> CallBack) { IDialog_SetCallBack(std::move(CallBack)); }
  /// True once `Dock` has been given a window.
  bool IsDocked() const { return IDialog_IsDocked(); }
  /// Whether the inner control is locked.
  bool Locked() const { return IDialog_Locked(); }
  /// Locks or frees the inner control.
  void SetLocked(bool fLocked) { IDialog_SetLocked(fLocked); }
  /// Makes the host window `hParent` the parent of the inner control's window; 0 does nothing.
  void Dock(WindowHandle hParent) { IDialog_Dock(hParent); }
  /// Returns the inner control's window to the dialog.
  void UnDock() { IDialog_UnDock(); }
  /// Hides the control (docked) or the form.
  void Hide() { IDialog_Hide(); }
  /// Shows the docked control; a form that is not docked is shown by the host's own window handling.
  void Show() { IDialog_Show(); }
  /// Moves the control (docked) or the form; twips.
  void Move(std::int32_t lLeft, std::int32_t lTop, std::int32_t lWidth, std::int32_t lHeight) {
    IDialog_Move(lLeft, lTop, lWidth, lHeight);
  }
  /// Repaints the inner control.
  void Refresh() { IDialog_Refresh(); }
  /// Sets the focus to the inner control.
  void SetFocus() { IDialog_SetFocus(); }
  /// Passes the data object and three values to the inner control.
  void Initialize(std::shared_ptr<IObject> Data, const Variant& v1, const Variant& v2, const Variant& v3) {
    IDialog_Initialize(std::move(Data), v1, v2, v3);
  }
  /// Ends the dialog; a docked control is returned to the form first.
  void Unload() { IDialog_Unload(); }

 private:
  virtual std::shared_ptr<ICallBack> IDialog_CallBack() const = 0;
  virtual void IDialog_SetCallBack(std::shared_ptr<ICallBack> CallBack) = 0;
  virtual bool IDialog_IsDocked() const = 0;
  virtual bool IDialog_Locked() const = 0;
  virtual void IDialog_SetLocked(bool fLocked) = 0;
  virtual void IDialog_Dock(WindowHandle hParent) = 0;
  virtual void IDialog_UnDock() = 0;
  virtual void IDialog_Hide() = 0;
  virtual void IDialog_Show() = 0;
  virtual void IDialog_Move(std::int32_t lLeft, std::int32_t lTop, std::int32_t lWidth,
                            std::int32_t lHeight) = 0;
  virtual void IDialog_Refresh() = 0;
  virtual void IDialog_SetFocus() = 0;
  virtual void IDialog_Initialize(std::shared_ptr<IObject> Data, const Variant& v1, const Variant& v2,
                                  const Variant& v3) = 0;
  virtual void IDialog_Unload() = 0;
};

}  // namespace orvik
