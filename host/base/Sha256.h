#pragma once

#include <nettle/sha2.h>

#include <string>
#include <string_view>

namespace host {

/// Computes the SHA-256 digest (FIPS 180-4) of text that arrives piece by piece.
class Sha256Digest {
 public:
  Sha256Digest() { sha256_init(&context_); }

  void Add(std::string_view bytes);

  /// 64 hexadecimal digits. Starts over: what is added from now on belongs to a new digest.
  std::string Hex();

 private:
  sha256_ctx context_;
};

/// The digest of these bytes.
std::string Sha256(std::string_view bytes);

}  // namespace host
