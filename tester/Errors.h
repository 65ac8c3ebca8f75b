#pragma once

#include <stdexcept>
#include <string>

namespace sim {

/// Bad use: an option, a profile or a fault script that cannot be obeyed. The text names the option, or the
/// file and line, and says what to do. The program ends with exit status 3.
class InputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The operating system refused something that normally works (no pseudo-terminal left, disk full). Exit
/// status 4.
class SystemFailure : public std::runtime_error {
 public:
  /// `what` says what was tried; the text of the error number `error` is added to it.
  SystemFailure(const std::string& what, int error);
};

}  // namespace sim
