#pragma once

#include <cstddef>
#include <string>

namespace bench {

/// An empty text with room for so many bytes. Where the system has large pages, a large one lies on them: it
/// then is filled without a fault for every 4 KiB.
std::string TextWithRoom(std::size_t size);

}  // namespace bench
