#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "OrvikTypeLib/IPicture.h"

namespace keld::plugin {

/// A bitmap resource of the library, as the host gets it.
class Picture final : public virtual orvik::IPicture {
 public:
  /// The bitmap resource with that key (case-insensitive), or empty.
  static std::shared_ptr<Picture> FromResource(std::string_view sKey);

 private:
  explicit Picture(std::vector<std::byte> aBitmap) : maBitmap(std::move(aBitmap)) {}

  std::vector<std::byte> IPicture_Bitmap() const override;
  std::int32_t IPicture_Width() const override;
  std::int32_t IPicture_Height() const override;

  std::vector<std::byte> maBitmap;
};

}  // namespace keld::plugin
