#pragma once

#include <QFrame>

#include "host/report/Report.h"

class QLabel;

namespace host::gui {

/// The one verdict of the document: sign, word, and why, in its colour. Of a simulated run it says so, white
/// on black, before everything else.
class VerdictBar : public QFrame {
 public:
  explicit VerdictBar(QWidget* parent = nullptr);

  /// @param simulated whether nothing of it was measured
  void Show(const report::Verdict& verdict, bool simulated);
  /// Shows that no document is open.
  void Clear();

 private:
  QLabel* mark_;
  QLabel* sign_;
  QLabel* word_;
  QLabel* sentence_;
};

}  // namespace host::gui
