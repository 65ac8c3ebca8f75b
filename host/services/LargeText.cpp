#include "host/services/LargeText.h"

#include <sys/mman.h>

#include <cstdint>

namespace bench {

std::string TextWithRoom(std::size_t size) {
  constexpr std::uintptr_t kLargePage = 2U * 1024 * 1024;
  std::string text;
  text.reserve(size);
  const auto begin = reinterpret_cast<std::uintptr_t>(text.data());
  const auto first = (begin + kLargePage - 1) / kLargePage * kLargePage;
  const auto end = (begin + size) / kLargePage * kLargePage;
  // A wish: without it the text is filled as well, only slower.
  if (first < end) (void)madvise(reinterpret_cast<void*>(first), end - first, MADV_HUGEPAGE);
  return text;
}

}  // namespace bench
