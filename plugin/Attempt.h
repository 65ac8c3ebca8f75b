#pragma once

#include <utility>

namespace keld {

/// Runs one step whose failure is ignored: the step is left where it failed, and the caller goes on with its
/// next one.
///
/// The only place where an error is swallowed. A fault in a host object must never take the host down,
/// whatever it throws.
/// @return true when the step went through
template <class Step>
bool Attempt(Step&& step) noexcept {
  try {
    std::forward<Step>(step)();
    return true;
  } catch (...) {
    return false;
  }
}

/// What the step answers, or `Fallback` when it failed.
template <class Value, class Step>
Value AttemptValue(Value Fallback, Step&& step) noexcept {
  Attempt([&] { Fallback = std::forward<Step>(step)(); });
  return Fallback;
}

}  // namespace keld
