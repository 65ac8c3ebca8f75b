#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/Variant.h"

namespace keld::results {

/// The stored outcome of one element: status, at most one measurement, the tester's record, a comment, and
/// the host's summary.
///
/// Errors of the host pass to the caller unchanged, except in `CreateDialog`, which skips the step that
/// fails.
class CKELDResultData final : public orvik::IResultData {
 public:
  /// A result with status 0 and nothing else.
  static std::shared_ptr<CKELDResultData> Create();

  /// Sets the measurement; empty removes it.
  void SetMeasurement(std::shared_ptr<orvik::IMeasurement> Measurement);
  /// Sets the index of the tester's record in the host's instrument collection; 0 none.
  void SetMTIIdentifier(std::int32_t lIdentifier);
  /// Sets the status, a code of `orvik::ResultStatus`. The service record stays
  /// unchanged.
  void SetStatus(std::int32_t lStatus);
  void SetServiceRecord(std::shared_ptr<orvik::IServiceRecord> ServiceRecord);

  /// A part of what `PrintReport` printed last: 1 column format, 2 header row, 3 report row; any other is
  /// empty.
  std::string ReportPart(int iIndex) const;

  /// Prepares a run: removes the measurement, sets the status and builds its service record.
  /// Children of a container are reset in the same way, at any depth, also below a child that has no result
  /// of its own.
  void Reset(std::shared_ptr<orvik::ITestElement> iteElement, std::int32_t lStatus);

  /// Makes the element the owner of the result: keeps a weak reference and builds the service record for it.
  /// Status 1, 2 and 3 have a record, any other drops it.
  void BuildServiceRecord(std::shared_ptr<orvik::ITestElement> iteElement);
  /// Keeps a weak reference to the owner of a complete result; the service record stays
  /// unchanged.
  void SetOwner(const std::shared_ptr<orvik::ITestElement>& iteElement) { mOwner = iteElement; }
  /// The element of the last `BuildServiceRecord` or `SetOwner`; empty when it is gone.
  std::shared_ptr<orvik::ITestElement> Owner() const { return mOwner.lock(); }

 private:
  std::string IObject_ClassID() const override;
  std::string IResultData_Comment() const override { return sComment; }
  void IResultData_SetComment(const std::string& sText) override { sComment = sText; }
  bool IResultData_HasDialog() const override { return !sComment.empty(); }
  std::int32_t IResultData_Status() const override { return lStatus; }
  std::shared_ptr<orvik::IMeasurement> IResultData_Measurement(std::int32_t lIndex) const override;
  std::int32_t IResultData_MeasurementCount() const override { return mMeasurement ? 1 : 0; }
  std::shared_ptr<orvik::IServiceRecord> IResultData_ServiceRecord() const override { return mServiceRecord; }
  std::int32_t IResultData_MTIID() const override { return lMTIIdentifier; }
  std::shared_ptr<orvik::IDialog> IResultData_CreateDialog() override;
  void IResultData_Load(std::shared_ptr<orvik::IXmlNode> Node,
                        std::shared_ptr<orvik::IObject> Context) override;
  std::shared_ptr<orvik::IXmlNode> IResultData_Save(std::shared_ptr<orvik::IXmlNode> Parent) const override;
  void IResultData_PrintReport(std::shared_ptr<orvik::IReport> Report,
                               std::shared_ptr<orvik::ITestElement> iteElement) override;

  void ResetThis(const std::shared_ptr<orvik::ITestElement>& iteElement, std::int32_t lNewStatus);
  void LoadChild(const std::string& sName, const std::shared_ptr<orvik::IXmlNode>& Child,
                 const std::shared_ptr<orvik::IObject>& Context);
  orvik::Variant OwnValue() const;

  std::shared_ptr<orvik::IMeasurement> mMeasurement;
  std::int32_t lStatus = 0;
  std::int32_t lMTIIdentifier = 0;
  /// Format, header and row of the table that was printed last; none before.
  std::vector<std::string> asReportParts;
  std::string sComment;
  std::shared_ptr<orvik::IServiceRecord> mServiceRecord;
  std::weak_ptr<orvik::ITestElement> mOwner;
};

}  // namespace keld::results
