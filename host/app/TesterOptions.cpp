#include "host/app/TesterOptions.h"

#include "OrvikTypeLib/HostError.h"
#include "host/app/InputError.h"
#include "host/app/TextColumns.h"
#include "host/serial/SerialDevice.h"

namespace bench {

namespace {

constexpr char kLineSettings[] = "9600,O,8,1";
constexpr double kLowestTimeScale = 0.001;
constexpr double kHighestTimeScale = 1e6;

}  // namespace

void TesterOptions::Declare(CLI::App& command) {
  command.add_option("--port", port_, "Serial device of the tester, such as /dev/ttyUSB0")
      ->type_name("DEVICE");
  simulate_ =
      command
          .add_option("--simulate", profile_,
                      "Start a simulated tester, with a profile of the equipment under test (a built-in one "
                      "or a file)")
          ->expected(0, 1)
          ->type_name("[PROFILE]");
  command
      .add_option("--time-scale", timeScale_, "Divide every pause and time-out; for simulated testers only")
      ->type_name("X");
}

void TesterOptions::Check() const {
  const bool simulated = simulate_->count() > 0;
  if (simulated == !port_.empty())
    throw InputError(
        "name the tester's serial device with --port, or have one simulated with --simulate; one of the two");
  if (!(timeScale_ >= kLowestTimeScale && timeScale_ <= kHighestTimeScale))
    throw InputError("--time-scale " + ShortNumber(timeScale_) + ": give a number from 0.001 to 1000000");
}

void TesterOptions::Prepare() {
  if (simulate_->count() > 0) {
    simulated_ = std::make_unique<SimulatedTester>(profile_, timeScale_);
    device_ = simulated_->Device();
    return;
  }
  device_ = port_;
  try {
    const SerialDevice device(device_, ParseLineSettings(kLineSettings));
    if (timeScale_ != 1.0 && !device.IsPseudoTerminal())
      throw InputError("--time-scale: " + device_ +
                       " is a real serial line; a real tester needs its pauses whole");
  } catch (const orvik::HostError& error) {
    if (error.Number() == orvik::HostError::kPathError) throw InputError("--port: " + error.Description());
    throw IncompleteError("--port: " + error.Description());
  }
}

std::string TesterOptions::TimeRemark() const {
  if (timeScale_ == 1.0) return {};
  return "All pauses and time-outs are divided by " + ShortNumber(timeScale_) +
         ". That is for simulated testers only.";
}

}  // namespace bench
