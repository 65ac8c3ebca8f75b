#pragma once

#include <charconv>
#include <cstdlib>
#include <iostream>
#include <random>
#include <stdexcept>
#include <string>

namespace support {

/// The seed of a randomised test. It is constant, so that two checks of the same sources have the same
/// result. The environment variable ORVIK_SEED overrides it: a number repeats a failure, "new" searches for
/// one. The seed is printed at once, so that it is known even if the test crashes.
inline unsigned Seed() {
  unsigned seed = 20261121;
  const char* given = std::getenv("ORVIK_SEED");
  const std::string text = given ? given : "";
  if (text == "new") {
    seed = std::random_device{}();
  } else if (given) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seed);
    if (error != std::errc{} || end != text.data() + text.size())
      throw std::runtime_error("ORVIK_SEED is \"" + text +
                               "\"; give it a whole number from 0 to 4294967295 or \"new\", or leave it out");
  }
  std::cout << "ORVIK_SEED=" << seed << std::endl;
  return seed;
}

}  // namespace support
