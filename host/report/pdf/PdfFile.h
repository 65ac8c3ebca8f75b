#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace host::report::pdf {

/// An entry of the outline that readers show beside the pages.
struct Bookmark {
  std::string title;     ///< UTF-8
  std::size_t page = 0;  ///< from 0
  double fromTop = 0;    ///< in points
  int level = 0;         ///< at most one deeper than the one before
};

struct Properties {
  std::string language;   ///< such as "en"; empty when unknown
  std::string created;    ///< "2026-11-21T14:03:22+01:00", or empty
  double pageHeight = 0;  ///< in points
};

/// Adds what Qt cannot write to its PDF file: the outline, the language, and the document's date instead of
/// the present one, so that the same report gives the same bytes.
/// @throws std::exception when the file cannot be read or written
std::string Completed(const std::string& pdf, const Properties& properties,
                      const std::vector<Bookmark>& bookmarks);

}  // namespace host::report::pdf
