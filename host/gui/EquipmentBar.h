#pragma once

#include <QWidget>
#include <functional>

#include "host/document/Document.h"

class QLineEdit;

namespace host::gui {

/// Fields for the equipment under test.
class EquipmentBar : public QWidget {
 public:
  /// @param edited called when the user changes a field
  EquipmentBar(std::function<void()> edited, QWidget* parent);

  void Show(const document::Document::Equipment& equipment);
  document::Document::Equipment Entered() const;
  /// Moves the focus to the asset number and selects it, so that a scan replaces it.
  void FocusOnAsset();

 private:
  QLineEdit* asset_;
  QLineEdit* serial_;
  QLineEdit* maker_;
  QLineEdit* model_;
};

}  // namespace host::gui
