#pragma once

#include <string>
#include <utility>
#include <vector>

namespace host::document {

/// Why a result is doubted or does not count: a code for programs, and what it is about. The sentence for
/// people is made where it is shown, in the reader's language.
struct Reason {
  std::string code;                    ///< such as "late-reply"; lower-case words joined by hyphens
  std::vector<std::string> arguments;  ///< in the order in which the sentence names them

  bool operator==(const Reason&) const = default;
};

}  // namespace host::document
