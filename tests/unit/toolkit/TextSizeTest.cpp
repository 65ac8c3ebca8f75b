#include <gtest/gtest.h>

#include <string>

#include "toolkit/headless/TextSize.h"

namespace toolkit::headless {
namespace {

TEST(TextSize, CountsCharactersAndNotBytes) {
  EXPECT_EQ(ShownCharacters(""), 0);
  EXPECT_EQ(ShownCharacters("Ohm"), 3);
  EXPECT_EQ(ShownCharacters("mΩ µA ≤"), 7);
}

TEST(TextSize, DoesNotShowTheMarkOfTheAccessKey) {
  EXPECT_EQ(ShownCharacters("&Yes"), 3);
  EXPECT_EQ(ShownCharacters("&Save && Close"), 12);
  EXPECT_EQ(ShownCharacters("Q&"), 2);
}

TEST(TextSize, FindsTheAccessKey) {
  EXPECT_EQ(AccessKey("&Yes"), 'Y');
  EXPECT_EQ(AccessKey("Ca&librate"), 'L');
  EXPECT_EQ(AccessKey("&Save && Close"), 'S');
  EXPECT_EQ(AccessKey("Save && Close"), 0);
  EXPECT_EQ(AccessKey("OK"), 0);
  EXPECT_EQ(AccessKey("Q&"), 0);
}

TEST(TextSize, BreaksLongTexts) {
  EXPECT_EQ(WrappedSize("").height, kLineHeight);
  EXPECT_EQ(WrappedSize("ab").width, 2 * kCharacterWidth);
  EXPECT_EQ(WrappedSize("ab\ncde").width, 3 * kCharacterWidth);
  EXPECT_EQ(WrappedSize("ab\ncde").height, 2 * kLineHeight);
  EXPECT_EQ(WrappedSize(std::string(121, 'x')).width, 60 * kCharacterWidth);
  EXPECT_EQ(WrappedSize(std::string(121, 'x')).height, 3 * kLineHeight);
}

}  // namespace
}  // namespace toolkit::headless
