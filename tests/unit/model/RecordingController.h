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

/// The host's side of a run: lets every element start unless told otherwise, and records the notices in
/// order.
class RecordingController final : public virtual orvik::IRunController {
 public:
  std::function<bool(const std::shared_ptr<orvik::ITestElement>&)> mayStart = [](const auto&) {
    return true;
  };
  std::shared_ptr<orvik::IStandardColl> standards;
  std::shared_ptr<orvik::IInstrumentColl> instruments = std::make_shared<host::instruments::InstrumentColl>();
  /// By test identifier: "start 410", "finished 410", "navigate 0".
  std::vector<std::string> told;
  /// The navigation requests, and the identifiers of the finished elements.
  std::vector<std::int32_t> navigation;
  std::vector<std::int32_t> finished;
  /// Called inside each notice and request.
  std::function<void(const std::string& what)> onTold;
  /// Called when the testers are requested.
  std::function<void()> onInstruments;
  /// Every notice and request raises an error, after it was recorded.
  bool broken = false;

  std::size_t Count(const std::string& what) const {
    return static_cast<std::size_t>(std::count(told.begin(), told.end(), what));
  }

 private:
  void Record(const std::string& what) {
    told.push_back(what);
    if (onTold) onTold(what);
    if (broken) throw orvik::HostError(orvik::HostError::kInvalidArgument, "test", "broken");
  }
  bool IRunController_StartQuery(std::shared_ptr<orvik::ITestElement> iteElement) override {
    told.push_back("start " + std::to_string(iteElement->TestID()));
    return mayStart(iteElement);
  }
  void IRunController_NavigationRequest(std::int32_t lCode) override {
    navigation.push_back(lCode);
    Record("navigate " + std::to_string(lCode));
  }
  void IRunController_FinishedNotice(std::shared_ptr<orvik::ITestElement> iteElement) override {
    finished.push_back(iteElement->ID());
    Record("finished " + std::to_string(iteElement->TestID()));
  }
  std::shared_ptr<orvik::IStandardColl> IRunController_Standards() const override { return standards; }
  std::shared_ptr<orvik::IInstrumentColl> IRunController_Instruments() const override {
    if (broken) throw orvik::HostError(orvik::HostError::kInvalidArgument, "test", "broken");
    if (onInstruments) onInstruments();
    return instruments;
  }
};

}  // namespace support
