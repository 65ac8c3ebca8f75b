#pragma once

#include <QSize>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/Process.h"
#include "tests/support/TemporaryFolder.h"

class QPoint;
class QWidget;

namespace screen_test {

/// A display (Xvfb) with a window manager (openbox) on it, and mouse and keys, by xdotool. Both end
/// with this object. `DISPLAY` names it.
class Display {
 public:
  explicit Display(QSize size);
  Display(const Display&) = delete;
  Display& operator=(const Display&) = delete;

  /// Moves the mouse there and clicks; the place is one of the widget's own.
  static void Click(const QWidget& widget, QPoint place);
  static void Click(const QWidget& widget);
  /// Types the text where the keyboard is, as a scanner does.
  static void Type(const std::string& text);
  /// Presses a key, such as "Return".
  static void Press(const std::string& key);
  static void Minimise(const QWidget& window);
  /// Brings a window back, as a click into the list of windows does.
  static void Activate(const QWidget& window);

  /// The windows that the window manager shows, the lowest first.
  static std::vector<unsigned long> Stacking();
  /// Whether the window is on top of all others.
  static bool OnTop(const QWidget& window);
  /// The window that the other one belongs to; 0 for none.
  static unsigned long OwnerOf(const QWidget& window);

 private:
  static void Xdotool(std::vector<std::string> words);
  static std::string Property(std::vector<std::string> words);

  support::TemporaryFolder home_;
  std::unique_ptr<support::Process> server_;
  std::unique_ptr<support::Process> manager_;
};

}  // namespace screen_test
