#pragma once

#include <QPixmap>
#include <cstddef>
#include <vector>

namespace bench::qt {

/// The picture in the bytes of a whole bitmap file; a null one for bytes that are none.
QPixmap PictureOf(const std::vector<std::byte>& bitmap);

}  // namespace bench::qt
