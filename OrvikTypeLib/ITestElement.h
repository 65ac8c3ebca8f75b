#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "OrvikTypeLib/IObject.h"
#include "OrvikTypeLib/Variant.h"

namespace orvik {

class IConfigData;
class IInformationRecord;
class ILimitData;
class IReport;
class IResultData;
class IRunController;
class IXmlNode;

/// One element of a test document: a test or a sequence.
///
/// Implemented by: the host and the plug-in. Mandatory. Since contract version 1. User-interface thread only.
class ITestElement : public virtual IObject {
 public:
  /// Gives a new element its plug-in, its own identifier and its test identifier.
  void Initialize(const std::string& sPlugInID, std::int32_t lElementID, std::int32_t lTestID) {
    ITestElement_Initialize(sPlugInID, lElementID, lTestID);
  }
  /// The element is about to be released.
  void Terminate() { ITestElement_Terminate(); }
  /// A deep copy: configuration, limits, result and children included. `HostError` beyond a thousand levels
  /// of nesting.
  std::shared_ptr<ITestElement> Clone() const { return ITestElement_Clone(); }
  /// Reads the element from a "TestElement" node, or its result from a "ResultItem" node.
  void Load(std::shared_ptr<IXmlNode> Node, std::shared_ptr<IObject> Context) {
    ITestElement_Load(std::move(Node), std::move(Context));
  }
  /// Adds a "TestElement" node to the parent and returns it.
  std::shared_ptr<IXmlNode> Save(std::shared_ptr<IXmlNode> Parent) const {
    return ITestElement_Save(std::move(Parent));
  }
  /// A list of two strings that describe the element.
  Variant Info() const { return ITestElement_Info(); }
  /// Whether the element may be placed under that parent.
  bool QuerySetParent(std::shared_ptr<ITestElement> iteParent) const {
    return ITestElement_QuerySetParent(std::move(iteParent));
  }
  /// Other elements have changed; references to them are renewed.
  void UpdateReferences() { ITestElement_UpdateReferences(); }
  /// Runs the element under the controller; returns when the operator has left the test guide.
  void Perform(std::shared_ptr<IRunController> RunController) {
    ITestElement_Perform(std::move(RunController));
  }
  /// The element's settings, or empty.
  std::shared_ptr<IConfigData> Configuration() const { return ITestElement_Configuration(); }
  /// The element's limits, or empty.
  std::shared_ptr<ILimitData> Limits() const { return ITestElement_Limits(); }
  /// The element's result, or empty.
  std::shared_ptr<IResultData> Result() const { return ITestElement_Result(); }
  /// Adds the element to the report.
  void PrintReport(std::shared_ptr<IReport> Report, std::shared_ptr<IObject> Context) {
    ITestElement_PrintReport(std::move(Report), std::move(Context));
  }
  /// The element's identifier in its document.
  std::int32_t ID() const { return ITestElement_ID(); }
  /// Sets the identifier.
  void SetID(std::int32_t lID) { ITestElement_SetID(lID); }
  /// The container that it is in, or empty.
  std::shared_ptr<ITestElement> Parent() const { return ITestElement_Parent(); }
  /// Sets the parent; the element does not keep it alive.
  void SetParent(std::shared_ptr<ITestElement> iteParent) { ITestElement_SetParent(std::move(iteParent)); }
  /// The identifier of the test in the plug-in's catalogue.
  std::int32_t TestID() const { return ITestElement_TestID(); }
  /// The identifier of the plug-in it belongs to.
  std::string PlugInID() const { return ITestElement_PlugInID(); }
  /// The texts under which the element is shown to people.
  std::shared_ptr<IInformationRecord> Information() const { return ITestElement_Information(); }
  /// What the host filters element lists by: the test identifier.
  Variant Filter() const { return ITestElement_Filter(); }
  /// The keys of the element's measurements, as a list of strings.
  Variant GetMeasurementList() const { return ITestElement_GetMeasurementList(); }

 private:
  virtual void ITestElement_Initialize(const std::string& sPlugInID, std::int32_t lElementID,
                                       std::int32_t lTestID) = 0;
  virtual void ITestElement_Terminate() = 0;
  virtual std::shared_ptr<ITestElement> ITestElement_Clone() const = 0;
  virtual void ITestElement_Load(std::shared_ptr<IXmlNode> Node, std::shared_ptr<IObject> Context) = 0;
  virtual std::shared_ptr<IXmlNode> ITestElement_Save(std::shared_ptr<IXmlNode> Parent) const = 0;
  virtual Variant ITestElement_Info() const = 0;
  virtual bool ITestElement_QuerySetParent(std::shared_ptr<ITestElement> iteParent) const = 0;
  virtual void ITestElement_UpdateReferences() = 0;
  virtual void ITestElement_Perform(std::shared_ptr<IRunController> RunController) = 0;
  virtual std::shared_ptr<IConfigData> ITestElement_Configuration() const = 0;
  virtual std::shared_ptr<ILimitData> ITestElement_Limits() const = 0;
  virtual std::shared_ptr<IResultData> ITestElement_Result() const = 0;
  virtual void ITestElement_PrintReport(std::shared_ptr<IReport> Report,
                                        std::shared_ptr<IObject> Context) = 0;
  virtual std::int32_t ITestElement_ID() const = 0;
  virtual void ITestElement_SetID(std::int32_t lID) = 0;
  virtual std::shared_ptr<ITestElement> ITestElement_Parent() const = 0;
  virtual void ITestElement_SetParent(std::shared_ptr<ITestElement> iteParent) = 0;
  virtual std::int32_t ITestElement_TestID() const = 0;
  virtual std::string ITestElement_PlugInID() const = 0;
  virtual std::shared_ptr<IInformationRecord> ITestElement_Information() const = 0;
  virtual Variant ITestElement_Filter() const = 0;
  virtual Variant ITestElement_GetMeasurementList() const = 0;
};

}  // namespace orvik
