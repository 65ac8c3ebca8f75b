#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IRunController.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestElement.h"
#include "host/instruments/InstrumentColl.h"

namespace support {

/// The host's end of a run: says yes to every start unless told otherwise, and writes down what it is told,
/// in order.
class RecordingController final : public virtual orvik::IRunController {
 public:
  std::function<bool(const std::shared_ptr<orvik::ITestElement>&)> mayStart = [](const auto&) {
    return true;
  };
  std::shared_ptr<orvik::IStandardColl> standards;
  std::shared_ptr<orvik::IInstrumentColl> instruments = std::make_shared<bench::InstrumentColl>();
  /// "start 410", "finished 410", "navigate 0".
  std::vector<std::string> told;
  /// Looks around at the moment in which something is told.
  std::function<void(const std::string& what)> onTold;
  /// Looks around at the moment in which the testers are asked for.
  std::function<void()> onInstruments;
  /// Every notice and request breaks off with an error, after it was written down.
  bool broken = false;

  std::size_t Count(const std::string& what) const {
    return static_cast<std::size_t>(std::count(told.begin(), told.end(), what));
  }

 private:
  void Tell(const std::string& what) {
    told.push_back(what);
    if (onTold) onTold(what);
    if (broken) throw orvik::HostError(orvik::HostError::kInvalidArgument, "test", "broken");
  }
  bool IRunController_StartQuery(std::shared_ptr<orvik::ITestElement> iteElement) override {
    told.push_back("start " + std::to_string(iteElement->TestID()));
    return mayStart(iteElement);
  }
  void IRunController_NavigationRequest(std::int32_t lCode) override {
    Tell("navigate " + std::to_string(lCode));
  }
  void IRunController_FinishedNotice(std::shared_ptr<orvik::ITestElement> iteElement) override {
    Tell("finished " + std::to_string(iteElement->TestID()));
  }
  std::shared_ptr<orvik::IStandardColl> IRunController_Standards() const override { return standards; }
  std::shared_ptr<orvik::IInstrumentColl> IRunController_Instruments() const override {
    if (broken) throw orvik::HostError(orvik::HostError::kInvalidArgument, "test", "broken");
    if (onInstruments) onInstruments();
    return instruments;
  }
};

}  // namespace support
