#include "host/base/LargePages.h"

#include <sys/mman.h>

#include <cstdint>

namespace bench {

void PreferLargePages(void* begin, std::size_t size) {
  constexpr std::uintptr_t kLargePage = std::uintptr_t{2} * 1024 * 1024;
  const auto address = reinterpret_cast<std::uintptr_t>(begin);
  const auto first = (address + kLargePage - 1) / kLargePage * kLargePage;
  const auto end = (address + size) / kLargePage * kLargePage;
  if (first < end) (void)madvise(reinterpret_cast<void*>(first), end - first, MADV_HUGEPAGE);
}

}  // namespace bench
