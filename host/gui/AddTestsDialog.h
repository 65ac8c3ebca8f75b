#pragma once

#include <QDialog>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "host/bench/CatalogueEntries.h"

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;
class QPushButton;

namespace host::gui {

/// Selects tests of the catalogue, with its groups and a search.
class AddTestsDialog : public QDialog {
 public:
  AddTestsDialog(const std::vector<bench::CatalogueEntry>& entries, QWidget* parent);

  /// Shows the picture of each test beside its name.
  /// @param pictureOf the bitmap file of a test's picture; empty when it has none
  void ShowPictures(const std::function<std::vector<std::byte>(std::int32_t testId)>& pictureOf);

  /// The selected tests, in the catalogue's order. A group means all its tests.
  std::vector<std::int32_t> Chosen() const;

 private:
  /// Makes the dialog as wide as the longest name needs, as far as the screen allows.
  void GrowToNames();
  void Filter(const QString& wanted);

  QLineEdit* search_;
  QTreeWidget* tests_;
  QPushButton* add_;
  std::vector<QTreeWidgetItem*> rows_;  ///< as in the catalogue
};

}  // namespace host::gui
