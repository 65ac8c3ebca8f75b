#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace fuzz {

/// Makes new inputs of known ones. The same seed makes the same inputs.
class Mutator {
 public:
  static constexpr std::size_t kLargest = 8 * 1024;

  /// @param corpus inputs to begin with, at least one
  /// @param dictionary words that mean something in them
  Mutator(std::vector<std::string> corpus, std::vector<std::string> dictionary, unsigned seed)
      : corpus_(std::move(corpus)), dictionary_(std::move(dictionary)), random_(seed) {}

  /// An input of the corpus with one to five changes, of at most `kLargest` bytes.
  std::string Next();

 private:
  /// A part of a text: where it begins and how long it is.
  struct Part {
    std::size_t at = 0, length = 0;
  };

  /// 0 to below `end`; 0 when that is 0.
  std::size_t Below(std::size_t end) { return end == 0 ? 0 : random_() % end; }
  const std::string& AnyOf(const std::vector<std::string>& texts) { return texts[Below(texts.size())]; }
  Part PartOf(const std::string& text);

  void Change(std::string& text);
  void FlipBit(std::string& text);
  void SetByte(std::string& text);
  void Cut(std::string& text);
  void CutShort(std::string& text);
  void Double(std::string& text);
  void Repeat(std::string& text);
  void InsertWord(std::string& text);
  void OverwriteWithWord(std::string& text);
  void TakePartOfAnother(std::string& text);

  const std::vector<std::string> corpus_;
  const std::vector<std::string> dictionary_;
  std::mt19937 random_;
};

}  // namespace fuzz
