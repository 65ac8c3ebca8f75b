#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace bench::pdf {

/// A place in the document that a reader can jump to.
struct Bookmark {
  std::string title;     ///< UTF-8
  std::size_t page = 0;  ///< from 0
  double fromTop = 0;    ///< in points
  int level = 0;         ///< at most one deeper than the one before
};

struct Properties {
  std::string title;      ///< UTF-8
  std::string language;   ///< such as "en"; empty when it is not known
  std::string created;    ///< "2026-11-21T14:03:22+01:00", or empty
  double pageHeight = 0;  ///< in points
};

/// Completes a PDF file as Qt writes it with what Qt cannot: bookmarks, the language, the date that belongs
/// to the document in the place of the present one, so that the same report gives the same bytes.
/// @throws std::runtime_error when the file is not made as this expects
std::string Completed(const std::string& pdf, const Properties& properties,
                      const std::vector<Bookmark>& bookmarks);

}  // namespace bench::pdf
