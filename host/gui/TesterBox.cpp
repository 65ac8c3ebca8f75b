#include "host/gui/TesterBox.h"

#include <QLineEdit>
#include <QWheelEvent>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <utility>

#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/qt/Conversions.h"

namespace host::gui {

namespace {

/// A built-in port has the type 0 when there is no hardware behind its name.
bool HasHardware(const std::filesystem::path& port) {
  std::ifstream file(port / "type");
  int type = 0;
  return !(file >> type) || type != 0;
}

}  // namespace

std::vector<std::string> SerialDevices() {
  std::vector<std::string> devices;
  std::error_code none;
  for (const auto& port : std::filesystem::directory_iterator("/sys/class/tty", none)) {
    // Entries without a device are terminals of the screen.
    const auto device = std::filesystem::path("/dev") / port.path().filename();
    if (std::filesystem::exists(port.path() / "device", none) && HasHardware(port.path()) &&
        std::filesystem::exists(device, none))
      devices.push_back(device.string());
  }
  std::sort(devices.begin(), devices.end());
  return devices;
}

TesterBox::TesterBox(double timeScale, QWidget* parent, std::function<std::vector<std::string>()> devices)
    : QComboBox(parent), timeScale_(timeScale), devices_(std::move(devices)) {
  setObjectName("tester");
  setAccessibleName(qt::ToQt(Tr("Tester")));
  setToolTip(qt::ToQt(Tr("The serial device of the tester, such as /dev/ttyUSB0, or a simulated tester")));
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  // Completion would turn "/dev/ttyUSB1" into "/dev/ttyUSB10".
  setCompleter(nullptr);
  setMinimumContentsLength(30);
  Fill();
  // Only simulated testers scale time. Otherwise, without a device, the user must select one.
  const int firstDevice = FirstSimulated() > 0 ? 0 : -1;
  setCurrentIndex(timeScale == 1.0 ? firstDevice : FirstSimulated());
}

int TesterBox::FirstSimulated() const { return findData(QString(bench::kSimulatedProfiles.front())); }

bench::TesterChoice TesterBox::Choice() const {
  bench::TesterChoice choice;
  choice.field = Tr("Tester");
  choice.timeScale = timeScale_;
  const int known = findText(currentText());
  if (known >= 0 && itemData(known).isValid()) {
    choice.simulated = true;
    choice.profile = itemData(known).toString().toStdString();
  } else {
    choice.port = currentText().trimmed().toStdString();
  }
  if (!choice.simulated && choice.port.empty())
    throw bench::InputError(
        Tr("No tester is named: choose its serial device, or a simulated tester, above the list of tests."));
  return choice;
}

void TesterBox::OnChosen(const std::function<void()>& chosen) {
  connect(this, &QComboBox::activated, this, chosen);
  connect(lineEdit(), &QLineEdit::returnPressed, this, chosen);
}

void TesterBox::Fill() {
  clear();
  for (const auto& device : devices_()) addItem(qt::ToQt(device));
  for (const auto* profile : bench::kSimulatedProfiles)
    addItem(qt::ToQt(Tr("Simulated tester: %%1", {profile})), QString(profile));
}

void TesterBox::showPopup() {
  // A tester may have been plugged in meanwhile.
  const auto text = currentText();
  Fill();
  setEditText(text);
  setCurrentIndex(findText(text));
  if (currentIndex() < 0) setEditText(text);
  QComboBox::showPopup();
}

void TesterBox::wheelEvent(QWheelEvent* event) {
  // Scrolling over the box must not change the tester.
  event->ignore();
}

}  // namespace host::gui
