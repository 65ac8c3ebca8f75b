#pragma once

#include <array>
#include <cstddef>
#include <memory>

namespace bench {

/// Allocates memory for references to nodes. Reading or writing a document makes a dozen of them for each
/// element and lets go of them at once: the room of the last few is used again.
template <class Block>
class NodeBlocks {
 public:
  using value_type = Block;

  NodeBlocks() = default;
  template <class Other>
  explicit NodeBlocks(const NodeBlocks<Other>&) {}

  Block* allocate(std::size_t count) {
    if (count == 1 && spare.count > 0) return spare.blocks[--spare.count];
    return std::allocator<Block>().allocate(count);
  }

  void deallocate(Block* block, std::size_t count) {
    if (count == 1 && spare.count < kSpare) {
      spare.blocks[spare.count++] = block;
    } else {
      std::allocator<Block>().deallocate(block, count);
    }
  }

  bool operator==(const NodeBlocks&) const = default;

 private:
#ifdef __SANITIZE_ADDRESS__
  static constexpr std::size_t kSpare = 0;  // so that a use after release is found
#else
  static constexpr std::size_t kSpare = 16;
#endif

  /// Without a destructor: references may outlive it at the end of the program.
  struct SpareBlocks {
    std::array<Block*, 16> blocks;
    std::size_t count;
  };
  static inline thread_local SpareBlocks spare{};
};

}  // namespace bench
