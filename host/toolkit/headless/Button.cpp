#include "host/toolkit/headless/Button.h"

#include <algorithm>

#include "host/toolkit/headless/TextSize.h"

namespace bench::headless {

void Button::Click() {
  const auto self = shared_from_this();
  if (BeginAction()) clicked_.Raise();
}

platform::Size Button::NaturalSize() const {
  constexpr platform::Twips kNarrowest = 1215;
  return {std::max(LineSize(Caption()).width + 4 * kCharacterWidth, kNarrowest), kLineHeight + 120};
}

void Button::KeyPressed(int key, int) {
  if (key == platform::kKeyReturn || key == platform::kKeySpace) Click();
}

}  // namespace bench::headless
