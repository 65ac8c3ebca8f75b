#pragma once

#include <unistd.h>

#include <charconv>
#include <cstdlib>
#include <stdexcept>
#include <string>

namespace support {

/// How much a long test does: the number in the environment variable, or the default if it is not set.
/// Throws `std::runtime_error` for anything but a whole number from `least` on.
inline int NumberFromEnvironment(const char* variable, int byDefault, int least) {
  const char* given = std::getenv(variable);
  if (!given) return byDefault;
  const std::string text = given;
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc{} || end != text.data() + text.size() || number < least)
    throw std::runtime_error(std::string(variable) + " is \"" + text + "\"; give it a whole number from " +
                             std::to_string(least) + ", or leave it out");
  return number;
}

/// Creates temporary folders in memory from now on, where flushing takes no time.
inline void UseFilesInMemory() {
  constexpr char kFolder[] = "/dev/shm";
  if (access(kFolder, W_OK) == 0) setenv("TMPDIR", kFolder, 1);
}

}  // namespace support
