#include "host/qt/Conversions.h"

#include <QKeyEvent>
#include <QPalette>
#include <QTextDocument>

namespace host::qt {
namespace {

namespace platform = orvik::platform;

enum class Marks { kKept, kDropped };

QString WithMarks(std::string_view caption, Marks marks) {
  const QString text = ToQt(caption);
  QString shown;
  for (qsizetype index = 0; index < text.size(); ++index) {
    if (text[index] != u'&') {
      shown += text[index];
      continue;
    }
    const QChar next = index + 1 < text.size() ? text[index + 1] : QChar();
    if (next.isLetterOrNumber()) {
      if (marks == Marks::kKept) shown += u'&';
      continue;
    }
    shown += marks == Marks::kKept ? QStringLiteral("&&") : QStringLiteral("&");
    if (next == u'&') ++index;
  }
  return shown;
}

}  // namespace

QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string FromQt(const QString& text) { return text.toStdString(); }

QString WithAccessKey(std::string_view caption) { return WithMarks(caption, Marks::kKept); }

QString WithoutAccessKey(std::string_view caption) { return WithMarks(caption, Marks::kDropped); }

QString PlainToolTip(std::string_view text) {
  const QString tip = ToQt(text);
  return Qt::mightBeRichText(tip) ? QStringLiteral("<qt>%1</qt>").arg(tip.toHtmlEscaped()) : tip;
}

QColor ToQt(platform::Color color, const QPalette& palette) {
  switch (color) {
    case platform::kWindowBackground:
      return palette.color(QPalette::Base);
    case platform::kWindowText:
      return palette.color(QPalette::WindowText);
    case platform::kButtonFace:
      return palette.color(QPalette::Window);
    default:
      return QColor::fromRgb(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                             static_cast<int>(color >> 16 & 0xFF));
  }
}

QPixmap PictureOf(const std::vector<std::byte>& bitmap) {
  QPixmap picture;
  if (!bitmap.empty())
    picture.loadFromData(reinterpret_cast<const uchar*>(bitmap.data()), static_cast<uint>(bitmap.size()),
                         "BMP");
  return picture;
}

int KeyOf(const QKeyEvent& event) {
  const int key = event.key();
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return platform::kKeyReturn;
    case Qt::Key_Escape:
      return platform::kKeyEscape;
    case Qt::Key_Space:
      return platform::kKeySpace;
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

}  // namespace host::qt
