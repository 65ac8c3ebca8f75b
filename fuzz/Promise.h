#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

namespace fuzz {

/// A promise that an input has broken. No target catches it: the fuzzer then keeps the input, and a test
/// fails.
class Broken : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

/// Throws `Broken` when the promise was not kept.
inline void Require(bool kept, const std::string& promise) {
  if (!kept) throw Broken(promise);
}

/// The input as text.
inline std::string TextOf(const std::uint8_t* data, std::size_t size) {
  return std::string(reinterpret_cast<const char*>(data), size);
}

}  // namespace fuzz
