#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace bench {

/// When and by whom a result was made, as the archive keeps it.
struct SavedRunMark {
  std::string date;  ///< UTC, ISO; empty when it is not told
  std::string by;    ///< the operator; may be empty
};

/// What the text of a document tells of its elements' runs, by the elements' identifiers.
std::map<std::int32_t, SavedRunMark> SavedRunMarks(std::string_view document);

/// The date of the last of them; empty when none has one.
std::string LastDate(const std::map<std::int32_t, SavedRunMark>& marks);

/// The operators, each once, in the order of the elements: "A. Berg, K. Holm".
std::string Operators(const std::map<std::int32_t, SavedRunMark>& marks);

}  // namespace bench
