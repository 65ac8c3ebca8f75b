#include "toolkit/headless/Button.h"

#include <algorithm>

#include "toolkit/headless/IMetrics.h"

namespace toolkit::headless {

void Button::Click() {
  const auto self = shared_from_this();
  if (BeginAction()) clicked_.Raise();
}

platform::Size Button::NaturalSize() const {
  constexpr platform::Twips kNarrowest = 1215;
  const platform::Size text = Metrics().Line(Caption());
  const platform::Size padding = Metrics().Padding(Part::kButton);
  return {std::max(text.width + padding.width, kNarrowest), text.height + padding.height};
}

void Button::KeyPressed(int key, int) {
  if (key == platform::kKeyReturn || key == platform::kKeySpace) Click();
}

}  // namespace toolkit::headless
