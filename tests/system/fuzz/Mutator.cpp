#include "tests/system/fuzz/Mutator.h"

#include <algorithm>

namespace fuzz {

namespace {

constexpr std::size_t kMostChanges = 5;
constexpr std::size_t kMostRepeats = 400;

}  // namespace

std::string Mutator::Next() {
  auto text = AnyOf(corpus_);
  for (std::size_t changes = 1 + Below(kMostChanges); changes > 0; --changes) Change(text);
  text.resize(std::min(text.size(), kLargest));
  return text;
}

void Mutator::Change(std::string& text) {
  constexpr void (Mutator::*kChanges[])(std::string&) = {
      &Mutator::FlipBit,          &Mutator::SetByte, &Mutator::Cut,        &Mutator::CutShort,
      &Mutator::Double,           &Mutator::Repeat,  &Mutator::InsertWord, &Mutator::OverwriteWithWord,
      &Mutator::TakePartOfAnother};
  (this->*kChanges[Below(std::size(kChanges))])(text);
}

/// Small parts are as likely as large ones.
Mutator::Part Mutator::PartOf(const std::string& text) {
  const auto longest = std::min<std::size_t>(text.size(), std::size_t{1} << Below(13));
  const auto length = Below(longest + 1);
  return {Below(text.size() - length + 1), length};
}

void Mutator::FlipBit(std::string& text) {
  if (text.empty()) return;
  auto& byte = text[Below(text.size())];
  byte = static_cast<char>(byte ^ (1 << Below(8)));
}

void Mutator::SetByte(std::string& text) {
  static constexpr char kTelling[] = {'\0', '\1', '\2', '\n',   '\r',   '\t',   ' ',   '"', '\\',
                                      ',',  '<',  '>',  '&',    '-',    '0',    '9',   '{', '[',
                                      '=',  '#',  '%',  '\x7F', '\x80', '\xC2', '\xFF'};
  if (text.empty()) return;
  text[Below(text.size())] = kTelling[Below(std::size(kTelling))];
}

void Mutator::Cut(std::string& text) {
  const auto part = PartOf(text);
  text.erase(part.at, part.length);
}

void Mutator::CutShort(std::string& text) { text.resize(Below(text.size() + 1)); }

void Mutator::Double(std::string& text) {
  const auto part = PartOf(text);
  text.insert(Below(text.size() + 1), text.substr(part.at, part.length));
}

void Mutator::Repeat(std::string& text) {
  const auto part = PartOf(text);
  const auto repeated = text.substr(part.at, part.length);
  std::string added;
  for (auto times = Below(kMostRepeats); times > 0 && added.size() < kLargest; --times) added += repeated;
  text.insert(part.at, added);
}

void Mutator::InsertWord(std::string& text) { text.insert(Below(text.size() + 1), AnyOf(dictionary_)); }

void Mutator::OverwriteWithWord(std::string& text) {
  const auto part = PartOf(text);
  text.replace(part.at, part.length, AnyOf(dictionary_));
}

void Mutator::TakePartOfAnother(std::string& text) {
  const auto& other = AnyOf(corpus_);
  const auto part = PartOf(other);
  text.insert(Below(text.size() + 1), other, part.at, part.length);
}

}  // namespace fuzz
