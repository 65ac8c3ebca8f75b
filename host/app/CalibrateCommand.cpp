#include "host/app/CalibrateCommand.h"

#include <charconv>
#include <iostream>

#include "host/app/CalibrationWindow.h"
#include "host/app/DocumentJson.h"
#include "host/app/InputError.h"
#include "host/run/StopSignals.h"

namespace bench {

namespace {

constexpr char kInstrument[] = "KELD(IN)";

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
      "Measure the resistance of the test leads, which protective-earth readings are corrected by");
  tester_.Declare(*command);
  command->add_option("--serial", serial_,
                      "Store the value under this serial number instead of the tester's own");
  command->add_flag("--json", json_, "Print one JSON object");
  return command;
}

ExitStatus CalibrateCommand::Run(const GlobalOptions& options) {
  tester_.Check();
  Workbench workbench(options, tester_.TimeScale());
  tester_.Prepare();
  workbench.Ports().Assign(kInstrument, tester_.Device());
  if (const auto remark = tester_.TimeRemark(); !remark.empty()) std::cerr << remark << "\n";
  CalibrationWindow window(workbench, serial_);
  {
    const StopSignals signals(*workbench.Application(), [&](int) { window.Cancel(); });
    window.Run();
  }
  if (!window.Stored()) throw IncompleteError("calibrate: " + window.Reason());
  const auto& saved = *window.Stored();
  if (json_)
    std::cout << Indented(JsonOf(saved)) << "\n";
  else
    std::cout << "The test leads of tester " << saved.serial << " have " << saved.value << " mOhm.\n";
  return ExitStatus::kPassed;
}

}  // namespace bench
