#include <gtest/gtest.h>

#include "host/base/TextColumns.h"

namespace host {
namespace {

TEST(TextColumns, AlignInEveryLanguage) {
  EXPECT_EQ(
      Columned(
          {{"Nr.", "Ergebnis", "Seriennummer"}, {"7", "nicht bestanden", "A"}, {"12", "\u5408\u683C", "B"}},
          {0}),
      "Nr.  Ergebnis         Seriennummer\n"
      "  7  nicht bestanden  A\n"
      " 12  \u5408\u683C             B\n");
}

TEST(TextColumns, AVeryLongCellShiftsOnlyItsOwnLine) {
  EXPECT_EQ(Columned({{"a", "b"}, {"longer than five", "c"}}, {}, 5), "a  b\nlonger than five  c\n");
}

TEST(TextColumns, HaveNoTrailingBlanks) {
  EXPECT_EQ(Columned({{"a", "", "c"}, {"a", "", ""}, {}}), "a    c\na\n\n");
}

}  // namespace
}  // namespace host
