#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

namespace languages {

/// The delivered languages beside English.
inline const std::array<std::string, 4> kAll{"de", "es", "fr", "zh"};
inline const std::array<std::string, 3> kModules{"KELD", "orvik", "orvik-bench"};

inline std::filesystem::path Folder() {
  return std::filesystem::path(SOURCE_PATH) / "packaging" / "translations";
}

/// One entry of a gettext file, its texts unescaped.
struct Entry {
  std::size_t line = 0;
  std::string context;  ///< the number of a numbered text
  std::string english;
  std::string translated;
  bool fuzzy = false;
};

/// All entries but the header, untranslated ones too. The program's own reader omits those.
std::vector<Entry> EntriesOf(const std::filesystem::path& file);

std::string Contents(const std::filesystem::path& file);

}  // namespace languages
