#include <stdexcept>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IPlugIn.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "benchmarks/Measurements.h"
#include "benchmarks/Repeat.h"
#include "benchmarks/VirtualRig.h"
#include "host/instruments/InstrumentColl.h"
#include "host/run/AutoOperator.h"
#include "host/run/DoubtTracker.h"
#include "host/run/OperatorEvents.h"
#include "host/run/RunController.h"
#include "plugin/base/ClassIdentifiers.h"
#include "tests/support/ReadFile.h"

namespace benchmarks {

namespace {

constexpr std::int32_t kTest = 410;
constexpr std::int32_t kPassed = 1;

}  // namespace

// The element shows its guide, the operator presses play and next, the result is made and judged. Nothing is
// saved.
Figure MeasureGuidedTest(const Context& context) {
  VirtualRig rig(support::ReadFile(context.Catalogue()));
  auto& host = rig.Only().Host();
  const auto plugIn = orvik::As<orvik::IPlugIn>(host.CreateObject(keld::ClassIdentifiers::kPlugin));
  orvik::Required(plugIn).Initialize(nullptr);
  const auto element = plugIn->CreateTest(kTest);
  orvik::Required(element).SetID(1);

  host::run::StopRequest stop;
  host::run::DoubtTracker doubts(*rig.Ports().TheWire());
  const auto standards =
      orvik::As<orvik::IStandardColl>(host.CreateObject(orvik::HostClasses::kStandardColl));
  const auto instruments = std::make_shared<host::instruments::InstrumentColl>();
  host::document::Runs runs;  // no run is begun, so nothing is recorded
  host::run::RunRecorder recorder({runs, instruments, standards, doubts});
  const auto controller = std::make_shared<host::run::RunController>(
      host::run::RunController::Parts{standards, instruments, doubts, recorder, [] {}});
  const auto application = rig.Only().SharedApplication();
  const host::run::OperatorEvents program(application, stop,
                                          std::make_unique<host::run::AutoOperator>(application, stop));
  const auto rate = BestRate([&] {
    element->Perform(controller);
    if (!element->Result() || element->Result()->Status() != kPassed)
      throw std::runtime_error("the test has not passed");
  });
  return {rate, "tests/s", {}, "", {}, Bound::kAtLeast};
}

}  // namespace benchmarks
