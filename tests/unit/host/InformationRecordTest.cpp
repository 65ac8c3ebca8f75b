#include <gtest/gtest.h>

#include "host/elements/InformationRecord.h"

namespace bench {
namespace {

TEST(InformationRecord, SecondTextIsTheDisplayNameUntilOneIsSet) {
  InformationRecord record;
  EXPECT_EQ(record.SecondText(), "");
  record.SetDisplayName("Earth leakage");
  EXPECT_EQ(record.SecondText(), "Earth leakage");
  record.SetSecondText("other");
  record.SetDisplayName("renamed");
  EXPECT_EQ(record.SecondText(), "other");
  EXPECT_EQ(record.DisplayName(), "renamed");
}

TEST(InformationRecord, SecondTextCanBeSetToNothing) {
  InformationRecord record;
  record.SetDisplayName("Earth leakage");
  record.SetSecondText("");
  EXPECT_EQ(record.SecondText(), "");
}

TEST(InformationRecord, FirstTextIsEmptyUntilItIsSet) {
  InformationRecord record;
  record.SetDisplayName("Earth leakage");
  EXPECT_EQ(record.FirstText(), "");
  record.SetFirstText("NC");
  EXPECT_EQ(record.FirstText(), "NC");
}

}  // namespace
}  // namespace bench
