#include "host/elements/Nesting.h"

#include <utility>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "host/base/Tr.h"

namespace host::elements {
namespace {

thread_local int levels = 0;

[[noreturn]] void Refuse() {
  throw orvik::HostError(orvik::HostError::kInvalidArgument, "OrvikTypeLib.TestContainer",
                         Tr("elements are nested more than %%1 levels deep; place them side by side",
                            {std::to_string(kDeepestNesting)}));
}

}  // namespace

Nesting::Nesting() {
  if (levels > kDeepestNesting) Refuse();
  ++levels;
}

Nesting::~Nesting() { --levels; }

bool Nesting::Outermost() const { return levels == 1; }

void RequireShallow(const std::shared_ptr<orvik::ITestElement>& element) {
  std::vector<std::pair<std::shared_ptr<orvik::ITestContainer>, std::int32_t>> path;
  const auto enter = [&path](const std::shared_ptr<orvik::ITestElement>& entered) {
    const auto container = orvik::As<orvik::ITestContainer>(entered);
    if (container && container->Count() > 0) path.emplace_back(container, 0);
    if (path.size() > static_cast<std::size_t>(kDeepestNesting)) Refuse();
  };
  enter(element);
  while (!path.empty()) {
    auto& [container, visited] = path.back();
    if (visited == container->Count()) {
      path.pop_back();
    } else {
      enter(container->item(++visited));
    }
  }
}

}  // namespace host::elements
