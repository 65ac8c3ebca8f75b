#include "host/desktop/PlainTextValidator.h"

#include "host/services/PlainText.h"
#include "host/toolkit/qt/Conversions.h"

namespace bench::desktop {

QValidator::State PlainTextValidator::validate(QString& input, int& cursor) const {
  const auto plain = [](const QString& text) { return qt::ToQt(PlainTextOf(text.toStdString())); };
  cursor = static_cast<int>(plain(input.left(cursor)).size());
  input = plain(input);
  return Acceptable;
}

}  // namespace bench::desktop
