#pragma once

#include <QWidget>
#include <functional>

#include "host/document/Document.h"

class QLineEdit;

namespace bench::desktop {

/// The equipment under test, to be read and changed.
class EquipmentBar : public QWidget {
 public:
  /// @param edited called when the person has changed something
  EquipmentBar(std::function<void()> edited, QWidget* parent);

  void Show(const Document::Equipment& equipment);
  Document::Equipment Entered() const;
  /// Moves the keyboard to the asset number, which is then replaced by what is typed or scanned.
  void FocusOnAsset();

 private:
  QLineEdit* asset_;
  QLineEdit* serial_;
  QLineEdit* maker_;
  QLineEdit* model_;
};

}  // namespace bench::desktop
