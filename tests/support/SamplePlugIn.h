#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "OrvikTypeLib/IBaseElement.h"
#include "OrvikTypeLib/IClassLibrary.h"
#include "OrvikTypeLib/IHost.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/IPlugIn.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/ITestContainer.h"

/// A small plug-in of the tests' own, written from the contract alone. Like a real one it wraps the host's
/// base elements and passes over their errors, so these tests show what the host does about that.
namespace sample {

inline constexpr char kPlugInId[] = "SAMPLE";
inline constexpr char kElement[] = "sample.Element";
inline constexpr char kSequence[] = "sample.Sequence";
inline constexpr char kResult[] = "sample.Result";

/// What only the catalogue knows of an element, as the unit of a test.
class ISampleTest : public virtual orvik::IObject {
 public:
  std::string sUnit;
  /// Installed in the base element when the element is created.
  std::shared_ptr<orvik::IBaseElement> BaseElement;
  /// Shown in place of the base element's texts.
  std::shared_ptr<orvik::IInformationRecord> OtherTexts;
  bool fRefusesTexts = false;
};

/// A result with a status and a comment.
class SampleResult final : public orvik::IResultData {
 public:
  std::int32_t lStatus = 0;

 private:
  std::string IObject_ClassID() const override { return kResult; }
  std::string IResultData_Comment() const override { return sComment_; }
  void IResultData_SetComment(const std::string& sComment) override { sComment_ = sComment; }
  bool IResultData_HasDialog() const override { return false; }
  std::int32_t IResultData_Status() const override { return lStatus; }
  std::shared_ptr<orvik::IMeasurement> IResultData_Measurement(std::int32_t) const override;
  std::int32_t IResultData_MeasurementCount() const override { return 0; }
  std::shared_ptr<orvik::IServiceRecord> IResultData_ServiceRecord() const override;
  std::int32_t IResultData_MTIID() const override { return 0; }
  std::shared_ptr<orvik::IDialog> IResultData_CreateDialog() override;
  void IResultData_Load(std::shared_ptr<orvik::IXmlNode> Node, std::shared_ptr<IObject> Context) override;
  std::shared_ptr<orvik::IXmlNode> IResultData_Save(std::shared_ptr<orvik::IXmlNode> Parent) const override;
  void IResultData_PrintReport(std::shared_ptr<orvik::IReport> Report,
                               std::shared_ptr<orvik::ITestElement> iteElement) override;

  std::string sComment_;
};

/// The options of an element's configuration.
std::int32_t Options(const std::shared_ptr<orvik::ITestElement>& iteElement);
void SetOptions(const std::shared_ptr<orvik::ITestElement>& iteElement, std::int32_t lOptions);

/// An element or a sequence on a host.
std::shared_ptr<orvik::ITestElement> CreateElement(const std::shared_ptr<orvik::IHost>& Host);
std::shared_ptr<orvik::ITestElement> CreateSequence(const std::shared_ptr<orvik::IHost>& Host);

/// The plug-in's classes on a host. They do not keep the host.
std::shared_ptr<orvik::IClassLibrary> CreateClasses(const std::shared_ptr<orvik::IHost>& Host);

/// The plug-in with the catalogue 100 (sequence: 110 in "V", 120 in "mA", 200 (sequence: 210 in "Ohm")).
std::shared_ptr<orvik::IPlugIn> CreatePlugIn(const std::shared_ptr<orvik::IHost>& Host);

}  // namespace sample
