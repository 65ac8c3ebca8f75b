#include "host/cli/commands/CalibrateCommand.h"

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <iostream>
#include <nlohmann/json.hpp>

#include "host/base/FileErrors.h"
#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/bench/CalibrationWindow.h"
#include "host/bench/InputError.h"
#include "host/bench/ProgramFiles.h"
#include "host/bench/StopProgress.h"
#include "host/bench/StoredLeadsView.h"
#include "host/cli/help/Examples.h"
#include "host/cli/output/DocumentJson.h"
#include "host/cli/output/ProgressLines.h"
#include "host/run/StopSignals.h"

namespace host::cli {

namespace {

using Json = nlohmann::ordered_json;
using host::VisibleText;

/// What is wrong with a value, as programs read it; null when nothing is.
Json ProblemOf(const run::LeadCalibration& leads) {
  if (leads.Plausible()) return nullptr;
  if (!leads.milliohms) return "not-a-number";
  return *leads.milliohms < 0 ? "negative" : "too-high";
}

std::string TextOf(const std::vector<run::LeadCalibration>& stored) {
  if (stored.empty())
    return Tr("No test leads have been measured yet; \"orvik-bench calibrate --port DEVICE\" measures those "
              "of a tester.") +
           "\n";
  constexpr std::size_t kNumbers = 1;
  std::vector<std::vector<std::string>> lines{{Tr("Serial number"), "mOhm"}};
  for (const auto& leads : stored)
    lines.push_back({VisibleText(leads.serial), leads.milliohms ? std::to_string(*leads.milliohms) : "-",
                     run::MeasuredText(leads.measured), bench::LeadsRemark(leads)});
  return Columned(lines, {kNumbers});
}

Json MilliohmsOf(const run::LeadCalibration& leads) {
  return leads.milliohms ? Json(*leads.milliohms) : Json(nullptr);
}

Json DateOf(const run::LeadCalibration& leads) {
  return leads.measured ? Json(*leads.measured) : Json(nullptr);
}

Json JsonOf(const std::vector<run::LeadCalibration>& stored) {
  auto testers = Json::array();
  for (const auto& leads : stored)
    testers.push_back({{"serial", leads.serial},
                       {"calibration", MilliohmsOf(leads)},
                       {"measured", DateOf(leads)},
                       {"problem", ProblemOf(leads)}});
  return {{"instruments", std::move(testers)}};
}

Json JsonOf(const run::LeadCalibration& stored, const std::string& type) {
  return {{"instrument",
           {{"type", type},
            {"serial", stored.serial},
            {"calibration", MilliohmsOf(stored)},
            {"measured", DateOf(stored)}}}};
}

}  // namespace

CLI::App* CalibrateCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand(
      "calibrate", Tr("Measure the resistance of the test leads, to correct protective-earth readings"));
  tester_.Declare(*command);
  const auto* serial = command->add_option(
      "--serial", serial_, Tr("Store the value under this serial number instead of the tester's own"));
  auto* list = command->add_flag("--list", list_, Tr("Show the stored value of each tester, and its date"));
  for (const auto* name : {"--port", "--simulate", "--time-scale"}) list->excludes(command->get_option(name));
  list->excludes(const_cast<CLI::Option*>(serial));
  command->add_flag("--json", json_, Tr("Print one JSON object"));
  command->footer(Examples(
      {"orvik-bench calibrate --port /dev/ttyUSB0", "orvik-bench calibrate --simulate --time-scale 20",
       "orvik-bench calibrate --list"},
      Tr("First connect the clip of the test lead to the ground of the tester's power socket. The value is "
         "stored "
         "with its date under the tester's serial number; protective-earth readings are corrected by it. A "
         "value that test leads cannot have (below 0 or above 500 mOhm) is not stored.")));
  return command;
}

void CalibrateCommand::Operate(bench::Workbench& workbench, bench::CalibrationWindow& window) const {
  auto& wire = *workbench.Ports().TheWire();
  const auto& application = workbench.Application();
  ProgressLines progress(std::cerr, STDERR_FILENO, application, workbench.TimeScale());
  bench::StopProgress stop(wire, *application, workbench.TimeScale());
  const auto watch = wire.Subscribe([&](const serial::WireRecord& record) { progress.Wire(record); });
  if (const auto remark = tester_.TimeRemark(); !remark.empty()) progress.Remark(remark);
  const run::StopSignals signals(*application, [&](int) {
    if (stop.Begun()) return progress.Remark(stop.Text());
    progress.Remark(Tr("Stopping: nothing is stored, and the session with the tester is closed."));
    stop.Begin();
    window.Cancel();
  });
  window.Run();
}

bench::ExitStatus CalibrateCommand::Run(const bench::GlobalOptions& options) {
  if (list_)
    List(options);
  else
    Measure(options);
  return bench::ExitStatus::kPassed;
}

void CalibrateCommand::List(const bench::GlobalOptions& options) const {
  const auto stored = run::StoredLeads(RegistryStore(bench::files::StateFolder(options.state)));
  std::cout << (json_ ? Indented(JsonOf(stored)) + "\n" : TextOf(stored));
}

void CalibrateCommand::Measure(const bench::GlobalOptions& options) {
  tester_.Check();
  bench::Workbench workbench(options, tester_.TimeScale());
  tester_.Connect(workbench.Ports());
  bench::CalibrationWindow window(workbench, serial_);
  Operate(workbench, window);
  const auto& stored = workbench.Leads().Value();
  if (!stored) {
    const auto reason = Tr("calibrate: %%1", {window.Reason()});
    if (workbench.Leads().RegistryWasBusy())
      throw BusyError(orvik::HostError::kPathError, "orvik-bench", reason);
    throw bench::IncompleteError(reason);
  }
  std::cout << (json_ ? Indented(JsonOf(*stored, window.TesterType())) : bench::TextOf(*stored)) << "\n";
}

}  // namespace host::cli
