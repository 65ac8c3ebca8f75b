#pragma once

#include <QComboBox>
#include <functional>
#include <string>
#include <vector>

#include "host/bench/TesterConnection.h"

namespace host::gui {

/// The serial devices that a tester may be at.
std::vector<std::string> SerialDevices();

/// Which tester to use: a serial device that is there, one that is typed in, or a simulated tester with one
/// of its profiles.
///
/// At first it names the first device, or nothing when there is none. A simulated tester is only ever taken
/// when the user selected it, or when time is scaled, which no other allows: equipment must not pass for a
/// cable that was not plugged in.
class TesterBox : public QComboBox {
 public:
  /// @param devices the serial devices to offer, whenever the list is opened
  explicit TesterBox(double timeScale, QWidget* parent = nullptr,
                     std::function<std::vector<std::string>()> devices = SerialDevices);

  /// `InputError` when none is named.
  bench::TesterChoice Choice() const;
  /// Called when the user selects an entry, or ends typing with Return.
  void OnChosen(const std::function<void()>& chosen);

 private:
  void Fill();
  int FirstSimulated() const;
  void showPopup() override;
  void wheelEvent(QWheelEvent* event) override;

  const double timeScale_;
  const std::function<std::vector<std::string>()> devices_;
};

}  // namespace host::gui
