#include "host/gui/MenuText.h"

#include <QRegularExpression>

#include "host/qt/Conversions.h"

namespace bench::desktop {

QString ButtonText(const std::string& menuText) {
  auto text = qt::ToQt(menuText);
  text.remove(QRegularExpression("\\(&.\\)|&|\\.\\.\\.$"));
  return text;
}

}  // namespace bench::desktop
