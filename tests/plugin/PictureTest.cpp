#include <gtest/gtest.h>

#include "plugin/Picture.h"
#include "resources/Resources.h"

namespace {

TEST(Picture, HoldsTheWholeBitmapAndItsSize) {
  const auto picture = keld::Picture::FromResource("TE:MV(32X16)");
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->Width(), 32);
  EXPECT_EQ(picture->Height(), 16);
  const auto resource = keld::FindResource("TE:MV(32X16)");
  EXPECT_EQ(picture->Bitmap(), (std::vector<std::byte>(resource.begin(), resource.end())));
}

TEST(Picture, KnowsSizesThatAreNotSquares) {
  const auto picture = keld::Picture::FromResource("tab:MtiData");
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->Width(), 32);
  EXPECT_EQ(picture->Height(), 34);
}

TEST(Picture, FindsKeysInUpperAndLowerCase) {
  EXPECT_TRUE(keld::Picture::FromResource("KELD(16x16)"));
  EXPECT_TRUE(keld::Picture::FromResource("te:group(16x16)_wht"));
}

TEST(Picture, IsNothingForAnUnknownKey) {
  EXPECT_FALSE(keld::Picture::FromResource(""));
  EXPECT_FALSE(keld::Picture::FromResource("TE:NONE(16X16)"));
}

}  // namespace
