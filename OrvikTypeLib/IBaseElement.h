#pragma once

#include <memory>
#include <utility>

#include "OrvikTypeLib/ITestElement.h"

namespace orvik {

class IAuxiliaryState;
class IConfigData;
class ILimitData;
class IResultData;

/// The standard element that a plug-in's element wraps (class "OrvikTypeLib.TestElement", and
/// "OrvikTypeLib.TestContainer" with `ITestContainer` beside it). Keeps identity, parent, information record,
/// auxiliary state, configuration, limits and result; loads, saves and clones them deeply.
///
/// A result is cloned by its class identifier (`IObject::ClassID`): a new one is created through the class
/// library and loaded from what the old one saves.
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class IBaseElement : public virtual ITestElement {
 public:
  /// Installs the element's settings.
  void SetConfiguration(std::shared_ptr<IConfigData> Configuration) {
    IBaseElement_SetConfiguration(std::move(Configuration));
  }
  /// Installs the element's limits.
  void SetLimits(std::shared_ptr<ILimitData> Limits) { IBaseElement_SetLimits(std::move(Limits)); }
  /// Installs the element's result; empty removes it.
  void SetResult(std::shared_ptr<IResultData> Result) { IBaseElement_SetResult(std::move(Result)); }
  /// The host's own settings of the element.
  std::shared_ptr<IAuxiliaryState> Auxiliary() const { return IBaseElement_Auxiliary(); }
  /// The plug-in's element that wraps this one: reports and children see it instead of this one.
  /// Not kept alive.
  void SetOuter(std::shared_ptr<ITestElement> iteOuter) { IBaseElement_SetOuter(std::move(iteOuter)); }

 private:
  virtual void IBaseElement_SetConfiguration(std::shared_ptr<IConfigData> Configuration) = 0;
  virtual void IBaseElement_SetLimits(std::shared_ptr<ILimitData> Limits) = 0;
  virtual void IBaseElement_SetResult(std::shared_ptr<IResultData> Result) = 0;
  virtual std::shared_ptr<IAuxiliaryState> IBaseElement_Auxiliary() const = 0;
  virtual void IBaseElement_SetOuter(std::shared_ptr<ITestElement> iteOuter) = 0;
};

}  // namespace orvik
