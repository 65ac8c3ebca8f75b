#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string>

#include "platform/LayoutEngine.h"

namespace orvik::platform {

void PrintTo(const Rect& rect, std::ostream* out) {
  *out << rect.left << "," << rect.top << " " << rect.width << "x" << rect.height;
}
void PrintTo(const Size& size, std::ostream* out) { *out << size.width << "x" << size.height; }

namespace {

using Rects = std::vector<Rect>;

/// A label and a field, the field's column taking what is left over.
Grid LabelAndField() {
  Grid grid;
  grid.rows = {{}};
  grid.columns = {{}, {0, 1}};
  grid.cells = {{"label", 0, 0}, {"field", 0, 1}};
  grid.margin = 100;
  grid.gap = 50;
  return grid;
}

TEST(Layout, NaturalSizeIsContentGapsAndMargins) {
  EXPECT_EQ(NaturalSize(LabelAndField(), {{300, 200}, {400, 250}}), (Size{300 + 50 + 400 + 200, 250 + 200}));
}

TEST(Layout, WeightedTrackGetsTheRemainingSpace) {
  EXPECT_EQ(Arrange(LabelAndField(), {{300, 200}, {400, 250}}, {2000, 450}),
            (Rects{{100, 100, 300, 250}, {450, 100, 1450, 250}}));
}

TEST(Layout, WithoutWeightSpaceStaysEmpty) {
  Grid grid = LabelAndField();
  grid.columns[1].weight = 0;
  EXPECT_EQ(Arrange(grid, {{300, 200}, {400, 250}}, {2000, 2000}),
            (Rects{{100, 100, 300, 250}, {450, 100, 400, 250}}));
}

TEST(Layout, SharesByWeightToTheLastTwip) {
  Grid grid;
  grid.rows = {{}};
  grid.columns = {{0, 1}, {0, 1}, {0, 1}};
  grid.cells = {{"a", 0, 0}, {"b", 0, 1}, {"c", 0, 2}};
  grid.margin = 0;
  grid.gap = 0;
  const auto rects = Arrange(grid, {{0, 10}, {0, 10}, {0, 10}}, {1000, 10});
  EXPECT_EQ(rects, (Rects{{0, 0, 333, 10}, {333, 0, 333, 10}, {666, 0, 334, 10}}));
  grid.columns = {{0, 1}, {0, 2}, {0, 5}};
  EXPECT_EQ(Arrange(grid, {{0, 10}, {0, 10}, {0, 10}}, {800, 10}),
            (Rects{{0, 0, 100, 10}, {100, 0, 200, 10}, {300, 0, 500, 10}}));
}

TEST(Layout, ATrackKeepsItsMinimum) {
  Grid grid = LabelAndField();
  grid.columns[0].minimum = 700;
  grid.rows[0].minimum = 600;
  EXPECT_EQ(NaturalSize(grid, {{300, 200}, {400, 250}}), (Size{700 + 50 + 400 + 200, 600 + 200}));
  EXPECT_EQ(Arrange(grid, {{300, 200}, {400, 250}}, {1350, 800}),
            (Rects{{100, 100, 700, 600}, {850, 100, 400, 600}}));
}

TEST(Layout, ATooSmallPanelCutsOffAtTheRightAndBelow) {
  EXPECT_EQ(Arrange(LabelAndField(), {{300, 200}, {400, 250}}, {100, 50}),
            (Rects{{100, 100, 300, 250}, {450, 100, 400, 250}}));
}

TEST(Layout, ALongCaptionWidensItsColumnForAllRows) {
  Grid grid = LabelAndField();
  grid.rows = {{}, {}};
  grid.cells = {{"label", 0, 0}, {"field", 0, 1}, {"long", 1, 0}, {"other", 1, 1}};
  const auto rects = Arrange(grid, {{300, 200}, {400, 250}, {900, 200}, {400, 200}}, {2000, 1000});
  EXPECT_EQ(rects[0], (Rect{100, 100, 900, 250}));
  EXPECT_EQ(rects[1], (Rect{1050, 100, 850, 250}));
  EXPECT_EQ(rects[2], (Rect{100, 400, 900, 200}));
}

TEST(Layout, ASpanningControlFillsItsTracksAndTheirGaps) {
  Grid grid = LabelAndField();
  grid.rows = {{}, {}};
  grid.cells.push_back({"title", 1, 0, 1, 2});
  const auto rects = Arrange(grid, {{300, 200}, {400, 200}, {100, 200}}, {950, 650});
  EXPECT_EQ(rects[2], (Rect{100, 350, 750, 200}));
}

TEST(Layout, LongSpanWidensTheWeightedTracks) {
  Grid grid = LabelAndField();
  grid.rows = {{}, {}};
  grid.cells.push_back({"title", 1, 0, 1, 2});
  EXPECT_EQ(NaturalSize(grid, {{300, 200}, {400, 200}, {1750, 200}}).width, 1750 + 200);
  const auto rects = Arrange(grid, {{300, 200}, {400, 200}, {1750, 200}}, {0, 0});
  EXPECT_EQ(rects[0].width, 300);
  EXPECT_EQ(rects[1].width, 1400);
}

TEST(Layout, LongSpanWithoutWeightsWidensTheLastTrack) {
  Grid grid = LabelAndField();
  grid.rows = {{}, {}};
  grid.columns = {{}, {}, {}};
  grid.cells.push_back({"title", 1, 0, 1, 3});
  const auto rects = Arrange(grid, {{300, 200}, {400, 200}, {1750, 200}}, {0, 0});
  EXPECT_EQ(rects[0].width, 300);
  EXPECT_EQ(rects[1].width, 1400);
  EXPECT_EQ(rects[2].width, 1750);
}

TEST(Layout, ASpanOverRowsWorksAsOneOverColumns) {
  Grid grid;
  grid.rows = {{}, {0, 1}};
  grid.columns = {{}, {}};
  grid.cells = {{"tall", 0, 0, 2, 1}, {"top", 0, 1}, {"bottom", 1, 1}};
  grid.margin = 0;
  grid.gap = 10;
  const auto rects = Arrange(grid, {{100, 500}, {100, 100}, {100, 100}}, {210, 500});
  EXPECT_EQ(rects, (Rects{{0, 0, 100, 500}, {110, 0, 100, 100}, {110, 110, 100, 390}}));
}

TEST(Layout, AHiddenRowVanishesWithItsGap) {
  Grid grid;
  grid.rows = {{}, {}, {}};
  grid.columns = {{0, 1}};
  grid.cells = {{"a", 0, 0}, {"hidden", 1, 0}, {"b", 2, 0}};
  grid.margin = 0;
  grid.gap = 50;
  EXPECT_EQ(NaturalSize(grid, {{100, 100}, {0, 0}, {100, 100}}).height, 250);
  const auto rects = Arrange(grid, {{100, 100}, {0, 0}, {100, 100}}, {100, 250});
  EXPECT_EQ(rects[2].top, 150);
  EXPECT_EQ(rects[1].height, 0);
}

TEST(Layout, AHiddenFirstRowLeavesNoGapAtTheTop) {
  Grid grid;
  grid.rows = {{}, {}};
  grid.columns = {{}};
  grid.cells = {{"hidden", 0, 0}, {"b", 1, 0}};
  grid.margin = 7;
  grid.gap = 50;
  EXPECT_EQ(Arrange(grid, {{0, 0}, {100, 100}}, {114, 114})[1], (Rect{7, 7, 100, 100}));
}

TEST(Layout, AControlThatDoesNotFillKeepsItsWidthAtItsSide) {
  Grid grid;
  grid.rows = {{}, {}, {}};
  grid.columns = {{0, 1}};
  grid.cells = {{"left", 0, 0, 1, 1, false, Alignment::kLeft},
                {"right", 1, 0, 1, 1, false, Alignment::kRight},
                {"centre", 2, 0, 1, 1, false, Alignment::kCentre}};
  grid.margin = 0;
  grid.gap = 0;
  const auto rects = Arrange(grid, {{100, 10}, {100, 10}, {101, 10}}, {1000, 30});
  EXPECT_EQ(rects, (Rects{{0, 0, 100, 10}, {900, 10, 100, 10}, {449, 20, 101, 10}}));
}

TEST(Layout, AnEmptyGridIsItsMargins) {
  Grid grid;
  EXPECT_EQ(NaturalSize(grid, {}), (Size{240, 240}));
  EXPECT_TRUE(Arrange(grid, {}, {1000, 1000}).empty());
}

void ExpectRefused(const Grid& grid, const std::vector<Size>& natural, const std::string& named) {
  try {
    NaturalSize(grid, natural);
    FAIL() << "the grid was accepted";
  } catch (const std::invalid_argument& error) {
    EXPECT_NE(std::string(error.what()).find(named), std::string::npos) << error.what();
  }
  EXPECT_THROW(Arrange(grid, natural, {100, 100}), std::invalid_argument);
}

TEST(Layout, RefusesCellsOutsideTheGrid) {
  const auto with = [](Cell cell) {
    Grid grid = LabelAndField();
    grid.cells[1] = std::move(cell);
    return grid;
  };
  const std::vector<Size> sizes{{1, 1}, {1, 1}};
  ExpectRefused(with({"field", 1, 0}), sizes, "field");
  ExpectRefused(with({"field", -1, 0}), sizes, "field");
  ExpectRefused(with({"field", 0, 2}), sizes, "field");
  ExpectRefused(with({"field", 0, 1, 1, 2}), sizes, "field");
  ExpectRefused(with({"field", 0, 1, 0, 1}), sizes, "field");
  ExpectRefused(with({"field", 0, 1, 2147483647, 1}), sizes, "field");
}

TEST(Layout, RefusesNegativeTracksAndMissingSizes) {
  Grid grid = LabelAndField();
  ExpectRefused(grid, {{1, 1}}, "size");
  grid.columns[1].weight = -1;
  ExpectRefused(grid, {{1, 1}, {1, 1}}, "negative");
  grid = LabelAndField();
  grid.rows[0].minimum = -1;
  ExpectRefused(grid, {{1, 1}, {1, 1}}, "negative");
}

/// Random grids: controls of different cells never overlap, nothing is smaller
/// than it asked for, and a panel of the natural size or more holds everything.
class RandomGrids : public testing::TestWithParam<unsigned> {
 protected:
  int Pick(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

  void Make() {
    const int rows = Pick(1, 6);
    const int columns = Pick(1, 6);
    for (int row = 0; row < rows; ++row)
      grid_.rows.push_back({Pick(0, 3) == 0 ? Pick(0, 500) : 0, Pick(0, 2)});
    for (int column = 0; column < columns; ++column)
      grid_.columns.push_back({Pick(0, 3) == 0 ? Pick(0, 500) : 0, Pick(0, 2)});
    for (int row = 0; row < rows; ++row) {
      for (int column = 0; column < columns;) {
        Cell cell{"c", row, column};
        cell.columnSpan = Pick(1, columns - column);
        cell.fill = Pick(0, 1) == 0;
        cell.alignment = static_cast<Alignment>(Pick(0, 2));
        grid_.cells.push_back(cell);
        natural_.push_back(Pick(0, 4) == 0 ? Size{} : Size{Pick(1, 2000), Pick(1, 600)});
        column += cell.columnSpan;
      }
    }
    grid_.margin = Pick(0, 200);
    grid_.gap = Pick(0, 200);
  }

  void Check(const Rects& rects, Size inner) {
    for (std::size_t index = 0; index < rects.size(); ++index) {
      const Rect& rect = rects[index];
      EXPECT_GE(rect.width, natural_[index].width);
      EXPECT_GE(rect.height, natural_[index].height);
      if (natural_[index] == Size{}) continue;
      EXPECT_GE(rect.left, grid_.margin);
      EXPECT_GE(rect.top, grid_.margin);
      EXPECT_LE(rect.left + rect.width, inner.width - grid_.margin);
      EXPECT_LE(rect.top + rect.height, inner.height - grid_.margin);
      for (std::size_t other = index + 1; other < rects.size(); ++other) {
        if (natural_[other] != Size{}) {
          EXPECT_TRUE(Apart(rect, rects[other]));
        }
      }
    }
  }

  static bool Apart(const Rect& a, const Rect& b) {
    return a.left + a.width <= b.left || b.left + b.width <= a.left || a.top + a.height <= b.top ||
           b.top + b.height <= a.top;
  }

  std::mt19937 random_{GetParam()};
  Grid grid_;
  std::vector<Size> natural_;
};

TEST_P(RandomGrids, HoldEverythingApart) {
  SCOPED_TRACE("seed " + std::to_string(GetParam()));
  Make();
  const Size natural = NaturalSize(grid_, natural_);
  Check(Arrange(grid_, natural_, natural), natural);
  const Size larger{natural.width + Pick(0, 5000), natural.height + Pick(0, 5000)};
  Check(Arrange(grid_, natural_, larger), larger);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomGrids, testing::Range(1U, 301U));

}  // namespace
}  // namespace orvik::platform
