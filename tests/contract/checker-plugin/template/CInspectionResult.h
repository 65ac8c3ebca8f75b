#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IServiceRecord.h"

namespace check {

/// The outcome of an inspection: a status, a comment, and the host's summary of them. There is no
/// measurement.
class CInspectionResult final : public orvik::IResultData {
 public:
  /// The node that a result is saved as.
  static constexpr char kNode[] = "ResultItem";

  static std::shared_ptr<CInspectionResult> Create();

  /// Stores the verdict and writes the host's summary of it for the element.
  void Decide(std::int32_t status, const orvik::ITestElement& element);

 private:
  CInspectionResult() = default;

  std::string IObject_ClassID() const override;

  std::string IResultData_Comment() const override { return comment_; }
  void IResultData_SetComment(const std::string& comment) override { comment_ = comment; }
  bool IResultData_HasDialog() const override { return false; }
  std::int32_t IResultData_Status() const override { return status_; }
  std::shared_ptr<orvik::IMeasurement> IResultData_Measurement(std::int32_t index) const override;
  std::int32_t IResultData_MeasurementCount() const override { return 0; }
  std::shared_ptr<orvik::IServiceRecord> IResultData_ServiceRecord() const override { return serviceRecord_; }
  std::int32_t IResultData_MTIID() const override { return 0; }
  std::shared_ptr<orvik::IDialog> IResultData_CreateDialog() override;
  void IResultData_Load(std::shared_ptr<orvik::IXmlNode> node,
                        std::shared_ptr<orvik::IObject> context) override;
  std::shared_ptr<orvik::IXmlNode> IResultData_Save(std::shared_ptr<orvik::IXmlNode> parent) const override;
  void IResultData_PrintReport(std::shared_ptr<orvik::IReport> report,
                               std::shared_ptr<orvik::ITestElement> element) override;

  std::int32_t status_ = 0;
  std::string comment_;
  std::shared_ptr<orvik::IServiceRecord> serviceRecord_;
};

}  // namespace check
