#include "host/cli/help/Suggestions.h"

#include <algorithm>
#include <limits>

#include "host/base/Text.h"
#include "host/base/Tr.h"

namespace host::cli {

namespace {

constexpr std::size_t kShortestBeginning = 3;
/// Longer words are not mistyped names; the cost grows with the square of the length.
constexpr std::size_t kLongestWord = 40;

std::string Bare(std::string_view word) {
  word.remove_prefix(std::min(word.find_first_not_of('-'), word.size()));
  return LowerAscii(word);
}

/// How many letters have to be put in, left out, replaced or exchanged with the next one.
std::size_t Distance(const std::string& from, const std::string& to) {
  std::vector<std::size_t> above, last, row(to.size() + 1);
  for (std::size_t j = 0; j <= to.size(); ++j) row[j] = j;
  for (std::size_t i = 1; i <= from.size(); ++i) {
    above = std::move(last);
    last = row;
    row[0] = i;
    for (std::size_t j = 1; j <= to.size(); ++j) {
      const std::size_t wrong = from[i - 1] == to[j - 1] ? 0 : 1;
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + wrong});
      const bool exchanged = i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1];
      if (exchanged) row[j] = std::min(row[j], above[j - 2] + 1);
    }
  }
  return row.back();
}

/// So many mistakes are likely in a word of that length.
std::size_t MistakesIn(std::size_t length) { return length <= 4 ? 1 : length <= 8 ? 2 : 3; }

}  // namespace

std::string Nearest(std::string_view word, const std::vector<std::string>& candidates) {
  const auto typed = Bare(word);
  if (typed.empty() || typed.size() > kLongestWord) return {};
  std::string nearest;
  auto fewest = std::numeric_limits<std::size_t>::max();
  for (const auto& candidate : candidates) {
    const auto name = Bare(candidate);
    const bool begins = typed.size() >= kShortestBeginning && name.starts_with(typed);
    const auto mistakes = begins ? 1 : Distance(typed, name);
    // With every letter wrong it is another word.
    if (mistakes > MistakesIn(typed.size()) || mistakes >= name.size() || mistakes >= fewest) continue;
    fewest = mistakes;
    nearest = candidate;
  }
  return nearest;
}

std::string UnknownCommand(const std::string& word, const std::vector<std::string>& candidates) {
  const auto meant = Nearest(word, candidates);
  return meant.empty() ? Tr("unknown command \"%%1\"", {word})
                       : Tr("unknown command \"%%1\": did you mean \"%%2\"?", {word, meant});
}

}  // namespace host::cli
