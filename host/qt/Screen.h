#pragma once

#include <functional>
#include <memory>
#include <string>

class QWidget;

namespace toolkit::headless {
class Application;
}

namespace orvik::platform {
class IControl;
class IForm;
}  // namespace orvik::platform

namespace host::qt {

/// The sizes that the layout uses.
enum class Measure {
  kFont,   ///< of the screen's font and style
  kPlain,  ///< the same as without a screen
};

class WidgetMirror;

/// Shows the windows of an application on the real screen and forwards user actions to them. The windows
/// decide everything; this only mirrors their state. Needs a QApplication that lives longer. The destructor
/// removes open windows from the screen; the application continues without one.
class Screen {
 public:
  explicit Screen(std::shared_ptr<toolkit::headless::Application> application,
                  Measure measure = Measure::kFont);
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  ~Screen();

  /// Embeds a form as a widget in a window of the host. The widget is visible while the form is, and the form
  /// has the size that the host's layout sets. The screen owns the widget and deletes it when the form is
  /// unloaded.
  QWidget* Embed(const std::shared_ptr<orvik::platform::IForm>& form, QWidget* parent);
  /// The widget of a control in a window that has been shown, or null.
  QWidget* WidgetOf(const orvik::platform::IControl& control) const;

  /// Sets the host's own window. The application's windows are above it but never block it, not even modal
  /// ones, so that it can offer to stop a run.
  void SetHostWindow(QWidget* window);

  /// Sets the handler for errors of windows, timers and ports. Without one they are thrown to the caller that
  /// processes messages.
  void SetErrorHandler(std::function<void(const std::string&)> handler);

  /// Shows changes now instead of at the next message processing. False if user actions are still pending,
  /// which come first.
  bool Update();

  /// Runs until `Quit`, sleeping in Qt; nested waits (a modal form, a measurement) end first.
  void Exec();
  void Quit();

 private:
  std::unique_ptr<WidgetMirror> mirror_;
};

}  // namespace host::qt
