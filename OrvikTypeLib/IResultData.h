#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

class IDialog;
class IMeasurement;
class IReport;
class IServiceRecord;
class ITestElement;
class IXmlNode;

/// The stored outcome of one element.
///
/// Implemented by: the host and the plug-in. Mandatory. Since contract version 1. User-interface thread only.
class IResultData : public virtual IObject {
 public:
  /// The operator's comment.
  std::string Comment() const { return IResultData_Comment(); }
  /// Sets the operator's comment.
  void SetComment(const std::string& sComment) { IResultData_SetComment(sComment); }
  /// Whether there is something to show beyond the measurement.
  bool HasDialog() const { return IResultData_HasDialog(); }
  /// A code of `ResultStatus`.
  std::int32_t Status() const { return IResultData_Status(); }
  /// The measurement at the index, or empty.
  std::shared_ptr<IMeasurement> Measurement(std::int32_t lIndex) const {
    return IResultData_Measurement(lIndex);
  }
  /// Number of measurements.
  std::int32_t MeasurementCount() const { return IResultData_MeasurementCount(); }
  /// The host's summary of this result, or empty.
  std::shared_ptr<IServiceRecord> ServiceRecord() const { return IResultData_ServiceRecord(); }
  /// The number of the instrument record that the result was measured with; 0 none.
  std::int32_t MTIID() const { return IResultData_MTIID(); }
  /// The dialog that shows the details.
  std::shared_ptr<IDialog> CreateDialog() { return IResultData_CreateDialog(); }
  /// Reads the result from a "ResultItem" node.
  void Load(std::shared_ptr<IXmlNode> Node, std::shared_ptr<IObject> Context) {
    IResultData_Load(std::move(Node), std::move(Context));
  }
  /// Adds a "ResultItem" node to the parent and returns it.
  std::shared_ptr<IXmlNode> Save(std::shared_ptr<IXmlNode> Parent) const {
    return IResultData_Save(std::move(Parent));
  }
  /// Adds the result to the report.
  void PrintReport(std::shared_ptr<IReport> Report, std::shared_ptr<ITestElement> iteElement) {
    IResultData_PrintReport(std::move(Report), std::move(iteElement));
  }

 private:
  virtual std::string IResultData_Comment() const = 0;
  virtual void IResultData_SetComment(const std::string& sComment) = 0;
  virtual bool IResultData_HasDialog() const = 0;
  virtual std::int32_t IResultData_Status() const = 0;
  virtual std::shared_ptr<IMeasurement> IResultData_Measurement(std::int32_t lIndex) const = 0;
  virtual std::int32_t IResultData_MeasurementCount() const = 0;
  virtual std::shared_ptr<IServiceRecord> IResultData_ServiceRecord() const = 0;
  virtual std::int32_t IResultData_MTIID() const = 0;
  virtual std::shared_ptr<IDialog> IResultData_CreateDialog() = 0;
  virtual void IResultData_Load(std::shared_ptr<IXmlNode> Node, std::shared_ptr<IObject> Context) = 0;
  virtual std::shared_ptr<IXmlNode> IResultData_Save(std::shared_ptr<IXmlNode> Parent) const = 0;
  virtual void IResultData_PrintReport(std::shared_ptr<IReport> Report,
                                       std::shared_ptr<ITestElement> iteElement) = 0;
};

}  // namespace orvik
