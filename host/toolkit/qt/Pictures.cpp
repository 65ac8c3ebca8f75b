#include "host/toolkit/qt/Pictures.h"

namespace bench::qt {

QPixmap PictureOf(const std::vector<std::byte>& bitmap) {
  QPixmap picture;
  if (!bitmap.empty())
    picture.loadFromData(reinterpret_cast<const uchar*>(bitmap.data()), static_cast<uint>(bitmap.size()),
                         "BMP");
  return picture;
}

}  // namespace bench::qt
