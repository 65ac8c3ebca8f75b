#include "host/base/Sha256.h"

#include <nettle/base16.h>
#include <nettle/sha2.h>

#include <array>
#include <cstdint>

namespace bench {

std::string Sha256(std::string_view bytes) {
  sha256_ctx context;
  sha256_init(&context);
  sha256_update(&context, bytes.size(), reinterpret_cast<const std::uint8_t*>(bytes.data()));
  std::array<std::uint8_t, SHA256_DIGEST_SIZE> digest{};
  sha256_digest(&context, digest.size(), digest.data());
  std::string text(BASE16_ENCODE_LENGTH(digest.size()), '\0');
  base16_encode_update(text.data(), digest.size(), digest.data());
  return text;
}

}  // namespace bench
