#include "host/run/RunMark.h"

#include <utility>

#include "host/run/ElementState.h"

namespace bench {
std::optional<RunMark> RunMarkOf(const std::shared_ptr<orvik::ITestElement>& element,
                                 const ElementFactory& factory) {
  const auto state = StateOf(element, factory);
  return state ? state->Run() : std::nullopt;
}

void SetRunMark(const std::shared_ptr<orvik::ITestElement>& element, const ElementFactory& factory,
                std::optional<RunMark> mark) {
  if (const auto state = StateOf(element, factory)) state->SetRun(std::move(mark));
}

}  // namespace bench
