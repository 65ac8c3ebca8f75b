#pragma once

#include <memory>

#include "OrvikTypeLib/ITestElement.h"

namespace host::elements {

/// The deepest nesting of elements that can be cloned, saved and loaded.
inline constexpr int kDeepestNesting = 1000;

/// Counts the levels of a deep operation, which recurses through host and plug-in by turns.
class Nesting {
 public:
  Nesting();
  ~Nesting();
  Nesting(const Nesting&) = delete;
  Nesting& operator=(const Nesting&) = delete;

  /// Whether the operation started at this level.
  bool Outermost() const;
};

/// Throws `HostError` 5 when elements below `element` are nested too deeply for a deep operation, before that
/// has started. Not recursive itself.
void RequireShallow(const std::shared_ptr<orvik::ITestElement>& element);

}  // namespace host::elements
