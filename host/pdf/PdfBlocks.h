#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/pdf/PdfPages.h"
#include "host/pdf/PdfText.h"

namespace bench::pdf {

/// Something that takes its place on the pages: its height is known before, so that things can be kept
/// together.
class Block {
 public:
  Block() = default;
  Block(const Block&) = delete;
  Block& operator=(const Block&) = delete;
  virtual ~Block() = default;

  /// On a page that has room for all of it.
  virtual double Height() const = 0;
  virtual void Place(PdfPages& pages) const = 0;
};

using Blocks = std::vector<std::unique_ptr<Block>>;

/// Space.
class GapBlock final : public Block {
 public:
  explicit GapBlock(double height) : height_(height) {}
  double Height() const override { return height_; }
  void Place(PdfPages& pages) const override { pages.Gap(height_); }

 private:
  double height_;
};

/// Text over the whole width, broken at the end of a page.
class TextBlock final : public Block {
 public:
  TextBlock(const std::string& text, const TextStyle& style) : text_(text, kUsable, style) {}
  double Height() const override { return text_.Height(); }
  void Place(PdfPages& pages) const override;

 private:
  PdfText text_;
};

/// A heading of a part of the report, with a line below it.
class HeadingBlock final : public Block {
 public:
  explicit HeadingBlock(const std::string& text) : text_(text, kUsable, {15, true, kAccent}), title_(text) {}
  double Height() const override { return text_.Height() + 240; }
  void Place(PdfPages& pages) const override;

 private:
  PdfText text_;
  std::string title_;
};

/// The one verdict, to be read from across the room.
class VerdictBlock final : public Block {
 public:
  explicit VerdictBlock(const report::Verdict& verdict);
  double Height() const override;
  void Place(PdfPages& pages) const override;

 private:
  report::Standing standing_;
  PdfText word_;
  PdfText sentence_;
};

/// Places blocks one after the other, on one page where a page has room for them.
void PlaceTogether(const Blocks& blocks, PdfPages& pages);

}  // namespace bench::pdf
