#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

/// One line of a text file that says something: not empty, not a comment.
struct TextLine {
  int number;        ///< counted from 1
  std::string text;  ///< without blanks at either end
};

/// The lines of `content` that are neither empty nor comments (first character '#'). CR LF and a leading
/// byte-order mark are taken as well. Throws InputError, naming `name` and the line, for a control character
/// or for text that is not UTF-8 within ISO 8859-1.
std::vector<TextLine> SplitTextLines(std::string_view content, const std::string& name);

inline constexpr std::size_t kLargestTextFile = 1024 * 1024;      ///< a profile or a fault script
inline constexpr std::size_t kLargestWireLog = 16 * 1024 * 1024;  ///< orvik-bench ends its logs at 4 MiB

/// Reads a whole regular file of at most `largest` bytes. Throws InputError, naming the file, when it cannot.
std::string ReadTextFile(const std::string& path, std::size_t largest = kLargestTextFile);

/// Throws InputError "NAME:LINE: MESSAGE".
[[noreturn]] void FailAt(const std::string& name, int line, const std::string& message);

}  // namespace sim
