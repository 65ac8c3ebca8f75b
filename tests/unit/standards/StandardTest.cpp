#include <gtest/gtest.h>

#include "host/standards/Limit.h"
#include "host/standards/Standard.h"
#include "tests/support/Errors.h"

namespace host {
namespace {

using orvik::HostError;
using support::ErrorNumber;

constexpr char kLimitKey[] = "NO LIMIT KEY";

std::shared_ptr<standards::Limit> MakeLimit(const std::string& key, const std::string& low,
                                            const std::string& high) {
  auto limit = std::make_shared<standards::Limit>();
  limit->Initialize(key, "V", low, high);
  return limit;
}

TEST(Standard, KeepsItsIdentifyingTexts) {
  standards::Standard standard;
  standard.Initialize("IEC 62353", "class I, BF", 1);
  EXPECT_EQ(standard.Name(), "IEC 62353");
  EXPECT_EQ(standard.Description(), "class I, BF");
  EXPECT_EQ(standard.Number(), 1);
}

TEST(Standard, WithoutLimitsThereIsNothingToCheck) {
  standards::Standard standard;
  EXPECT_EQ(standard.Evaluate(1, kLimitKey, {}), 0);
  standard.AddLimit(MakeLimit(kLimitKey, "", ""));
  EXPECT_EQ(standard.Evaluate(1, kLimitKey, {}), 0);
}

TEST(Standard, IgnoresLimitsOfAnotherKey) {
  standards::Standard standard;
  standard.AddLimit(MakeLimit("OTHER", "", "1"));
  EXPECT_EQ(standard.Evaluate(99, kLimitKey, {}), 0);
  EXPECT_EQ(standard.Evaluate(99, "OTHER", {}), 2);
  EXPECT_EQ(standard.Evaluate(1, "OTHER", {}), 1);
}

TEST(Standard, OneExceededBoundFailsTheStandard) {
  standards::Standard standard;
  standard.AddLimit(MakeLimit(kLimitKey, "", "10"));
  standard.AddLimit(MakeLimit(kLimitKey, "5", ""));
  standard.AddLimit(MakeLimit(kLimitKey, "", ""));
  EXPECT_EQ(standard.Evaluate(7, kLimitKey, {}), 1);
  EXPECT_EQ(standard.Evaluate(4, kLimitKey, {}), 2);
  EXPECT_EQ(standard.Evaluate(11, kLimitKey, {}), 2);
}

TEST(Standard, PassesTheNominalValueToTheLimits) {
  standards::Standard standard;
  const auto limit = MakeLimit(kLimitKey, "", "");
  limit->SetNominal(100.0);
  limit->SetBounds("90%", "");
  standard.AddLimit(limit);
  EXPECT_EQ(standard.Evaluate(95, kLimitKey, {}), 1);
  EXPECT_EQ(standard.Evaluate(95, kLimitKey, 200.0), 2);
}

TEST(Standard, LimitsAreCountedFromOne) {
  standards::Standard standard;
  const auto limit = MakeLimit(kLimitKey, "1", "2");
  standard.AddLimit(limit);
  EXPECT_EQ(standard.LimitCount(), 1);
  EXPECT_EQ(standard.Limit(1), limit);
  EXPECT_EQ(support::ErrorNumber([&] { standard.Limit(0); }), HostError::kSubscriptOutOfRange);
  EXPECT_EQ(support::ErrorNumber([&] { standard.Limit(2); }), HostError::kSubscriptOutOfRange);
  EXPECT_EQ(support::ErrorNumber([&] { standard.AddLimit(nullptr); }), HostError::kTypeMismatch);
}

TEST(Standard, CopyIsDeep) {
  standards::Standard standard;
  standard.Initialize("n", "d", 3);
  standard.AddLimit(MakeLimit(kLimitKey, "1", "2"));
  const auto copy = standard.Copy();
  EXPECT_EQ(copy->Name(), "n");
  EXPECT_EQ(copy->Description(), "d");
  EXPECT_EQ(copy->Number(), 3);
  copy->Limit(1)->SetBounds("", "");
  EXPECT_EQ(standard.Limit(1)->LowText(), "1");
}

}  // namespace
}  // namespace host
