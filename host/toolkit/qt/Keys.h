#pragma once

class QInputEvent;
class QKeyEvent;

namespace bench::qt {

/// The key as forms know it (`orvik::platform::Key`, letters and digits), 0 for any other.
int KeyOf(const QKeyEvent& event);
/// Shift 1, Ctrl 2, Alt 4.
int ShiftOf(const QInputEvent& event);

}  // namespace bench::qt
