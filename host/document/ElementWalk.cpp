#include "host/document/ElementWalk.h"

#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITestEnumerator.h"

namespace host::document {

void WalkElements(const std::shared_ptr<orvik::ITestElement>& top,
                  const std::function<void(const std::shared_ptr<orvik::ITestElement>&)>& visit) {
  std::vector<std::shared_ptr<orvik::ITestEnumerator>> levels;
  const auto enter = [&](const std::shared_ptr<orvik::ITestElement>& element) {
    visit(element);
    if (const auto container = orvik::As<orvik::ITestContainer>(element)) {
      if (auto children = container->NewEnum()) levels.push_back(std::move(children));
    }
  };
  if (top) enter(top);
  while (!levels.empty()) {
    if (const auto child = levels.back()->Next())
      enter(child);
    else
      levels.pop_back();
  }
}

}  // namespace host::document
