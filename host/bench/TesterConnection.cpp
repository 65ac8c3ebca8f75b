#include "host/bench/TesterConnection.h"

#include <charconv>
#include <system_error>

#include "OrvikTypeLib/HostError.h"
#include "host/base/FileErrors.h"
#include "host/base/Patience.h"
#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/plugins/keld/KeldNames.h"
#include "host/serial/SerialDevice.h"

namespace host::bench {

namespace {

constexpr double kLowestTimeScale = 0.001;
constexpr double kHighestTimeScale = 1e6;

std::string InField(const std::string& field, const std::exception& error) {
  return Tr("%%1: %%2", {field, error.what()});
}

/// Checks that the device can be opened; returns whether it is a pseudo-terminal.
bool ProbeForTerminal(const TesterChoice& choice) {
  try {
    const auto settings = serial::ParseLineSettings(plugins::keld::kLineSettings);
    const auto device =
        WaitUntilFree([&] { return std::make_unique<serial::SerialDevice>(choice.port, settings); });
    if (choice.timeScale != 1.0 && !device->IsPseudoTerminal())
      throw InputError(
          Tr("%%1 is a real serial line; a real tester needs its pauses whole, without --time-scale",
             {choice.port}));
    return device->IsPseudoTerminal();
  } catch (const BusyError&) {
    throw;
  } catch (const orvik::HostError& error) {
    if (error.Number() == orvik::HostError::kPathError) throw InputError(error.Description());
    throw IncompleteError(error.Description());
  }
}

}  // namespace

TesterConnection::TesterConnection(const TesterChoice& choice, serial::PortManager& ports) {
  try {
    Connect(choice, ports);
  } catch (const InputError& error) {
    throw InputError(InField(choice.field, error));
  } catch (const IncompleteError& error) {
    throw IncompleteError(InField(choice.field, error));
  } catch (const BusyError& error) {
    throw BusyError(error.Number(), error.Source(), InField(choice.field, error));
  }
}

void TesterConnection::Connect(const TesterChoice& choice, serial::PortManager& ports) {
  if (choice.simulated)
    simulated_ = std::make_unique<SimulatedTester>(choice.profile, choice.timeScale);
  else
    isSimulated_ = ProbeForTerminal(choice);
  device_ = simulated_ ? simulated_->Device() : choice.port;
  ports.Assign(plugins::keld::kInstrument, device_);
}

std::string TimeScaleRemark(double timeScale) {
  if (timeScale == 1.0) return {};
  return Tr("All pauses and time-outs are divided by %%1. That is for simulated testers only.",
            {ShortNumber(timeScale)});
}

void RequireTimeScale(double timeScale) { RequireTimeScale(ShortNumber(timeScale)); }

void RequireTimeScale(const std::string& typed) {
  double number = 0;
  const auto* const end = typed.data() + typed.size();
  const auto read = std::from_chars(typed.data(), end, number);
  const bool whole = read.ec == std::errc() && read.ptr == end;
  if (!whole || !(number >= kLowestTimeScale && number <= kHighestTimeScale))
    throw InputError(Tr("--time-scale %%1: give a number from 0.001 to 1000000", {typed}));
}

}  // namespace host::bench
