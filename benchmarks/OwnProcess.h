#pragma once

#include <functional>
#include <string>

namespace benchmarks {

/// What `act` returns, from a process of its own, so that earlier measurements cannot influence the heap.
/// Throws std::runtime_error if it fails.
std::string InOwnProcess(const std::function<std::string()>& act);

/// The same for seconds.
double SecondsInOwnProcess(const std::function<double()>& act);

}  // namespace benchmarks
