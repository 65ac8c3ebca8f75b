#include <gtest/gtest.h>

#include "plugin/Picture.h"
#include "resources/Resources.h"

namespace {

TEST(Picture, HasTheWholeBitmapAndItsSize) {
  struct Row {
    const char* key;
    std::int32_t width;
    std::int32_t height;
  };
  // Keys are case-insensitive.
  for (const Row& row : {Row{"TE:MV(32X16)", 32, 16}, Row{"tab:MtiData", 32, 34}, Row{"KELD(16x16)", 16, 16},
                         Row{"te:group(16x16)_wht", 16, 16}}) {
    const auto picture = keld::plugin::Picture::FromResource(row.key);
    ASSERT_TRUE(picture) << row.key;
    EXPECT_EQ(picture->Width(), row.width) << row.key;
    EXPECT_EQ(picture->Height(), row.height) << row.key;
    const auto resource = keld::FindResource(row.key);
    EXPECT_EQ(picture->Bitmap(), (std::vector<std::byte>(resource.begin(), resource.end()))) << row.key;
  }
}

TEST(Picture, IsEmptyForAnUnknownKey) {
  EXPECT_FALSE(keld::plugin::Picture::FromResource(""));
  EXPECT_FALSE(keld::plugin::Picture::FromResource("TE:NONE(16X16)"));
}

}  // namespace
