#include "host/cli/options/TesterOptions.h"

#include <CLI/CLI.hpp>

#include "host/base/Tr.h"
#include "host/bench/InputError.h"

namespace host::cli {

void DeclareTimeScale(CLI::App& command, double& timeScale) {
  command
      .add_option("--time-scale", timeScale,
                  Tr("Divide every pause and time-out by X; for simulated testers only"))
      ->type_name("X")
      ->check([](const std::string& typed) {
        bench::RequireTimeScale(typed);
        return std::string();
      });
}

void TesterOptions::Declare(CLI::App& command) {
  command.add_option("--port", choice_.port, Tr("Serial device of the tester, such as /dev/ttyUSB0"))
      ->type_name("DEVICE");
  simulate_ = command
                  .add_option("--simulate", choice_.profile,
                              Tr("Start a simulated tester, with a profile of the equipment under test (a "
                                 "built-in one or a file)"))
                  ->expected(0, 1)
                  ->type_name("[PROFILE]");
  DeclareTimeScale(command, choice_.timeScale);
}

void TesterOptions::Check() const {
  const bool simulated = simulate_->count() > 0;
  if (simulated == !choice_.port.empty())
    throw bench::InputError(
        Tr("give either --port with the serial device of the tester, or --simulate for a simulated one"));
}

const bench::TesterConnection& TesterOptions::Connect(serial::PortManager& ports) {
  choice_.simulated = simulate_->count() > 0;
  choice_.field = choice_.simulated ? "--simulate" : "--port";
  connection_ = std::make_unique<bench::TesterConnection>(choice_, ports);
  return *connection_;
}

}  // namespace host::cli
