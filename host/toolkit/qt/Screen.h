#pragma once

#include <functional>
#include <memory>
#include <string>

class QWidget;

namespace orvik::platform {
class IControl;
class IForm;
}  // namespace orvik::platform

namespace bench::headless {
class Application;
}

namespace bench::qt {

/// What sizes the layout goes by.
enum class Measure {
  kFont,   ///< those of the screen's font and style
  kPlain,  ///< those that windows have without a screen
};

class WidgetMirror;

/// Shows the windows of an application on the real screen, and brings to them what the person does there. The
/// windows themselves decide everything; this mirrors their state. Needs a QApplication that lives longer.
/// When the screen goes, windows that are open vanish, and the application is without a screen again.
class Screen {
 public:
  explicit Screen(std::shared_ptr<headless::Application> application, Measure measure = Measure::kFont);
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  ~Screen();

  /// The widget of a form, to be shown inside a window of the host's own; the form is then no window of its
  /// own. It becomes visible with the form, and the form takes the size that the host's layout gives it. The
  /// screen keeps owning it: it vanishes when the form is unloaded.
  QWidget* Embed(const std::shared_ptr<orvik::platform::IForm>& form, QWidget* parent);
  /// The widget of a control that stands in a window which has been shown, or null.
  QWidget* WidgetOf(const orvik::platform::IControl& control) const;

  /// Names the host's own window. The application's windows stand above it, and never block it, not even
  /// modal ones: what it offers meanwhile, such as to stop what goes on, is for the host to say.
  void SetHostWindow(QWidget* window);

  /// Errors that handlers of windows, timers and ports throw end here. Without a handler they go to whoever
  /// processes messages.
  void SetErrorHandler(std::function<void(const std::string&)> handler);

  /// Shows now what has changed; otherwise that is done whenever messages are processed. False when it has to
  /// wait until what a person did has reached the windows.
  bool Update();

  /// Runs until `Quit`, sleeping in Qt; what waits inside (a modal form, a measurement) comes to its end
  /// first.
  void Exec();
  void Quit();

 private:
  std::unique_ptr<WidgetMirror> mirror_;
};

}  // namespace bench::qt
