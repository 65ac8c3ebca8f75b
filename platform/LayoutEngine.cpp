#include "platform/LayoutEngine.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <stdexcept>
#include <string>
#include <utility>

namespace orvik::platform {
namespace {

/// What one control needs of the tracks of one direction.
struct Span {
  std::size_t first = 0;
  std::size_t count = 1;
  Twips natural = 0;
};

/// A whole length in parts by weight; the parts add up to it exactly.
std::vector<Twips> Shares(Twips total, const std::vector<int>& weights) {
  const std::int64_t sum = std::accumulate(weights.begin(), weights.end(), std::int64_t{0});
  std::vector<Twips> shares(weights.size(), 0);
  if (sum == 0) return shares;
  std::int64_t weightSoFar = 0;
  Twips given = 0;
  for (std::size_t index = 0; index < weights.size(); ++index) {
    weightSoFar += weights[index];
    const auto upTo = static_cast<Twips>(total * weightSoFar / sum);
    shares[index] = upTo - given;
    given = upTo;
  }
  return shares;
}

/// The rows or the columns of one grid with their sizes.
class Tracks {
 public:
  Tracks(const std::vector<Track>& tracks, Twips gap, std::vector<Span> spans) : tracks_(tracks), gap_(gap) {
    for (const Track& track : tracks) sizes_.push_back(track.minimum);
    // Short spans first, so that a long one only adds what its tracks lack.
    std::stable_sort(spans.begin(), spans.end(),
                     [](const Span& a, const Span& b) { return a.count < b.count; });
    for (const Span& span : spans) Fit(span);
  }

  Twips Length() const { return LengthOf(0, sizes_.size()); }

  void ShareOut(Twips leftOver) {
    if (leftOver > 0) Grow(0, sizes_.size(), leftOver);
  }

  Twips StartOf(std::size_t track) const {
    const Twips before = LengthOf(0, track);
    return before == 0 && !AnyInUse(0, track) ? 0 : before + gap_;
  }

  Twips LengthOf(std::size_t first, std::size_t end) const {
    Twips length = 0;
    bool anyBefore = false;
    for (std::size_t index = first; index < end; ++index) {
      if (!InUse(index)) continue;
      length += sizes_[index] + (anyBefore ? gap_ : 0);
      anyBefore = true;
    }
    return length;
  }

 private:
  bool InUse(std::size_t index) const { return sizes_[index] > 0 || tracks_[index].weight > 0; }
  bool AnyInUse(std::size_t first, std::size_t end) const {
    for (std::size_t index = first; index < end; ++index) {
      if (InUse(index)) return true;
    }
    return false;
  }

  void Fit(const Span& span) {
    const std::size_t end = span.first + span.count;
    const Twips missing = span.natural - LengthOf(span.first, end);
    if (missing <= 0 || Grow(span.first, end, missing)) return;
    std::size_t last = end - 1;
    while (last > span.first && !InUse(last)) --last;
    sizes_[last] += missing;
  }

  /// Shares a length among the weighted tracks; false when there are none.
  bool Grow(std::size_t first, std::size_t end, Twips length) {
    std::vector<int> weights;
    for (std::size_t index = first; index < end; ++index) weights.push_back(tracks_[index].weight);
    if (std::all_of(weights.begin(), weights.end(), [](int weight) { return weight == 0; })) return false;
    const auto shares = Shares(length, weights);
    for (std::size_t index = first; index < end; ++index) sizes_[index] += shares[index - first];
    return true;
  }

  const std::vector<Track>& tracks_;
  Twips gap_;
  std::vector<Twips> sizes_;
};

void CheckTracks(const std::vector<Track>& tracks) {
  for (const Track& track : tracks) {
    if (track.minimum < 0 || track.weight < 0)
      throw std::invalid_argument("a row or column of the grid has a negative minimum or weight");
  }
}

bool Fits(int first, int span, std::size_t count) {
  return first >= 0 && span >= 1 && std::int64_t{first} + span <= static_cast<std::int64_t>(count);
}

void Check(const Grid& grid, std::size_t sizes) {
  CheckTracks(grid.rows);
  CheckTracks(grid.columns);
  if (sizes != grid.cells.size())
    throw std::invalid_argument("the grid needs one natural size for each cell");
  for (const Cell& cell : grid.cells) {
    if (!Fits(cell.row, cell.rowSpan, grid.rows.size()) ||
        !Fits(cell.column, cell.columnSpan, grid.columns.size()))
      throw std::invalid_argument("the cell of \"" + cell.control + "\" lies outside the grid");
  }
}

Tracks Columns(const Grid& grid, const std::vector<Size>& natural) {
  std::vector<Span> spans;
  for (std::size_t index = 0; index < natural.size(); ++index) {
    const Cell& cell = grid.cells[index];
    spans.push_back({static_cast<std::size_t>(cell.column), static_cast<std::size_t>(cell.columnSpan),
                     natural[index].width});
  }
  return {grid.columns, grid.gap, std::move(spans)};
}

Tracks Rows(const Grid& grid, const std::vector<Size>& natural) {
  std::vector<Span> spans;
  for (std::size_t index = 0; index < natural.size(); ++index) {
    const Cell& cell = grid.cells[index];
    spans.push_back(
        {static_cast<std::size_t>(cell.row), static_cast<std::size_t>(cell.rowSpan), natural[index].height});
  }
  return {grid.rows, grid.gap, std::move(spans)};
}

Rect Place(const Grid& grid, const Cell& cell, const Tracks& columns, const Tracks& rows,
           Twips naturalWidth) {
  const auto column = static_cast<std::size_t>(cell.column);
  const auto row = static_cast<std::size_t>(cell.row);
  Rect rect{grid.margin + columns.StartOf(column), grid.margin + rows.StartOf(row),
            columns.LengthOf(column, column + static_cast<std::size_t>(cell.columnSpan)),
            rows.LengthOf(row, row + static_cast<std::size_t>(cell.rowSpan))};
  if (cell.fill) return rect;
  const Twips room = rect.width - naturalWidth;
  if (cell.alignment == Alignment::kRight) rect.left += room;
  if (cell.alignment == Alignment::kCentre) rect.left += room / 2;
  rect.width = naturalWidth;
  return rect;
}

}  // namespace

std::vector<Rect> Arrange(const Grid& grid, const std::vector<Size>& natural, Size inner) {
  Check(grid, natural.size());
  Tracks columns = Columns(grid, natural);
  Tracks rows = Rows(grid, natural);
  columns.ShareOut(inner.width - 2 * grid.margin - columns.Length());
  rows.ShareOut(inner.height - 2 * grid.margin - rows.Length());
  std::vector<Rect> rects;
  for (std::size_t index = 0; index < natural.size(); ++index)
    rects.push_back(Place(grid, grid.cells[index], columns, rows, natural[index].width));
  return rects;
}

Size NaturalSize(const Grid& grid, const std::vector<Size>& natural) {
  Check(grid, natural.size());
  return {Columns(grid, natural).Length() + 2 * grid.margin, Rows(grid, natural).Length() + 2 * grid.margin};
}

}  // namespace orvik::platform
