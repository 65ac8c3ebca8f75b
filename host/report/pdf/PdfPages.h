#pragma once

#include <QPainter>
#include <functional>
#include <string>
#include <vector>

#include "host/report/drawing/PageStyle.h"
#include "host/report/pdf/PdfFile.h"

namespace host::report::pdf {

/// Pages that are filled from the top. They are drawn when all are known, since each shows how many there
/// are.
class PdfPages {
 public:
  using Drawing = std::function<void(QPainter&)>;

  PdfPages() { NewPage(); }

  void NewPage();
  /// Where the next part starts, from the top of the page.
  double Y() const { return y_; }
  double Room() const { return drawing::kBodyBottom - y_; }
  static constexpr double FullPage() { return drawing::kBodyBottom - drawing::kBodyTop; }
  bool AtTop() const { return y_ <= drawing::kBodyTop; }
  /// Starts a new page if this one lacks that much room, and an empty one has it.
  void Ensure(double height);
  void Advance(double height) { y_ += height; }
  /// Space between parts; none at the top of a page.
  void Gap(double height);
  /// A line across the page, in the gap that follows; none at the top of a page.
  void Line();
  /// Draws on the current page, at places of the drawing's own.
  void Draw(Drawing drawing) { pages_.back().push_back(std::move(drawing)); }
  /// A bookmark to this place.
  void Mark(const std::string& title, int level);

  const std::vector<Bookmark>& Bookmarks() const { return bookmarks_; }
  /// The file, with the report's header on every page.
  std::string Write(const report::Report& report) const;

 private:
  std::vector<std::vector<Drawing>> pages_;
  std::vector<Bookmark> bookmarks_;
  double y_ = 0;
};

}  // namespace host::report::pdf
