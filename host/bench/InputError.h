#pragma once

#include <stdexcept>

namespace host::bench {

/// Bad input: the message names the file, the line or the option, and says what to do.
class InputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// What was asked for could not be done, through no fault of the input.
class IncompleteError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace host::bench
