#pragma once

#include <memory>
#include <string>
#include <utility>

#include "platform/IControl.h"

namespace toolkit::headless {

namespace platform = orvik::platform;

class Desktop;
class Form;
class IMetrics;
class Panel;

/// The base of all windows of the headless toolkit: state, bounds, focus, and whether the operator can use
/// them.
class Control : public virtual platform::IControl, public std::enable_shared_from_this<Control> {
 public:
  Control(std::shared_ptr<Desktop> desktop, std::string name);
  ~Control() override;

  std::string Name() const override { return name_; }
  platform::WindowHandle Handle() const override { return handle_; }
  std::string Caption() const override { return caption_; }
  void SetCaption(const std::string& text) override;
  std::string ToolTip() const override { return toolTip_; }
  void SetToolTip(const std::string& text) override;
  platform::Rect Bounds() const override { return bounds_; }
  void SetBounds(const platform::Rect& bounds) override;
  bool Visible() const override { return visible_; }
  void SetVisible(bool visible) override;
  bool Enabled() const override { return enabled_; }
  void SetEnabled(bool enabled) override;
  platform::Color BackColor() const override { return backColor_; }
  void SetBackColor(platform::Color color) override;
  /// Does nothing if the control cannot have the focus, is hidden or disabled.
  void SetFocus() override;
  bool HasFocus() const override;
  void Refresh() override { ++refreshCount_; }
  int RefreshCount() const override { return refreshCount_; }

  /// The size that shows everything, for the layout.
  virtual platform::Size NaturalSize() const = 0;
  /// The natural size, or 0 by 0 while the control is hidden.
  platform::Size LayoutSize() const { return visible_ ? NaturalSize() : platform::Size{}; }
  /// Puts the control on the panel.
  void PlaceOn(const std::shared_ptr<Panel>& panel);
  /// The panel that owns the control and lays it out.
  std::shared_ptr<Panel> Container() const { return container_.lock(); }
  /// The window that it is shown in, or empty.
  std::shared_ptr<Control> ParentWindow() const { return parent_.lock(); }
  void SetParentWindow(const std::shared_ptr<Control>& parent);
  /// The form in which the control is shown, or empty.
  virtual std::shared_ptr<Form> TopForm();

  /// Visible and enabled up to its form; the form's own state does not matter.
  bool Usable() const;
  /// Whether the operator can see and use it now.
  virtual bool AcceptsInput();
  /// Whether the operator's actions and `SetFocus` move the focus to it.
  virtual bool CanFocus() const { return false; }
  virtual void FocusArrived() {}
  virtual void FocusLeft() {}
  /// Handles a key that was pressed while the control has the focus.
  virtual void KeyPressed(int key, int shift);
  /// The natural size of something inside has changed.
  virtual void InnerSizeChanged();
  /// The form is unloaded: stops timers and undocks windows.
  virtual void Stop() {}
  /// Notifies the screen, if there is one, that the control has changed.
  void NotifyChanged();

 protected:
  /// Starts an action of the operator; false if the control cannot be used. Activates the form and moves the
  /// focus here first, as a click does.
  bool BeginAction();
  /// Makes a change, notifies the screen, and updates the layout if the natural size has changed.
  template <class Change>
  void Apply(Change&& change) {
    const auto before = LayoutSize();
    std::forward<Change>(change)();
    NotifyChanged();
    if (LayoutSize() != before) InnerSizeChanged();
  }
  virtual void BoundsChanged(const platform::Rect& /*old*/) {}
  Desktop& GetDesktop() const { return *desktop_; }
  const IMetrics& Metrics() const;
  std::shared_ptr<Desktop> SharedDesktop() const { return desktop_; }

  bool visible_ = true;
  bool enabled_ = true;
  platform::Color backColor_ = platform::kButtonFace;

 private:
  void LoseFocusWhenUnusable();

  std::shared_ptr<Desktop> desktop_;
  std::string name_;
  platform::WindowHandle handle_;
  std::weak_ptr<Panel> container_;
  std::weak_ptr<Control> parent_;
  std::string caption_;
  std::string toolTip_;
  platform::Rect bounds_;
  int refreshCount_ = 0;
};

/// Throws a `HostError` of the toolkit.
[[noreturn]] void Fail(std::int32_t number, const std::string& description);

}  // namespace toolkit::headless
