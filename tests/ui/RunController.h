#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "OrvikTypeLib/IRunController.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestElement.h"

namespace ui {

/// The host's side of a run: lets everything start, and notes down what it is told.
class RunController final : public virtual orvik::IRunController {
 public:
  bool mayStart = true;
  std::shared_ptr<orvik::IStandardColl> standards;
  std::vector<std::int32_t> navigation;
  /// What the host does on a navigation request, beside noting it down.
  std::function<void()> onNavigation;
  /// Identifiers of the elements that finished.
  std::vector<std::int32_t> finished;

 private:
  bool IRunController_StartQuery(std::shared_ptr<orvik::ITestElement>) override { return mayStart; }
  void IRunController_NavigationRequest(std::int32_t code) override {
    navigation.push_back(code);
    if (onNavigation) onNavigation();
  }
  void IRunController_FinishedNotice(std::shared_ptr<orvik::ITestElement> element) override {
    finished.push_back(element->ID());
  }
  std::shared_ptr<orvik::IStandardColl> IRunController_Standards() const override { return standards; }
  std::shared_ptr<orvik::IInstrumentColl> IRunController_Instruments() const override { return {}; }
};

}  // namespace ui
