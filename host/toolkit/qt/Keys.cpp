#include "host/toolkit/qt/Keys.h"

#include <QKeyEvent>

#include "platform/Types.h"

namespace bench::qt {

int KeyOf(const QKeyEvent& event) {
  const int key = event.key();
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return orvik::platform::kKeyReturn;
    case Qt::Key_Escape:
      return orvik::platform::kKeyEscape;
    case Qt::Key_Space:
      return orvik::platform::kKeySpace;
    default:
      break;
  }
  const bool letterOrDigit = (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
  return letterOrDigit ? key : 0;
}

int ShiftOf(const QInputEvent& event) {
  const auto modifiers = event.modifiers();
  return (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0) |
         (modifiers & Qt::AltModifier ? 4 : 0);
}

}  // namespace bench::qt
