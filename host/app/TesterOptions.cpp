#include "host/app/TesterOptions.h"

#include "OrvikTypeLib/HostError.h"
#include "host/app/InputError.h"
#include "host/app/TextColumns.h"
#include "host/serial/SerialDevice.h"
#include "host/services/Tr.h"

namespace bench {

namespace {

constexpr char kInstrument[] = "KELD(IN)";
constexpr char kLineSettings[] = "9600,O,8,1";
constexpr double kLowestTimeScale = 0.001;
constexpr double kHighestTimeScale = 1e6;

}  // namespace

void TesterOptions::Declare(CLI::App& command) {
  command.add_option("--port", port_, Tr("Serial device of the tester, such as /dev/ttyUSB0"))
      ->type_name("DEVICE");
  simulate_ = command
                  .add_option("--simulate", profile_,
                              Tr("Start a simulated tester, with a profile of the equipment under test (a "
                                 "built-in one or a file)"))
                  ->expected(0, 1)
                  ->type_name("[PROFILE]");
  command
      .add_option("--time-scale", timeScale_,
                  Tr("Divide every pause and time-out; for simulated testers only"))
      ->type_name("X");
}

void TesterOptions::Check() const {
  const bool simulated = simulate_->count() > 0;
  if (simulated == !port_.empty())
    throw InputError(
        Tr("name the tester's serial device with --port, or have one simulated with --simulate; one of the "
           "two"));
  if (!(timeScale_ >= kLowestTimeScale && timeScale_ <= kHighestTimeScale))
    throw InputError(Tr("--time-scale %%1: give a number from 0.001 to 1000000", {ShortNumber(timeScale_)}));
}

void TesterOptions::Connect(PortManager& ports) {
  if (simulate_->count() > 0)
    simulated_ = std::make_unique<SimulatedTester>(profile_, timeScale_);
  else
    Probe();
  ports.Assign(kInstrument, simulated_ ? simulated_->Device() : port_);
}

void TesterOptions::Probe() const {
  try {
    const SerialDevice device(port_, ParseLineSettings(kLineSettings));
    if (timeScale_ != 1.0 && !device.IsPseudoTerminal())
      throw InputError(
          Tr("--time-scale: %%1 is a real serial line; a real tester needs its pauses whole", {port_}));
  } catch (const orvik::HostError& error) {
    if (error.Number() == orvik::HostError::kPathError)
      throw InputError(Tr("--port: %%1", {error.Description()}));
    throw IncompleteError(Tr("--port: %%1", {error.Description()}));
  }
}

std::string TesterOptions::TimeRemark() const {
  if (timeScale_ == 1.0) return {};
  return Tr("All pauses and time-outs are divided by %%1. That is for simulated testers only.",
            {ShortNumber(timeScale_)});
}

}  // namespace bench
