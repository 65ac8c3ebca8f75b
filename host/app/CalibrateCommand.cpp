#include "host/app/CalibrateCommand.h"

#include <unistd.h>

#include <charconv>
#include <iostream>

#include "host/app/CalibrationWindow.h"
#include "host/app/DocumentJson.h"
#include "host/app/InputError.h"
#include "host/app/run/ProgressLines.h"
#include "host/app/run/StopProgress.h"
#include "host/run/StopSignals.h"
#include "host/services/Tr.h"

namespace bench {

namespace {

nlohmann::ordered_json JsonOf(const CalibrationWindow::Saved& saved) {
  std::int32_t value = 0;
  std::from_chars(saved.value.data(), saved.value.data() + saved.value.size(), value);
  nlohmann::ordered_json instrument;
  instrument["type"] = saved.type;
  instrument["serial"] = saved.serial;
  instrument["calibration"] = value;
  return nlohmann::ordered_json{{"instrument", std::move(instrument)}};
}

}  // namespace

CLI::App* CalibrateCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand(
      "calibrate",
      Tr("Measure the resistance of the test leads, which protective-earth readings are corrected by"));
  tester_.Declare(*command);
  command->add_option("--serial", serial_,
                      Tr("Store the value under this serial number instead of the tester's own"));
  command->add_flag("--json", json_, Tr("Print one JSON object"));
  command->footer(
      Tr("Examples:\n"
         "  orvik-bench calibrate --port /dev/ttyUSB0\n"
         "  orvik-bench calibrate --simulate --time-scale 20\n"
         "\n"
         "Put the clip of the test lead at the ground of the tester's power socket first. The value is kept "
         "for the\n"
         "tester's serial number; readings of the protective earth are corrected by it."));
  return command;
}

void CalibrateCommand::Operate(Workbench& workbench, CalibrationWindow& window) const {
  auto& wire = *workbench.Ports().TheWire();
  const auto& application = workbench.Application();
  ProgressLines progress(std::cerr, STDERR_FILENO, application, workbench.TimeScale());
  StopProgress stop(wire, *application, workbench.TimeScale());
  const auto watch = wire.Subscribe([&](const WireRecord& record) { progress.Wire(record); });
  if (const auto remark = tester_.TimeRemark(); !remark.empty()) progress.Remark(remark);
  const StopSignals signals(*application, [&](int) {
    if (stop.Begun()) return progress.Remark(stop.Text());
    progress.Remark(Tr("Stopping: nothing is stored, and the session with the tester is closed."));
    stop.Begin();
    window.Cancel();
  });
  window.Run();
}

ExitStatus CalibrateCommand::Run(const GlobalOptions& options) {
  tester_.Check();
  Workbench workbench(options, tester_.TimeScale());
  tester_.Connect(workbench.Ports());
  CalibrationWindow window(workbench, serial_);
  Operate(workbench, window);
  if (!window.Stored()) throw IncompleteError(Tr("calibrate: %%1", {window.Reason()}));
  const auto& saved = *window.Stored();
  if (json_)
    std::cout << Indented(JsonOf(saved)) << "\n";
  else
    std::cout << Tr("The test leads of tester %%1 have %%2 mOhm.", {saved.serial, saved.value}) << "\n";
  return ExitStatus::kPassed;
}

}  // namespace bench
