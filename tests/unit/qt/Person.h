#pragma once

#include <QTest>
#include <QWidget>
#include <QWindow>
#include <stdexcept>
#include <string>

namespace support {

/// What a user does at the screen. The events are sent to the window, as those of a real mouse: what is under
/// the pointer gets them, and what is blocked gets none.
namespace person {

inline void ClickAt(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton) {
  QWidget& window = *widget.window();
  QTest::mouseClick(window.windowHandle(), button, {}, widget.mapTo(&window, place));
}

inline void Click(QWidget& widget, Qt::MouseButton button = Qt::LeftButton) {
  ClickAt(widget, widget.rect().center(), button);
}

/// Presses a key where the window has its focus.
inline void Press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
  QTest::keyClick(window.windowHandle(), key, modifiers);
}

inline void Type(QWidget& widget, const std::string& text) {
  QTest::keyClicks(&widget, QString::fromStdString(text));
}

}  // namespace person

/// The widget of that name inside another; an error when there is none.
template <class Widget = QWidget>
Widget& Inner(const QWidget& outer, const std::string& name) {
  auto* found = outer.findChild<Widget*>(QString::fromStdString(name));
  if (!found) throw std::runtime_error("no widget " + name + " in " + outer.objectName().toStdString());
  return *found;
}

}  // namespace support
