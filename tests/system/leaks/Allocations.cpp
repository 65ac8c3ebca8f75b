#include "tests/system/leaks/Allocations.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <pugixml.hpp>

// Every block is preceded by its size. Blocks come from malloc, so the address sanitizer still checks their
// bounds and finds leaks. It cannot check that new and delete match, since both are replaced here.
namespace leaks {
namespace {

std::atomic<std::size_t> blocks{0};
std::atomic<std::size_t> bytes{0};

constexpr std::size_t kHeader = alignof(std::max_align_t);
static_assert(kHeader >= sizeof(std::size_t));

void* Take(std::size_t size, std::size_t alignment) noexcept {
  const std::size_t header = std::max(kHeader, alignment);
  void* start = nullptr;
  if (header + size < size || posix_memalign(&start, header, header + size) != 0) return nullptr;
  auto* block = static_cast<unsigned char*>(start) + header;
  *reinterpret_cast<std::size_t*>(block - sizeof(std::size_t)) = size;
  ++blocks;
  bytes += size;
  return block;
}

void* TakeOrThrow(std::size_t size, std::size_t alignment) {
  void* block = Take(size, alignment);
  if (!block) throw std::bad_alloc();
  return block;
}

void Give(void* block, std::size_t alignment) noexcept {
  if (!block) return;
  auto* first = static_cast<unsigned char*>(block);
  --blocks;
  bytes -= *reinterpret_cast<std::size_t*>(first - sizeof(std::size_t));
  std::free(first - std::max(kHeader, alignment));
}

// Runs before main, and so before the first document.
const bool xmlIsCounted = [] {
  pugi::set_memory_management_functions([](std::size_t size) { return Take(size, kHeader); },
                                        [](void* block) { Give(block, kHeader); });
  return true;
}();

std::size_t Of(std::align_val_t alignment) { return static_cast<std::size_t>(alignment); }

}  // namespace

Held HeldNow() { return {blocks, bytes}; }

}  // namespace leaks

using leaks::Give;
using leaks::kHeader;
using leaks::Of;
using leaks::Take;
using leaks::TakeOrThrow;

void* operator new(std::size_t size) { return TakeOrThrow(size, kHeader); }
void* operator new[](std::size_t size) { return TakeOrThrow(size, kHeader); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Take(size, kHeader); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return Take(size, kHeader); }
void* operator new(std::size_t size, std::align_val_t alignment) { return TakeOrThrow(size, Of(alignment)); }
void* operator new[](std::size_t size, std::align_val_t alignment) {
  return TakeOrThrow(size, Of(alignment));
}
void* operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  return Take(size, Of(alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  return Take(size, Of(alignment));
}

void operator delete(void* block) noexcept { Give(block, kHeader); }
void operator delete[](void* block) noexcept { Give(block, kHeader); }
void operator delete(void* block, std::size_t) noexcept { Give(block, kHeader); }
void operator delete[](void* block, std::size_t) noexcept { Give(block, kHeader); }
void operator delete(void* block, const std::nothrow_t&) noexcept { Give(block, kHeader); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { Give(block, kHeader); }
void operator delete(void* block, std::align_val_t alignment) noexcept { Give(block, Of(alignment)); }
void operator delete[](void* block, std::align_val_t alignment) noexcept { Give(block, Of(alignment)); }
void operator delete(void* block, std::size_t, std::align_val_t alignment) noexcept {
  Give(block, Of(alignment));
}
void operator delete[](void* block, std::size_t, std::align_val_t alignment) noexcept {
  Give(block, Of(alignment));
}
void operator delete(void* block, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  Give(block, Of(alignment));
}
void operator delete[](void* block, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  Give(block, Of(alignment));
}
