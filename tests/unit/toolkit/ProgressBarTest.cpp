#include "tests/unit/toolkit/ToolkitTest.h"

namespace toolkit::headless {
namespace {

class ProgressBarTest : public ToolkitTest {
 protected:
  std::shared_ptr<platform::IForm> form = app->CreateForm("FForm");
  std::shared_ptr<platform::IProgressBar> bar = form->AddProgressBar("prg");
};

TEST_F(ProgressBarTest, RangesFrom0To100ByDefault) {
  EXPECT_EQ(bar->Minimum(), 0);
  EXPECT_EQ(bar->Maximum(), 100);
  EXPECT_EQ(bar->Value(), 0);
}

TEST_F(ProgressBarTest, LimitsItsValueToItsRange) {
  bar->SetRange(10, 20);
  EXPECT_EQ(bar->Value(), 10);
  bar->SetValue(25);
  EXPECT_EQ(bar->Value(), 20);
  bar->SetValue(-1);
  EXPECT_EQ(bar->Value(), 10);
}

TEST_F(ProgressBarTest, RejectsAnInvalidRange) {
  ExpectHostError(5, "from 5 to 4", [&] { bar->SetRange(5, 4); });
  EXPECT_EQ(bar->Maximum(), 100);
}

}  // namespace
}  // namespace toolkit::headless
