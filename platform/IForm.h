#pragma once

#include <memory>

#include "platform/Event.h"
#include "platform/IPanel.h"

namespace orvik::platform {

/// A window. Created hidden and not loaded; its creator owns it, and while it is loaded the
/// application holds it too.
class IForm : public virtual IPanel {
 public:
  /// Makes the window ready; loading twice changes nothing. `Show` and `ShowModal` load it if
  /// necessary.
  virtual void Load() = 0;
  virtual bool Loaded() const = 0;
  /// Shows the window without waiting, and activates it.
  virtual void Show() = 0;
  /// Shows the window and processes messages until it is hidden or unloaded; other windows ignore the
  /// operator meanwhile.
  virtual void ShowModal(const std::shared_ptr<IForm>& owner) = 0;
  virtual void Hide() = 0;
  /// Hides the window, raises `Unloading` and releases it. Unloading twice changes nothing.
  virtual void Unload() = 0;

  virtual bool Active() const = 0;
  virtual bool Topmost() const = 0;
  /// Keeps the window above all others that are not topmost; place and size stay.
  virtual void SetTopmost(bool topmost) = 0;
  /// The form sees keys before the control that has the focus.
  virtual bool KeyPreview() const = 0;
  virtual void SetKeyPreview(bool preview) = 0;

  /// The form has become the active window.
  virtual Event<>& Activated() = 0;
  /// The form itself, not one of its controls, got the focus.
  virtual Event<>& GotFocus() = 0;
  /// A key was pressed and the form previews keys: key code, shift state.
  virtual Event<int, int>& KeyDown() = 0;
  /// The operator asks for the window to be closed; a handler that sets the argument keeps it open, else it
  /// is unloaded.
  virtual Event<bool&>& CloseRequested() = 0;
  virtual Event<>& Unloading() = 0;

  /// Makes the window the active one, as a click on its title does.
  virtual void Activate() = 0;
  virtual void PressKey(int key, int shift) = 0;
  /// Closes the window by the cross in its title bar.
  virtual void Close() = 0;
  /// Drags the window's border.
  virtual void Resize(Size inner) = 0;
};

}  // namespace orvik::platform
