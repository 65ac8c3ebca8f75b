#pragma once

#include <QDialog>
#include <optional>
#include <vector>

#include "host/standards/LimitSets.h"

class QTreeWidget;
class QPushButton;
class QRadioButton;

namespace host::gui {

/// Selects a set of limits, and whether all elements or the selected one get its limits.
class LimitSetDialog : public QDialog {
 public:
  /// @param chosen the name of the element that is chosen; empty for none
  LimitSetDialog(std::vector<standards::LimitSets::Entry> sets, const QString& chosen, QWidget* parent);

  /// The set that was chosen; null for none.
  const standards::LimitSet* Set() const;
  bool ForAll() const;

 private:
  const std::vector<standards::LimitSets::Entry> sets_;
  QTreeWidget* list_;
  QRadioButton* all_;
  QRadioButton* one_;
  QPushButton* apply_;
};

}  // namespace host::gui
