#pragma once

#include <QFrame>

#include "host/report/Report.h"

class QLabel;

namespace bench::desktop {

/// The one verdict of the document: sign, word, and why, in its colour.
class VerdictBar : public QFrame {
 public:
  explicit VerdictBar(QWidget* parent = nullptr);

  void Show(const report::Verdict& verdict);
  /// There is no document.
  void ShowNothing();

 private:
  QLabel* sign_;
  QLabel* word_;
  QLabel* sentence_;
};

}  // namespace bench::desktop
