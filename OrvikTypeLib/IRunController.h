#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

class IInstrumentColl;
class IStandardColl;
class ITestElement;

/// The host's side of a running element.
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class IRunController : public virtual IObject {
 public:
  /// Whether the element may start now.
  bool StartQuery(std::shared_ptr<ITestElement> iteElement) {
    return IRunController_StartQuery(std::move(iteElement));
  }
  /// What the host is to do once the element has finished.
  /// @param lCode a code of `Navigation`; any other raises `HostError` 5
  void NavigationRequest(std::int32_t lCode) { IRunController_NavigationRequest(lCode); }
  /// The element's run is over; its result is final.
  void FinishedNotice(std::shared_ptr<ITestElement> iteElement) {
    IRunController_FinishedNotice(std::move(iteElement));
  }
  /// The standards by which measurements are judged.
  std::shared_ptr<IStandardColl> Standards() const { return IRunController_Standards(); }
  /// The instrument records of the document.
  std::shared_ptr<IInstrumentColl> Instruments() const { return IRunController_Instruments(); }

 private:
  virtual bool IRunController_StartQuery(std::shared_ptr<ITestElement> iteElement) = 0;
  virtual void IRunController_NavigationRequest(std::int32_t lCode) = 0;
  virtual void IRunController_FinishedNotice(std::shared_ptr<ITestElement> iteElement) = 0;
  virtual std::shared_ptr<IStandardColl> IRunController_Standards() const = 0;
  virtual std::shared_ptr<IInstrumentColl> IRunController_Instruments() const = 0;
};

}  // namespace orvik
