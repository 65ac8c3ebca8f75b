#include "host/desktop/PlainTextValidator.h"

#include "host/desktop/Shown.h"
#include "host/services/PlainText.h"

namespace bench::desktop {

QValidator::State PlainTextValidator::validate(QString& input, int& cursor) const {
  const auto plain = [](const QString& text) { return Shown(PlainTextOf(text.toStdString())); };
  cursor = static_cast<int>(plain(input.left(cursor)).size());
  input = plain(input);
  return Acceptable;
}

}  // namespace bench::desktop
