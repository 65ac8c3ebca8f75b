#pragma once

#include <memory>
#include <string>

#include "platform/Types.h"

namespace orvik::platform {

/// Common to every control, panel and form. A panel creates it, owns it, and finds it by name.
///
/// Operations named after an action of the operator (`Click`, `Type`, `Choose`, `PressKey`, ...) have the
/// effect of that action, and none when the control is hidden, disabled or locked.
class IControl {
 public:
  IControl() = default;
  IControl(const IControl&) = delete;
  IControl& operator=(const IControl&) = delete;
  virtual ~IControl() = default;

  virtual std::string Name() const = 0;
  virtual WindowHandle Handle() const = 0;

  /// Caption of a label, button, frame, tab or form; empty for controls without one. "&" marks the access
  /// key.
  virtual std::string Caption() const = 0;
  virtual void SetCaption(const std::string& text) = 0;
  virtual std::string ToolTip() const = 0;
  virtual void SetToolTip(const std::string& text) = 0;

  /// Place inside the parent, in twips. Set by the panel's layout if it names the control.
  virtual Rect Bounds() const = 0;
  virtual void SetBounds(const Rect& bounds) = 0;

  virtual bool Visible() const = 0;
  virtual void SetVisible(bool visible) = 0;
  virtual bool Enabled() const = 0;
  virtual void SetEnabled(bool enabled) = 0;
  virtual Color BackColor() const = 0;
  virtual void SetBackColor(Color color) = 0;

  virtual void SetFocus() = 0;
  virtual bool HasFocus() const = 0;

  /// Repaints; `RefreshCount` counts the calls.
  virtual void Refresh() = 0;
  virtual int RefreshCount() const = 0;
};

}  // namespace orvik::platform
