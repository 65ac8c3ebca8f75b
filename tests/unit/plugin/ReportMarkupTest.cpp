#include <gtest/gtest.h>

#include "plugin/base/ReportMarkup.h"

namespace {

namespace Markup = keld::ReportMarkup;

TEST(ReportMarkup, WritesTheFormatOfEachColumn) {
  EXPECT_EQ(Markup::Format({{Markup::kLeft, true, false, 560},
                            {Markup::kLeft, false, false, 2240},
                            {Markup::kRight, true, false, 1500},
                            {Markup::kCentred, true, false, 1500},
                            {Markup::kLeft, true, true, 0}}),
            "<+560|<2240|>+1500|^+1500|<+!0;");
}

TEST(ReportMarkup, SeparatesCellsAndEndsTheRow) {
  EXPECT_EQ(Markup::Row({"", "a", "b"}), "|a|b;");
  EXPECT_EQ(Markup::Row({"a"}), "a;");
  EXPECT_EQ(Markup::Row({}), ";");
}

TEST(ReportMarkup, WritesHeadingsInBoldItalics) {
  EXPECT_EQ(Markup::Row({"", Markup::BoldItalic("Result:"), Markup::BoldItalic("Value")}),
            "|{\\i\\b Result:}|{\\i\\b Value};");
}

}  // namespace
