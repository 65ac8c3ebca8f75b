#include "host/bench/LimitText.h"

#include "host/base/Tr.h"
#include "host/base/VisibleText.h"

namespace host::bench {

std::string BoundsText(const std::string& low, const std::string& high, const std::string& unit) {
  std::string text;
  if (low.empty() && high.empty()) return text;
  if (!low.empty() && !high.empty())
    text = Tr("at least %%1 at most %%2", {low, high});
  else
    text = low.empty() ? Tr("at most %%1", {high}) : Tr("at least %%1", {low});
  return unit.empty() ? text : text + " " + unit;
}

std::string StandardText(const std::string& name, const std::string& description) {
  return host::VisibleText(description.empty() ? name : name + ", " + description);
}

std::string TextOf(const standards::LimitOfElement& limit) {
  const auto bounds = BoundsText(limit.low, limit.high, limit.unit);
  return Tr("%%1: %%2", {StandardText(limit.standard, limit.description),
                         bounds.empty() ? Tr("no bounds") : host::VisibleText(bounds)});
}

std::string NeedsALimit() { return Tr("not judged: it needs a limit or --record-only"); }

}  // namespace host::bench
