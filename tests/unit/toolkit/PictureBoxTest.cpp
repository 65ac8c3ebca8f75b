#include "tests/unit/toolkit/ToolkitTest.h"

namespace toolkit::headless {
namespace {

/// The header of a bitmap of that size.
std::vector<std::byte> Bitmap(std::uint32_t width, std::uint32_t height) {
  std::vector<std::byte> bytes(26);
  bytes[0] = std::byte{'B'};
  bytes[1] = std::byte{'M'};
  for (std::size_t byte = 0; byte < 4; ++byte) {
    bytes[18 + byte] = static_cast<std::byte>(width >> (8 * byte));
    bytes[22 + byte] = static_cast<std::byte>(height >> (8 * byte));
  }
  return bytes;
}

class PictureBoxTest : public ToolkitTest {
 protected:
  PictureBoxTest() {
    // The picture is on the form before the grid names it: members are made before this runs.
    form->SetGrid(OneColumn({"pic"}));
  }

  std::shared_ptr<platform::IForm> form = app->CreateForm("FForm");
  std::shared_ptr<platform::IPictureBox> picture = form->AddPictureBox("pic");
};

TEST_F(PictureBoxTest, HasTheSizeOfItsBitmap) {
  picture->SetBitmap(Bitmap(32, 16));
  EXPECT_EQ(picture->Bitmap(), Bitmap(32, 16));
  EXPECT_EQ(picture->Bounds().width, 480);
  EXPECT_EQ(picture->Bounds().height, 240);
}

TEST_F(PictureBoxTest, AcceptsATopDownBitmap) {
  picture->SetBitmap(Bitmap(32, static_cast<std::uint32_t>(-16)));
  EXPECT_EQ(picture->Bounds().height, 240);
}

TEST_F(PictureBoxTest, TakesNoSpaceForOtherBytes) {
  picture->SetBitmap(Bitmap(32, 16));
  picture->SetBitmap({});
  EXPECT_TRUE(picture->Bitmap().empty());
  EXPECT_EQ(picture->Bounds().width, 0);
  const std::vector<std::byte> nonsense(26, std::byte{0xFF});
  picture->SetBitmap(nonsense);
  EXPECT_EQ(picture->Bounds().width, 0);
}

TEST_F(PictureBoxTest, LimitsTheSizeInTheHeader) {
  picture->SetBitmap(Bitmap(0x7FFFFFFF, 0x80000000));
  EXPECT_EQ(picture->Bounds().width, 32767 * 15);
  EXPECT_EQ(picture->Bounds().height, 32767 * 15);
}

}  // namespace
}  // namespace toolkit::headless
