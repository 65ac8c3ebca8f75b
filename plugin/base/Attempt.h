#pragma once

#include <utility>

namespace keld {

/// Runs one step and ignores its failure; the caller continues with its next step.
///
/// The only place where an error is swallowed: a fault in a host object, of any type, must not crash the
/// host.
/// @return true if the step succeeded
template <class Step>
bool Attempt(Step&& step) noexcept {
  try {
    std::forward<Step>(step)();
    return true;
  } catch (...) {
    return false;
  }
}

/// Returns the step's value, or `Fallback` if the step fails.
template <class Value, class Step>
Value AttemptValue(Value Fallback, Step&& step) noexcept {
  Attempt([&] { Fallback = std::forward<Step>(step)(); });
  return Fallback;
}

}  // namespace keld
