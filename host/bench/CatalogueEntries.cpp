#include "host/bench/CatalogueEntries.h"

#include <limits>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IPicture.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "host/bench/Workbench.h"
#include "host/document/ElementText.h"
#include "host/elements/ElementFactory.h"

namespace host::bench {

namespace {

/// The unit that a new limit of the test has: the unit that its readings are recorded in.
std::string UnitOf(orvik::IPlugIn& plugIn, std::int32_t testId) {
  const auto element = plugIn.CreateTest(testId);
  const auto limits = element ? element->Limits() : nullptr;
  const auto standard = limits ? limits->CreateStandard("", "") : nullptr;
  return standard && standard->LimitCount() > 0 ? standard->Limit(1)->Unit() : std::string();
}

}  // namespace

std::vector<std::byte> PictureOf(Workbench& workbench, std::int32_t testId) {
  constexpr std::int16_t kSmall = 0;
  if (testId > std::numeric_limits<std::int16_t>::max() || testId < 1) return {};
  const auto picture = workbench.PlugIn().Icon(static_cast<std::int16_t>(testId), kSmall);
  return picture ? picture->Bitmap() : std::vector<std::byte>();
}

std::vector<CatalogueEntry> CatalogueEntries(Workbench& workbench) {
  struct Level {
    std::shared_ptr<orvik::ITestEnumerator> walk;
    std::int32_t testId;
  };
  std::vector<CatalogueEntry> entries;
  std::vector<Level> levels;
  const auto tests = workbench.PlugIn().Tests();
  if (tests) levels.push_back({tests->NewEnum(), 0});
  while (!levels.empty()) {
    const auto element = levels.back().walk->Next();
    if (!element) {
      levels.pop_back();
      continue;
    }
    const auto container = orvik::As<orvik::ITestContainer>(element);
    const auto testId = element->TestID();
    entries.push_back({testId, levels.back().testId, container != nullptr, levels.size() - 1,
                       document::ElementName(*element, *workbench.Host()->Elements()),
                       container ? std::string() : UnitOf(workbench.PlugIn(), testId)});
    if (container) levels.push_back({container->NewEnum(), testId});
  }
  return entries;
}

}  // namespace host::bench
