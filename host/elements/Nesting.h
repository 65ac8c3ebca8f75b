#pragma once

#include <memory>

#include "OrvikTypeLib/ITestElement.h"

namespace bench {

/// Deepest nesting of elements that is cloned, saved and loaded.
inline constexpr int kDeepestNesting = 1000;

/// Counts the levels of one deep operation while it works its way through host and plug-in by turns.
class Nesting {
 public:
  Nesting();
  ~Nesting();
  Nesting(const Nesting&) = delete;
  Nesting& operator=(const Nesting&) = delete;

  /// Whether this is the level at which the operation was begun.
  bool Outermost() const;
};

/// Throws `HostError` 5 when elements are nested deeper below `element` than a deep operation can go, so that
/// it is refused before it has begun. Works at any depth.
void RequireShallow(const std::shared_ptr<orvik::ITestElement>& element);

}  // namespace bench
