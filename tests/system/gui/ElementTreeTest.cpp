// Colours of the tree of elements.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPalette>
#include <QTreeWidget>
#include <algorithm>
#include <cmath>
#include <set>
#include <vector>

#include "host/gui/ElementTree.h"

namespace desktop_test {
namespace {

using host::gui::ElementTree;

constexpr int kResultColumn = 2;

host::judge::JudgedDocument One(host::judge::Verdict verdict) {
  host::judge::JudgedDocument document;
  document.elements.emplace_back();
  document.elements.back().id = 1;
  document.elements.back().verdict = verdict;
  return document;
}

host::judge::JudgedDocument OnePassed() { return One(host::judge::Verdict::kPassed); }

double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one), b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

/// The strongest contrast of the result's word to its background.
double ContrastOfResult(ElementTree& tree) {
  tree.resize(900, 200);
  tree.show();
  const auto picture = tree.viewport()->grab().toImage();
  const auto row = tree.visualItemRect(tree.topLevelItem(0));
  const int left = tree.columnViewportPosition(kResultColumn), width = tree.columnWidth(kResultColumn);
  // Behind the sign.
  const QRect place(left + 30, row.top() + 1, width - 36, row.height() - 2);
  const auto ground = picture.pixelColor(place.bottomRight());
  double strongest = 1;
  for (int x = place.left(); x <= place.right(); ++x)
    for (int y = place.top(); y <= place.bottom(); ++y)
      strongest = std::max(strongest, Contrast(picture.pixelColor(x, y), ground));
  return strongest;
}

constexpr double kReadable = 4.5;

TEST(ElementTreeTest, LongName_KeepsItsEnd) {
  const ElementTree tree;
  EXPECT_EQ(tree.textElideMode(), Qt::ElideMiddle);
}

TEST(ElementTreeTest, EveryVerdictHasItsSign_OnlyPassedIsGreen) {
  using host::judge::Verdict;
  std::vector<QImage> signs;
  std::set<QString> words;
  for (const auto verdict :
       {Verdict::kFailed, Verdict::kDoubtful, Verdict::kAborted, Verdict::kNotTested, Verdict::kNotJudged,
        Verdict::kRecorded, Verdict::kNotApplicable, Verdict::kPassed}) {
    ElementTree tree;
    tree.Show(One(verdict), 0);
    const auto* row = tree.topLevelItem(0);
    words.insert(row->text(kResultColumn));
    // As drawn: signs must differ in more than colour.
    auto sign = row->icon(kResultColumn).pixmap(32, 32).toImage().convertToFormat(QImage::Format_ARGB32);
    const auto colour = row->foreground(kResultColumn).color();
    EXPECT_EQ(colour.green() > colour.red() && colour.green() > colour.blue(), verdict == Verdict::kPassed)
        << row->text(kResultColumn).toStdString();
    for (int x = 0; x < sign.width(); ++x)
      for (int y = 0; y < sign.height(); ++y)
        sign.setPixelColor(x, y, sign.pixelColor(x, y).lightness() > 200 ? Qt::white : Qt::black);
    EXPECT_EQ(std::count(signs.begin(), signs.end(), sign), 0) << row->text(kResultColumn).toStdString();
    signs.push_back(sign);
  }
  EXPECT_EQ(words.size(), signs.size());
}

TEST(ElementTreeTest, ResultIsReadableInEveryRow) {
  ElementTree tree;
  tree.Show(OnePassed(), 0);
  EXPECT_GT(ContrastOfResult(tree), kReadable);
  // There it is as readable as everything else.
  tree.Choose(1);
  const auto palette = tree.palette();
  EXPECT_NEAR(ContrastOfResult(tree),
              Contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), 0.2);
}

TEST(ElementTreeTest, ResultIsReadableOnDarkBackground) {
  ElementTree tree;
  auto dark = tree.palette();
  dark.setColor(QPalette::Base, QColor(30, 30, 34));
  dark.setColor(QPalette::AlternateBase, QColor(40, 40, 44));
  dark.setColor(QPalette::Text, Qt::white);
  tree.setPalette(dark);
  tree.Show(OnePassed(), 0);
  EXPECT_GT(ContrastOfResult(tree), kReadable);
}

TEST(ElementTreeTest, ShowsMarkupAsText) {
  auto document = OnePassed();
  document.elements.back().name = "<b>failed</b>";
  document.elements.back().reasons = {{"negative-reading", {"<i>none</i>"}}};
  ElementTree tree;
  tree.Show(document, 0);
  for (const int column : {1, 4}) {
    const auto tip = tree.topLevelItem(0)->toolTip(column);
    EXPECT_FALSE(tip.contains("<b>") || tip.contains("<i>")) << tip.toStdString();
    EXPECT_TRUE(tip.contains("&lt;")) << tip.toStdString();
  }
}

}  // namespace
}  // namespace desktop_test
