#include "host/cli/help/Examples.h"

#include "host/base/Tr.h"
#include "host/report/TextLines.h"

namespace host::cli {

namespace {

constexpr std::size_t kRemarkWidth = 100;

}  // namespace

std::string Examples(const std::vector<std::string>& commandLines, const std::string& remark) {
  auto text = Tr("Examples:");
  for (const auto& line : commandLines) text += "\n  " + line;
  if (remark.empty()) return text;
  text += "\n";
  for (const auto& line : report::text::Wrapped(remark, kRemarkWidth)) text += "\n" + line;
  return text;
}

}  // namespace host::cli
