#include "host/gui/PlainTextValidator.h"

#include "host/base/PlainText.h"
#include "host/qt/Conversions.h"

namespace host::gui {

QValidator::State PlainTextValidator::validate(QString& input, int& cursor) const {
  const auto plain = [](const QString& text) { return qt::ToQt(PlainTextOf(text.toStdString())); };
  cursor = static_cast<int>(plain(input.left(cursor)).size());
  input = plain(input);
  return Acceptable;
}

}  // namespace host::gui
