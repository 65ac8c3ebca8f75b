#pragma once

#include <QPainter>
#include <functional>
#include <string>
#include <vector>

#include "host/pdf/PdfFile.h"
#include "host/pdf/PdfStyle.h"

namespace bench::pdf {

/// Pages that are filled from the top; drawn when all are known, since each says how many there are.
class PdfPages {
 public:
  using Drawing = std::function<void(QPainter&)>;

  PdfPages() { NewPage(); }

  void NewPage();
  /// Where the next thing goes, from the top of the page.
  double Y() const { return y_; }
  double Room() const { return kBodyBottom - y_; }
  static constexpr double FullPage() { return kBodyBottom - kBodyTop; }
  bool AtTop() const { return y_ <= kBodyTop; }
  /// Goes to a new page unless there is that much room, or no page has it.
  void Ensure(double height);
  void Advance(double height) { y_ += height; }
  /// Space between things; none at the top of a page.
  void Gap(double height);
  /// Something on the present page, at places of its own.
  void Draw(Drawing drawing) { pages_.back().push_back(std::move(drawing)); }
  /// A bookmark to this place.
  void Mark(const std::string& title, int level);

  std::size_t Count() const { return pages_.size(); }
  const std::vector<Bookmark>& Bookmarks() const { return bookmarks_; }
  /// The file, with the report's header on every page.
  std::string Write(const report::Report& report) const;

 private:
  std::vector<std::vector<Drawing>> pages_;
  std::vector<Bookmark> bookmarks_;
  double y_ = 0;
};

}  // namespace bench::pdf
