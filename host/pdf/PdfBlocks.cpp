#include "host/pdf/PdfBlocks.h"

#include <algorithm>

namespace bench::pdf {
namespace {

constexpr double kPadding = 420, kSign = 1500;
constexpr double kTextLeft = kPadding + kSign + 480;

}  // namespace

void TextBlock::Place(PdfPages& pages) const {
  for (std::size_t first = 0; first < text_.Lines();) {
    auto count = text_.Fitting(first, pages.Room());
    if (count == 0 && !pages.AtTop()) {
      pages.NewPage();
      continue;
    }
    count = std::max<std::size_t>(count, 1);
    pages.Draw([text = text_, y = pages.Y(), first, count](QPainter& painter) {
      text.Draw(painter, {kMargin, y}, first, count);
    });
    pages.Advance(text_.HeightOf(first, count));
    first += count;
  }
}

void HeadingBlock::Place(PdfPages& pages) const {
  pages.Mark(title_, 0);
  pages.Draw([text = text_, y = pages.Y()](QPainter& painter) {
    text.Draw(painter, {kMargin, y});
    painter.setPen(QPen(kAccent, 24));
    const double line = y + text.Height() + 60;
    painter.drawLine(QPointF(kMargin, line), QPointF(kMargin + kUsable, line));
  });
  pages.Advance(Height());
}

VerdictBlock::VerdictBlock(const report::Verdict& verdict)
    : standing_(verdict.standing),
      word_(verdict.word, kUsable - kTextLeft - kPadding, {46, true, Qt::white}),
      sentence_(verdict.sentence, kUsable - kTextLeft - kPadding, {14, false, Qt::white}) {}

double VerdictBlock::Height() const {
  return std::max(word_.Height() + sentence_.Height(), kSign) + 2 * kPadding;
}

void VerdictBlock::Place(PdfPages& pages) const {
  pages.Ensure(Height());
  pages.Draw([standing = standing_, word = word_, sentence = sentence_, y = pages.Y(),
              height = Height()](QPainter& painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(ColourOf(standing));
    painter.drawRoundedRect(QRectF(kMargin, y, kUsable, height), 160, 160);
    DrawSign(painter, standing, {kMargin + kPadding, y + (height - kSign) / 2, kSign, kSign}, Qt::white);
    const double top = y + (height - word.Height() - sentence.Height()) / 2;
    word.Draw(painter, {kMargin + kTextLeft, top});
    sentence.Draw(painter, {kMargin + kTextLeft, top + word.Height()});
  });
  pages.Advance(Height());
}

void PlaceTogether(const Blocks& blocks, PdfPages& pages) {
  double height = 0;
  for (const auto& block : blocks) height += block->Height();
  pages.Ensure(height);
  for (const auto& block : blocks) block->Place(pages);
}

}  // namespace bench::pdf
