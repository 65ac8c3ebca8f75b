#pragma once

#include <functional>

namespace benchmarks {

/// What `act` returns in seconds, from a process of its own: it finds memory as a program finds it that has
/// just started, and not what others have left there. Throws std::runtime_error when it came to no end.
double InOwnProcess(const std::function<double()>& act);

}  // namespace benchmarks
