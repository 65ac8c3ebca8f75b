#pragma once

#include <functional>
#include <string>

namespace benchmarks {

/// What `act` returns, from a process of its own: it finds memory as a program finds it that has just
/// started, and not what others have left there. Throws std::runtime_error when it came to no end.
std::string InOwnProcess(const std::function<std::string()>& act);

/// The same for seconds.
double SecondsInOwnProcess(const std::function<double()>& act);

}  // namespace benchmarks
