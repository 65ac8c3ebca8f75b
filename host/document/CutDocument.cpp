#include "host/document/CutDocument.h"

namespace bench {
namespace {

constexpr auto kNowhere = std::string_view::npos;
constexpr std::string_view kBeginOfAll = "<Elements>";
constexpr std::string_view kEndOfAll = "</Elements>";
constexpr std::string_view kBeginOfOne = "<TestElement";
constexpr std::string_view kEndOfOne = "</TestElement>";
constexpr std::string_view kBlanks = " \t\r\n";

/// A piece is about as long: its text and tree fit into a processor's cache.
constexpr std::size_t kPiece = 64 * 1024;

bool StandsAt(std::string_view text, std::size_t place, std::string_view expected) {
  return place != kNowhere && text.substr(place, expected.size()) == expected;
}

/// How the line begins in which an element ends as deep in the document as the one that begins there;
/// elements inside it stand further to the right.
std::string EndLine(std::string_view text, std::size_t place) {
  const auto line = text.find_last_not_of(" \t", place - 1);
  return "\n" + std::string(text.substr(line + 1, place - line - 1)) + std::string(kEndOfOne);
}

/// Where the piece ends that begins there: behind an element that ends with such a line.
std::size_t EndOfPiece(std::string_view text, std::size_t place, const std::string& endLine) {
  auto end = text.find(endLine, place + kPiece);
  if (end == kNowhere) end = text.rfind(endLine);
  return end == kNowhere || end < place ? kNowhere : end + endLine.size();
}

}  // namespace

CutDocument::CutDocument(std::string_view text) {
  const auto tag = text.find(kBeginOfAll);
  if (tag == kNowhere) return;
  const auto begin = tag + kBeginOfAll.size();
  auto place = text.find_first_not_of(kBlanks, begin);
  if (!StandsAt(text, place, kBeginOfOne)) return;
  const auto endLine = EndLine(text, place);
  std::vector<std::string_view> pieces;
  while (StandsAt(text, place, kBeginOfOne)) {
    const auto end = EndOfPiece(text, place, endLine);
    if (end == kNowhere) return;
    pieces.push_back(text.substr(place, end - place));
    place = text.find_first_not_of(kBlanks, end);
  }
  if (!StandsAt(text, place, kEndOfAll)) return;
  pieces_ = std::move(pieces);
  frame_.append(text.substr(0, begin)).append(text.substr(place));
  tag_ = static_cast<std::ptrdiff_t>(tag + 1);
}

}  // namespace bench
