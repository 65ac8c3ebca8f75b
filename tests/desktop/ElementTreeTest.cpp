// Colours of the tree of elements.
#include <gtest/gtest.h>

#include <QApplication>
#include <QPalette>
#include <QTreeWidget>
#include <algorithm>
#include <cmath>

#include "host/desktop/ElementTree.h"

namespace desktop_test {
namespace {

using bench::desktop::ElementTree;

constexpr int kResultColumn = 2;

bench::judge::JudgedDocument OnePassed() {
  bench::judge::JudgedDocument document;
  document.elements.emplace_back();
  document.elements.back().id = 1;
  document.elements.back().verdict = bench::judge::Verdict::kPassed;
  return document;
}

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

/// The strongest contrast that the word of the result has to what it stands on.
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

TEST(ElementTreeTest, ANameThatDoesNotFitKeepsItsEnd) {
  const ElementTree tree;
  EXPECT_EQ(tree.textElideMode(), Qt::ElideMiddle);
}

TEST(ElementTreeTest, AResultIsReadInEveryRow) {
  ElementTree tree;
  tree.Show(OnePassed(), 0);
  EXPECT_GT(ContrastOfResult(tree), kReadable);
  // There it is as readable as everything else.
  tree.Choose(1);
  const auto palette = tree.palette();
  EXPECT_NEAR(ContrastOfResult(tree),
              Contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), 0.2);
}

TEST(ElementTreeTest, AResultIsReadOnADarkDesktop) {
  ElementTree tree;
  auto dark = tree.palette();
  dark.setColor(QPalette::Base, QColor(30, 30, 34));
  dark.setColor(QPalette::AlternateBase, QColor(40, 40, 44));
  dark.setColor(QPalette::Text, Qt::white);
  tree.setPalette(dark);
  tree.Show(OnePassed(), 0);
  EXPECT_GT(ContrastOfResult(tree), kReadable);
}

TEST(ElementTreeTest, WhatADocumentHoldsIsNeverTakenForMarkup) {
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
