#include "host/gui/MenuText.h"

#include <QRegularExpression>

#include "host/qt/Conversions.h"

namespace host::gui {

QString ButtonText(const std::string& menuText) {
  auto text = qt::ToQt(menuText);
  text.remove(QRegularExpression("\\(&.\\)|&|\\.\\.\\.$"));
  return text;
}

}  // namespace host::gui
