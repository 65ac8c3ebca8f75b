#include "host/base/Sha256.h"

#include <nettle/base16.h>

#include <array>
#include <cstdint>

namespace host {

void Sha256Digest::Add(std::string_view bytes) {
  sha256_update(&context_, bytes.size(), reinterpret_cast<const std::uint8_t*>(bytes.data()));
}

std::string Sha256Digest::Hex() {
  std::array<std::uint8_t, SHA256_DIGEST_SIZE> digest{};
  sha256_digest(&context_, digest.size(), digest.data());
  std::string text(BASE16_ENCODE_LENGTH(digest.size()), '\0');
  base16_encode_update(text.data(), digest.size(), digest.data());
  return text;
}

std::string Sha256(std::string_view bytes) {
  Sha256Digest digest;
  digest.Add(bytes);
  return digest.Hex();
}

}  // namespace host
