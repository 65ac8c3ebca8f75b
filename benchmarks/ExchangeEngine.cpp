#include <stdexcept>

#include "benchmarks/Measurements.h"
#include "benchmarks/Repeat.h"
#include "benchmarks/VirtualRig.h"
#include "instrument/CKELDInstrument.h"

namespace benchmarks {

namespace {

constexpr double kLeast = 50'000;
constexpr std::int16_t kTest = 410;
constexpr std::uint64_t kCommands = 5;

}  // namespace

// One complete test on the wire: port opened, IREM, STST, GRES, STST 210, EREM, port closed, with every pause
// and wait on the virtual clock.
Figure MeasureExchangeEngine(const Context&) {
  VirtualRig rig;
  const auto link = keld::instrument::CKELDInstrument::Create();
  std::uint64_t tests = 0;
  const auto rate = BestRate([&] {
    link->ConnectMTI();
    link->RunMtiTest(kTest, 0);
    link->DisconnectMTI();
    ++tests;
  });
  if (rig.Tester().CommandsReceived() != kCommands * tests || rig.Tester().InRemoteMode())
    throw std::runtime_error("the tester did not hear five commands a test");
  return {rate, "tests/s", {}, "", kLeast, Bound::kAtLeast};
}

}  // namespace benchmarks
