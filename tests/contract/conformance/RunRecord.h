#pragma once

#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/IInstrumentColl.h"
#include "OrvikTypeLib/IRunController.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestElement.h"

namespace conformance {

/// A run controller that allows every start, and records its calls.
class RunRecord final : public orvik::IRunController {
 public:
  bool mayStart = true;
  std::shared_ptr<orvik::IStandardColl> standards;
  std::shared_ptr<orvik::IInstrumentColl> instruments;
  /// Identifiers of the tests whose run is over.
  std::vector<std::int32_t> finished;
  std::vector<std::int32_t> requests;

 private:
  std::string IObject_ClassID() const override { return {}; }
  bool IRunController_StartQuery(std::shared_ptr<orvik::ITestElement>) override { return mayStart; }
  void IRunController_NavigationRequest(std::int32_t lCode) override { requests.push_back(lCode); }
  void IRunController_FinishedNotice(std::shared_ptr<orvik::ITestElement> iteElement) override {
    finished.push_back(iteElement ? iteElement->TestID() : -1);
  }
  std::shared_ptr<orvik::IStandardColl> IRunController_Standards() const override { return standards; }
  std::shared_ptr<orvik::IInstrumentColl> IRunController_Instruments() const override { return instruments; }
};

}  // namespace conformance
