#pragma once

#include <QFont>
#include <QPainter>
#include <QString>
#include <memory>
#include <string>

#include "host/report/Table.h"
#include "host/report/drawing/PageStyle.h"

class QTextLayout;

namespace host::report::drawing {

struct TextStyle {
  double points = 9.5;
  bool bold = false;
  QColor colour = kInk;
};

QFont FontOf(double points, bool bold = false, bool italic = false);
QString Text(const std::string& utf8);

/// A text broken into lines of a width, ready to be drawn in parts.
class TextBlock {
 public:
  TextBlock(const report::Cell& cell, double width, const TextStyle& style,
            Qt::AlignmentFlag alignment = Qt::AlignLeft);

  std::size_t Lines() const;
  double Height() const { return HeightOf(0, Lines()); }
  /// Of `count` lines from `first` on.
  double HeightOf(std::size_t first, std::size_t count) const;
  /// How many lines from `first` on fit into the height; at least one, as long as there is one.
  std::size_t Fitting(std::size_t first, double height) const;
  /// Draws these lines with the upper left corner of the first there.
  void Draw(QPainter& painter, QPointF at, std::size_t first, std::size_t count) const;
  void Draw(QPainter& painter, QPointF at) const { Draw(painter, at, 0, Lines()); }

 private:
  std::shared_ptr<QTextLayout> layout_;
  QColor colour_;
};

}  // namespace host::report::drawing
