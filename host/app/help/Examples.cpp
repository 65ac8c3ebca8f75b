#include "host/app/help/Examples.h"

#include "host/services/Tr.h"

namespace bench {

std::string Examples(const std::vector<std::string>& commandLines) {
  auto text = Tr("Examples:");
  for (const auto& line : commandLines) text += "\n  " + line;
  return text;
}

}  // namespace bench
