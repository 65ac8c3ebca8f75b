#pragma once

#include <QComboBox>

#include "host/app/TesterConnection.h"

namespace bench::desktop {

/// Which tester to use: a serial device that is there, one that is typed in, or a simulated tester with one
/// of its profiles.
class TesterBox : public QComboBox {
 public:
  explicit TesterBox(double timeScale, QWidget* parent = nullptr);

  /// `InputError` when none is named.
  TesterChoice Choice() const;

 private:
  void Fill();
  int FirstSimulated() const;
  void showPopup() override;

  const double timeScale_;
};

/// The serial devices that a tester may be at.
std::vector<std::string> SerialDevices();

}  // namespace bench::desktop
