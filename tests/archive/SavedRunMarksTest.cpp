#include <gtest/gtest.h>

#include "host/archive/SavedRunMarks.h"

namespace archive_tests {
namespace {

TEST(SavedRunMarks, AreThoseOfTheElementsAtAnyDepth) {
  const auto marks = bench::SavedRunMarks(
      R"(<OrvikDocument><Elements>
           <TestElement ID="1"><Auxiliary><Run Date="2026-01-02T10:00:00+01:00" Operator="B"/></Auxiliary>
             <TestElement ID="2"><Auxiliary><Run Date="2026-01-01T10:00:00+00:00" Operator="A"/></Auxiliary></TestElement>
           </TestElement>
           <TestElement ID="3"><Auxiliary/></TestElement>
           <TestElement ID="4"><Auxiliary><Run Date="some day" Operator="B"/></Auxiliary></TestElement>
         </Elements></OrvikDocument>)");
  ASSERT_EQ(marks.size(), 3U);
  EXPECT_EQ(marks.at(1).date, "2026-01-02T09:00:00Z");
  EXPECT_EQ(marks.at(2).by, "A");
  EXPECT_EQ(marks.at(4).date, "");
  EXPECT_EQ(bench::LastDate(marks), "2026-01-02T09:00:00Z");
  EXPECT_EQ(bench::Operators(marks), "B, A");
}

TEST(SavedRunMarks, AreNoneInATextThatTellsNothing) {
  EXPECT_TRUE(bench::SavedRunMarks("no XML <").empty());
  EXPECT_EQ(bench::LastDate({}), "");
  EXPECT_EQ(bench::Operators({}), "");
}

}  // namespace
}  // namespace archive_tests
