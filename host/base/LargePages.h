#pragma once

#include <cstddef>

namespace bench {

/// Wishes that these bytes lie on the system's large pages, as far as they fill them: they then are touched
/// for the first time without a fault for every 4 KiB. Without large pages nothing happens.
void PreferLargePages(void* begin, std::size_t size);

}  // namespace bench
