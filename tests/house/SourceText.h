#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace house {

/// A C++ text taken apart. Both parts keep the text's line breaks, so that line numbers stay right.
struct SourceText {
  std::string code;      ///< without comments; literals are empty ("")
  std::string comments;  ///< the comments alone
};

/// Takes a C++ text apart: comments of both kinds, string, raw string and character literals.
SourceText TakeApart(std::string_view text);

/// One `#include` line.
struct Include {
  std::string name;
  bool quoted = false;  ///< "name", not <name>
  int line = 0;         ///< from 1
};

/// The `#include` lines of a C++ text and its parts, in order; what stands in comments and literals is none.
std::vector<Include> Includes(std::string_view text, const SourceText& parts);

/// The lines of a text, without their ends.
std::vector<std::string> Lines(std::string_view text);

/// Whether `word` stands in `code` as a whole: no letter, digit or underscore right before or after it.
bool HasWord(std::string_view code, std::string_view word);

}  // namespace house
