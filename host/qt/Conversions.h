#pragma once

#include <QColor>
#include <QPixmap>
#include <QString>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Types.h"

class QInputEvent;
class QKeyEvent;
class QPalette;

/// Conversions between Qt's types and those of the toolkit.
namespace host::qt {

/// UTF-8 to Qt and back.
QString ToQt(std::string_view text);
std::string FromQt(const QString& text);

/// A caption for widgets that mark access keys: "&" before a letter or digit marks one, any other "&" is
/// shown.
QString WithAccessKey(std::string_view caption);
/// A caption without its marks, for widgets that show text as it is.
QString WithoutAccessKey(std::string_view caption);
/// A tool tip that shows `text` literally, never as markup.
QString PlainToolTip(std::string_view text);

/// A colour of the toolkit; system colours are those of the palette.
QColor ToQt(orvik::platform::Color color, const QPalette& palette);

/// The picture in the bytes of a bitmap file; null if they are not a bitmap.
QPixmap PictureOf(const std::vector<std::byte>& bitmap);

/// The key as forms know it (`orvik::platform::Key`, letters and digits), 0 for any other.
int KeyOf(const QKeyEvent& event);
/// Shift 1, Ctrl 2, Alt 4.
int ShiftOf(const QInputEvent& event);

}  // namespace host::qt
