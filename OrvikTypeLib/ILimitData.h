#pragma once

#include <memory>
#include <string>
#include <utility>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

class IDialog;
class IMeasurement;
class IReport;
class IStandard;
class IStandardColl;
class IXmlNode;

/// The limits of one element.
///
/// Implemented by: the host and the plug-in. Mandatory. Since contract version 1. User-interface thread only.
class ILimitData : public virtual IObject {
 public:
  /// A description of the limits.
  std::string Description() const { return ILimitData_Description(); }
  /// Sets the description, where there is one.
  void SetDescription(const std::string& sDescription) { ILimitData_SetDescription(sDescription); }
  /// Whether `CreateDialog` returns a dialog.
  bool HasDialog() const { return ILimitData_HasDialog(); }
  /// The standards with their limits, or empty.
  std::shared_ptr<IStandardColl> Standards() const { return ILimitData_Standards(); }
  /// The element that owns the limits, or empty.
  std::shared_ptr<IObject> Owner() const { return ILimitData_Owner(); }
  /// A deep copy without an owner.
  std::shared_ptr<ILimitData> Clone() const { return ILimitData_Clone(); }
  /// The dialog that edits the limits.
  std::shared_ptr<IDialog> CreateDialog() { return ILimitData_CreateDialog(); }
  /// Adds a standard with one limit without bounds in the element's unit, and returns it.
  std::shared_ptr<IStandard> CreateStandard(const std::string& sName, const std::string& sDescription) {
    return ILimitData_CreateStandard(sName, sDescription);
  }
  /// Replaces the limits by those saved below the node.
  void Load(std::shared_ptr<IXmlNode> Node, std::shared_ptr<IObject> Context) {
    ILimitData_Load(std::move(Node), std::move(Context));
  }
  /// Writes the limits below the parent and returns their node; empty when there are none.
  std::shared_ptr<IXmlNode> Save(std::shared_ptr<IXmlNode> Parent) const {
    return ILimitData_Save(std::move(Parent));
  }
  /// Adds the limits to the report; `Context` is the element's `ITestElement`.
  void PrintReport(std::shared_ptr<IReport> Report, std::shared_ptr<IObject> Context) {
    ILimitData_PrintReport(std::move(Report), std::move(Context));
  }
  /// An object that limits may refer to has changed, for example the element itself.
  void UpdateLimits(std::shared_ptr<IObject> Reference) { ILimitData_UpdateLimits(std::move(Reference)); }
  /// The limits' own standards, of those given, that the measurement fails; empty if it fails none.
  std::shared_ptr<IStandardColl> FindFailedStandards(std::shared_ptr<IMeasurement> Measurement,
                                                     std::shared_ptr<IStandardColl> Standards) const {
    return ILimitData_FindFailedStandards(std::move(Measurement), std::move(Standards));
  }

 private:
  virtual std::string ILimitData_Description() const = 0;
  virtual void ILimitData_SetDescription(const std::string& sDescription) = 0;
  virtual bool ILimitData_HasDialog() const = 0;
  virtual std::shared_ptr<IStandardColl> ILimitData_Standards() const = 0;
  virtual std::shared_ptr<IObject> ILimitData_Owner() const = 0;
  virtual std::shared_ptr<ILimitData> ILimitData_Clone() const = 0;
  virtual std::shared_ptr<IDialog> ILimitData_CreateDialog() = 0;
  virtual std::shared_ptr<IStandard> ILimitData_CreateStandard(const std::string& sName,
                                                               const std::string& sDescription) = 0;
  virtual void ILimitData_Load(std::shared_ptr<IXmlNode> Node, std::shared_ptr<IObject> Context) = 0;
  virtual std::shared_ptr<IXmlNode> ILimitData_Save(std::shared_ptr<IXmlNode> Parent) const = 0;
  virtual void ILimitData_PrintReport(std::shared_ptr<IReport> Report, std::shared_ptr<IObject> Context) = 0;
  virtual void ILimitData_UpdateLimits(std::shared_ptr<IObject> Reference) = 0;
  virtual std::shared_ptr<IStandardColl> ILimitData_FindFailedStandards(
      std::shared_ptr<IMeasurement> Measurement, std::shared_ptr<IStandardColl> Standards) const = 0;
};

}  // namespace orvik
