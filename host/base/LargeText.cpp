#include "host/base/LargeText.h"

#include "host/base/LargePages.h"

namespace bench {

std::string TextWithRoom(std::size_t size) {
  std::string text;
  text.reserve(size);
  PreferLargePages(text.data(), size);
  return text;
}

}  // namespace bench
