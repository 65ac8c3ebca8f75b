#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

/// A picture handed to the host: a Windows bitmap file image.
///
/// Implemented by: the plug-in. Optional. Since contract version 1. User-interface thread only.
class IPicture : public virtual IObject {
 public:
  /// The whole bitmap file.
  std::vector<std::byte> Bitmap() const { return IPicture_Bitmap(); }
  /// Width in pixels.
  std::int32_t Width() const { return IPicture_Width(); }
  /// Height in pixels.
  std::int32_t Height() const { return IPicture_Height(); }

 private:
  virtual std::vector<std::byte> IPicture_Bitmap() const = 0;
  virtual std::int32_t IPicture_Width() const = 0;
  virtual std::int32_t IPicture_Height() const = 0;
};

}  // namespace orvik
