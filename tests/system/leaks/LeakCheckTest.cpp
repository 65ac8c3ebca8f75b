#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>

#include "OrvikTypeLib/IResultData.h"
#include "results/CKELDResultData.h"
#include "tests/system/leaks/Allocations.h"
#include "tests/system/leaks/Stage.h"

// Shows that the leak checks can fail.
namespace leaks {
namespace {

TEST(LeakCheck, CountsHeldMemory) {
  const Held before = HeldNow();
  auto kept = std::make_unique<std::string>(1000, 'x');
  const Held during = HeldNow();
  EXPECT_EQ(during.blocks, before.blocks + 2);
  EXPECT_GE(during.bytes, before.bytes + 1000 + sizeof(std::string));
  kept.reset();
  EXPECT_EQ(HeldNow(), before);
}

TEST(LeakCheck, CountsAlignedMemory) {
  struct alignas(128) Wide {
    char content[128];
  };
  const Held before = HeldNow();
  auto kept = std::make_unique<Wide>();
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(kept.get()) % 128, 0U);
  EXPECT_EQ(HeldNow().bytes, before.bytes + sizeof(Wide));
  kept.reset();
  EXPECT_EQ(HeldNow(), before);
}

TEST(LeakCheck, FindsHeldObjects) {
  Stage stage;
  std::shared_ptr<orvik::IResultData> held;
  const auto act = [&](Stage& placed) {
    placed.PlaceTest();
    placed.Perform();
    held = placed.element->Result();
  };
  stage.Watched(act);
  const auto watched = stage.Watched(act);
  EXPECT_THAT(watched.Alive(), testing::UnorderedElementsAre("result", "measurement", "service record",
                                                             "OrvikTypeLib.ServiceRecord"));
  // The result does not keep its element alive.
  EXPECT_FALSE(orvik::As<keld::results::CKELDResultData>(held)->Owner());
}

TEST(LeakCheck, FindsACircularReference) {
  struct Circle {
    std::shared_ptr<Circle> other;
  };
  Stage stage;
  std::weak_ptr<Circle> left;
  const auto act = [&](Stage& placed) {
    const auto one = std::make_shared<Circle>();
    one->other = std::make_shared<Circle>(Circle{one});
    left = one;
    placed.See("circle", one);
  };
  stage.Watched([](Stage&) {});
  const Held before = HeldNow();
  {
    const auto watched = stage.Watched(act);
    EXPECT_EQ(watched.Alive(), std::vector<std::string>{"circle"});
  }
  EXPECT_EQ(HeldNow().blocks, before.blocks + 2);
  left.lock()->other.reset();
}

}  // namespace
}  // namespace leaks
