#include <gtest/gtest.h>

#include "host/elements/InformationRecord.h"

namespace host {
namespace {

TEST(InformationRecord, SecondTextIsTheDisplayNameUntilOneIsSet) {
  elements::InformationRecord record;
  EXPECT_EQ(record.SecondText(), "");
  record.SetDisplayName("Earth leakage");
  EXPECT_EQ(record.SecondText(), "Earth leakage");
  record.SetSecondText("other");
  record.SetDisplayName("renamed");
  EXPECT_EQ(record.SecondText(), "other");
  EXPECT_EQ(record.DisplayName(), "renamed");
}

TEST(InformationRecord, SecondTextCanBeSetToNothing) {
  elements::InformationRecord record;
  record.SetDisplayName("Earth leakage");
  record.SetSecondText("");
  EXPECT_EQ(record.SecondText(), "");
}

TEST(InformationRecord, FirstTextIsEmptyUntilItIsSet) {
  elements::InformationRecord record;
  record.SetDisplayName("Earth leakage");
  EXPECT_EQ(record.FirstText(), "");
  record.SetFirstText("NC");
  EXPECT_EQ(record.FirstText(), "NC");
}

}  // namespace
}  // namespace host
