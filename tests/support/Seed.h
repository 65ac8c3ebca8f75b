#pragma once

#include <charconv>
#include <cstdlib>
#include <iostream>
#include <random>
#include <stdexcept>
#include <string>

namespace support {

/// The seed of a randomised test: the one in the environment variable ORVIK_SEED, so that a failure can be
/// had again, else a new one. It is printed at once, so that it is known even when the test crashes.
inline unsigned Seed() {
  unsigned seed = 0;
  if (const char* given = std::getenv("ORVIK_SEED")) {
    const std::string text = given;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seed);
    if (error != std::errc{} || end != text.data() + text.size())
      throw std::runtime_error("ORVIK_SEED is \"" + text +
                               "\"; give it a whole number from 0 to 4294967295, or leave it out");
  } else {
    seed = std::random_device{}();
  }
  std::cout << "ORVIK_SEED=" << seed << std::endl;
  return seed;
}

}  // namespace support
