#include "host/toolkit/qt/Texts.h"

#include <QTextDocument>

namespace bench::qt {
namespace {

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

}  // namespace bench::qt
