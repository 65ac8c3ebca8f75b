#pragma once

#include <memory>
#include <pugixml.hpp>
#include <string>

#include "OrvikTypeLib/IBaseElement.h"
#include "host/elements/AuxiliaryState.h"
#include "host/elements/ElementFactory.h"
#include "host/elements/InformationRecord.h"
#include "host/xml/UnknownXml.h"

namespace host::xml {
class XmlReference;
}

namespace host::elements {

/// The standard element. Saved as
///
///     <TestElement ID="3" TestID="410" PlugInID="KELD(IN)" Class="orvikKELD.CKELDTestElement">
///       <Information FirstText="" SecondText="" DisplayName="Protective earth"/>
///       <Auxiliary Print="1" RecordOnly="1"/>
///       <Configuration>what the configuration saves</Configuration>
///       <ExpectedResult>what the limits save</ExpectedResult>
///       <ResultItem>what the result saves</ResultItem>
///       <TestElement .../>       children, in a container
///     </TestElement>
///
/// "Class" is the class of the outermost element. Unknown XML is kept and written back.
class TestElement : public orvik::IBaseElement {
 public:
  explicit TestElement(std::weak_ptr<ElementFactory> factory) : factory_(std::move(factory)) {}
  ~TestElement() override;

  /// Whether `element` wraps this one.
  bool IsInside(const ITestElement& element) const { return outer_.lock().get() == &element; }
  /// Null during destruction.
  std::shared_ptr<IBaseElement> Self() const;

 protected:
  /// This element as others see it: the plug-in's element that wraps it, else this one.
  std::shared_ptr<ITestElement> Shown() const;
  /// The factory; `HostError` 91 when the host is gone.
  std::shared_ptr<ElementFactory> Factory() const;
  InformationRecord& Texts() const { return *information_; }

  /// A new element of the same class.
  virtual std::shared_ptr<TestElement> NewOfSameClass() const;
  /// A container's part of the deep operations.
  virtual bool HasChildren() const { return false; }
  virtual void CloneChildren(TestElement&) const {}
  virtual void SaveChildren(const std::shared_ptr<orvik::IXmlNode>&) const {}
  virtual void ClearChildren() {}
  /// Loads a child element; false when this class has no children.
  virtual bool LoadChild(const std::shared_ptr<orvik::IXmlNode>&, const std::shared_ptr<IObject>&) {
    return false;
  }
  virtual void PrintChildren(const std::shared_ptr<orvik::IReport>&, const std::shared_ptr<IObject>&) {}
  virtual void OuterChanged() {}

  /// Identity and texts from a "TestElement" node.
  void LoadIdentity(pugi::xml_node node);
  void CopyIdentity(TestElement& copy) const;

  std::shared_ptr<ITestElement> ITestElement_Clone() const override;
  void ITestElement_Load(std::shared_ptr<orvik::IXmlNode> Node, std::shared_ptr<IObject> Context) override;
  std::shared_ptr<orvik::IXmlNode> ITestElement_Save(std::shared_ptr<orvik::IXmlNode> Parent) const override;
  bool ITestElement_QuerySetParent(std::shared_ptr<ITestElement> iteParent) const override;

 private:
  std::string IObject_ClassID() const override;

  void ITestElement_Initialize(const std::string& sPlugInID, std::int32_t lElementID,
                               std::int32_t lTestID) override;
  void ITestElement_Terminate() override;
  orvik::Variant ITestElement_Info() const override;
  void ITestElement_UpdateReferences() override {}
  void ITestElement_Perform(std::shared_ptr<orvik::IRunController> RunController) override;
  std::shared_ptr<orvik::IConfigData> ITestElement_Configuration() const override { return configuration_; }
  std::shared_ptr<orvik::ILimitData> ITestElement_Limits() const override { return limits_; }
  std::shared_ptr<orvik::IResultData> ITestElement_Result() const override { return result_; }
  void ITestElement_PrintReport(std::shared_ptr<orvik::IReport> Report,
                                std::shared_ptr<IObject> Context) override;
  std::shared_ptr<orvik::IInformationRecord> ITestElement_Information() const override {
    return information_;
  }
  std::int32_t ITestElement_ID() const override { return id_; }
  void ITestElement_SetID(std::int32_t lID) override { id_ = lID; }
  std::shared_ptr<ITestElement> ITestElement_Parent() const override { return parent_.lock(); }
  void ITestElement_SetParent(std::shared_ptr<ITestElement> iteParent) override { parent_ = iteParent; }
  std::int32_t ITestElement_TestID() const override { return testId_; }
  std::string ITestElement_PlugInID() const override { return plugInId_; }
  orvik::Variant ITestElement_Filter() const override { return testId_; }
  orvik::Variant ITestElement_GetMeasurementList() const override;

  void IBaseElement_SetConfiguration(std::shared_ptr<orvik::IConfigData> Configuration) override;
  void IBaseElement_SetLimits(std::shared_ptr<orvik::ILimitData> Limits) override;
  void IBaseElement_SetResult(std::shared_ptr<orvik::IResultData> Result) override;
  std::shared_ptr<orvik::IAuxiliaryState> IBaseElement_Auxiliary() const override;
  void IBaseElement_SetOuter(std::shared_ptr<ITestElement> iteOuter) override;

  void CopyTo(TestElement& copy) const;
  std::shared_ptr<orvik::IResultData> CopyOfResult() const;
  void LoadElement(const std::shared_ptr<orvik::IXmlNode>& node, const std::shared_ptr<IObject>& context);
  bool LoadPart(pugi::xml_node part, xml::XmlReference& reference, const std::shared_ptr<IObject>& context);
  void LoadResult(const std::shared_ptr<orvik::IXmlNode>& node, const std::shared_ptr<IObject>& context);
  void LoadAuxiliary(pugi::xml_node node);
  void ClearLimits();
  void SaveTo(const std::shared_ptr<orvik::IXmlNode>& node) const;
  void SaveResult(const std::shared_ptr<orvik::IXmlNode>& node) const;
  template <class Step>
  auto Noted(std::ptrdiff_t offset, Step step) const;

  std::weak_ptr<ElementFactory> factory_;
  std::int32_t id_ = 0;
  std::int32_t testId_ = 0;
  std::string plugInId_;
  std::weak_ptr<ITestElement> parent_;
  std::weak_ptr<ITestElement> outer_;
  WrappedElements::Link wrapped_{*this};
  std::shared_ptr<InformationRecord> information_ = std::make_shared<InformationRecord>(this);
  /// Created on first use: few elements differ from the default.
  mutable std::shared_ptr<AuxiliaryState> auxiliary_;
  std::shared_ptr<orvik::IConfigData> configuration_;
  std::shared_ptr<orvik::ILimitData> limits_;
  std::shared_ptr<orvik::IResultData> result_;
  xml::UnknownXml leftovers_;
  xml::UnknownXml unknownConfiguration_;
  xml::UnknownXml unknownResult_;
};

}  // namespace host::elements
