#include "OrvikTypeLib/ITgProgressBar.h"
#include "tests/unit/toolkit/ControlTest.h"

namespace toolkit::headless {
namespace {

class XTgProgressBarTest : public ControlTest {
 protected:
  std::shared_ptr<orvik::ITgProgressBar> bar = Place<orvik::ITgProgressBar>(orvik::HostClasses::kProgressBar);
};

TEST_F(XTgProgressBarTest, ShowsAValueWithinItsBounds) {
  bar->SetRange(0, 50);
  bar->SetValue(20);
  EXPECT_EQ(bar->Value(), 20);
  EXPECT_EQ(Inner<platform::IProgressBar>("prgBar")->Value(), 20);
  bar->SetValue(1000);
  EXPECT_EQ(bar->Value(), 50);
  bar->SetValue(-1);
  EXPECT_EQ(bar->Value(), 0);
}

TEST_F(XTgProgressBarTest, RejectsAMaximumNotAboveTheMinimum) {
  ExpectHostError(5, "5", [&] { bar->SetRange(5, 5); });
  ExpectHostError(5, "4", [&] { bar->SetRange(5, 4); });
  EXPECT_EQ(Inner<platform::IProgressBar>("prgBar")->Maximum(), 100);
}

TEST_F(XTgProgressBarTest, NeedsToBePlaced) {
  const auto loose = orvik::As<orvik::ITgProgressBar>(host->CreateObject(orvik::HostClasses::kProgressBar));
  ExpectHostError(91, "", [&] { loose->SetValue(1); });
}

}  // namespace
}  // namespace toolkit::headless
