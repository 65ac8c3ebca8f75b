#include "host/elements/TestElement.h"

#include <algorithm>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IReport.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"
#include "host/elements/ElementTags.h"
#include "host/elements/Nesting.h"
#include "host/xml/XmlNode.h"

namespace host::elements {
namespace {

using orvik::HostError;

constexpr char kElementSource[] = "OrvikTypeLib.TestElement";

std::shared_ptr<orvik::IXmlNode> ScratchRoot(const std::string& name) {
  auto document = std::make_shared<pugi::xml_document>();
  const auto root = document->append_child(name.c_str());
  return xml::XmlNode::Create(std::move(document), root);
}

}  // namespace

TestElement::~TestElement() { information_->ForgetElement(); }

std::shared_ptr<orvik::IBaseElement> TestElement::Self() const {
  const auto self = std::const_pointer_cast<IObject>(weak_from_this().lock());
  return self ? std::shared_ptr<IBaseElement>(self, const_cast<TestElement*>(this)) : nullptr;
}

std::string TestElement::IObject_ClassID() const { return orvik::HostClasses::kTestElement; }

std::shared_ptr<orvik::ITestElement> TestElement::Shown() const {
  if (auto outer = outer_.lock()) return outer;
  // Callers only compare identity, so the const_cast in `Self` is safe.
  return Self();
}

std::shared_ptr<ElementFactory> TestElement::Factory() const { return orvik::Required(factory_); }

std::shared_ptr<TestElement> TestElement::NewOfSameClass() const {
  return std::make_shared<TestElement>(factory_);
}

/// Runs a step. Notes a failure for the document, since the plug-in in between ignores errors, and rethrows
/// it.
template <class Step>
auto TestElement::Noted(std::ptrdiff_t offset, Step step) const {
  try {
    return step();
  } catch (const HostError& error) {
    const auto* fault = dynamic_cast<const xml::XmlError*>(&error);
    if (const auto factory = factory_.lock())
      factory->Trouble().Note(error.Description(), fault ? fault->Offset() : offset);
    throw;
  }
}

void TestElement::ITestElement_Initialize(const std::string& sPlugInID, std::int32_t lElementID,
                                          std::int32_t lTestID) {
  plugInId_ = sPlugInID;
  id_ = lElementID;
  testId_ = lTestID;
}

void TestElement::ITestElement_Terminate() {
  wrapped_.Leave();
  outer_.reset();
}

orvik::Variant TestElement::ITestElement_Info() const {
  const auto first = information_->FirstText();
  const auto second = information_->SecondText();
  return std::vector<std::string>{"::", first.empty() ? second : second + " " + first};
}

bool TestElement::ITestElement_QuerySetParent(std::shared_ptr<ITestElement> iteParent) const {
  const auto self = Shown();
  for (auto above = std::move(iteParent); above; above = above->Parent()) {
    if (above == self || above.get() == this) return false;
  }
  return true;
}

void TestElement::ITestElement_Perform(std::shared_ptr<orvik::IRunController>) {
  throw HostError(HostError::kNoSuchProperty, kElementSource,
                  Tr("the element has no test of its own; only a plug-in's element can be run"));
}

orvik::Variant TestElement::ITestElement_GetMeasurementList() const {
  std::vector<std::string> keys;
  const auto count = result_ ? result_->MeasurementCount() : 0;
  for (std::int32_t index = 1; index <= count; ++index) {
    if (const auto measurement = result_->Measurement(index)) keys.push_back(measurement->Key());
  }
  return keys;
}

void TestElement::ITestElement_PrintReport(std::shared_ptr<orvik::IReport> Report,
                                           std::shared_ptr<IObject> Context) {
  auto& report = orvik::Required(Report);
  report.SetTableBorder(0);
  report.SetTableIndent(0);
  report.SetHeaderRows(0);
  report.AddTable("<" + std::to_string(report.Metric(10)) + ";", "",
                  "{\\b " + report.Escape(information_->DisplayName()) + "};");
  if (configuration_) configuration_->PrintReport(Report);
  if (limits_) limits_->PrintReport(Report, Shown());
  if (result_) result_->PrintReport(Report, Shown());
  PrintChildren(Report, Context);
}

void TestElement::IBaseElement_SetConfiguration(std::shared_ptr<orvik::IConfigData> Configuration) {
  configuration_ = std::move(Configuration);
}

void TestElement::IBaseElement_SetLimits(std::shared_ptr<orvik::ILimitData> Limits) {
  limits_ = std::move(Limits);
}

void TestElement::IBaseElement_SetResult(std::shared_ptr<orvik::IResultData> Result) {
  // Unknown XML next to a result belongs to that result; drop it when the result changes.
  if (Result != result_) unknownResult_ = {};
  result_ = std::move(Result);
}

std::shared_ptr<orvik::IAuxiliaryState> TestElement::IBaseElement_Auxiliary() const {
  if (!auxiliary_) auxiliary_ = std::make_shared<AuxiliaryState>();
  return auxiliary_;
}

void TestElement::IBaseElement_SetOuter(std::shared_ptr<ITestElement> iteOuter) {
  wrapped_.Leave();
  outer_ = iteOuter;
  if (const auto factory = factory_.lock(); factory && iteOuter)
    wrapped_.Join(factory->Wrapped(), iteOuter.get());
  OuterChanged();
}

std::shared_ptr<orvik::ITestElement> TestElement::ITestElement_Clone() const {
  return Noted(-1, [&] {
    const Nesting level;
    if (level.Outermost() && HasChildren()) RequireShallow(Shown());
    auto copy = NewOfSameClass();
    CopyTo(*copy);
    return std::shared_ptr<ITestElement>(std::move(copy));
  });
}

void TestElement::CopyIdentity(TestElement& copy) const {
  copy.id_ = id_;
  copy.testId_ = testId_;
  copy.plugInId_ = plugInId_;
  copy.information_->CopyFrom(*information_);
  if (!auxiliary_) return;
  copy.auxiliary_ = std::make_shared<AuxiliaryState>();
  copy.auxiliary_->CopyFrom(*auxiliary_);
}

void TestElement::CopyTo(TestElement& copy) const {
  CopyIdentity(copy);
  if (configuration_) copy.configuration_ = configuration_->Clone();
  if (limits_) copy.limits_ = limits_->Clone();
  if (result_) copy.result_ = CopyOfResult();
  copy.leftovers_ = leftovers_;
  copy.unknownConfiguration_ = unknownConfiguration_;
  copy.unknownResult_ = unknownResult_;
  CloneChildren(copy);
}

std::shared_ptr<orvik::IResultData> TestElement::CopyOfResult() const {
  const auto copy = orvik::As<orvik::IResultData>(Factory()->CreateObject(result_->ClassID()));
  if (!copy)
    throw HostError(HostError::kClassNotRegistered, kElementSource,
                    Tr("the result's class \"%%1\" is not registered, so the result cannot be copied; open "
                       "its plug-in first",
                       {result_->ClassID()}));
  copy->Load(result_->Save(ScratchRoot(tags::kTestElement)), nullptr);
  return copy;
}

void TestElement::ITestElement_Load(std::shared_ptr<orvik::IXmlNode> Node, std::shared_ptr<IObject> Context) {
  const auto offset = xml::XmlNode::Of(Node).Raw().offset_debug();
  Noted(offset, [&] {
    const Nesting level;
    const auto name = Node->Name();
    if (name == tags::kResultItem) {
      LoadResult(Node, Context);
    } else if (name == tags::kTestElement) {
      LoadElement(Node, Context);
    } else {
      throw HostError(HostError::kInvalidArgument, kElementSource,
                      Tr("an element cannot be read from the node \"%%1\"", {name}));
    }
  });
}

void TestElement::LoadIdentity(pugi::xml_node node) {
  const char *id = "", *testId = "", *plugInId = "";
  leftovers_.TakeAttributes(
      node, {{tags::kID, id}, {tags::kTestID, testId}, {tags::kPlugInID, plugInId}, tags::kClass});
  id_ = xml::NumberIn(id, node, tags::kID);
  testId_ = xml::NumberIn(testId, node, tags::kTestID);
  plugInId_ = plugInId;
}

void TestElement::LoadElement(const std::shared_ptr<orvik::IXmlNode>& node,
                              const std::shared_ptr<IObject>& context) {
  const auto& saved = xml::XmlNode::Of(node);
  const auto raw = saved.Raw();
  xml::XmlReference reference(saved.Document());
  LoadIdentity(raw);
  ClearLimits();
  IBaseElement_SetResult(nullptr);
  ClearChildren();
  for (auto part = raw.first_child(); part; part = part.next_sibling()) {
    if (!LoadPart(part, reference, context)) leftovers_.Add(part);
  }
}

/// A file without limits must not leave those of the catalogue's copy in place.
void TestElement::ClearLimits() {
  if (limits_ && limits_->Standards()) limits_->Load(ScratchRoot(tags::kExpectedResult), nullptr);
}

/// @return false when the part is unknown, or the element cannot hold it
bool TestElement::LoadPart(pugi::xml_node part, xml::XmlReference& reference,
                           const std::shared_ptr<IObject>& context) {
  const auto is = [name = part.name()](const char* tag) { return xml::SameName(name, tag); };
  if (is(tags::kInformation)) {
    information_->Load(part);
  } else if (is(tags::kAuxiliary)) {
    LoadAuxiliary(part);
  } else if (is(tags::kConfiguration) && configuration_) {
    configuration_->Load(reference.To(part));
    unknownConfiguration_.Take(part, {}, {tags::kPlugInData});
  } else if (is(tags::kExpectedResult) && limits_) {
    limits_->Load(reference.To(part), context);
  } else if (is(tags::kResultItem) && !outer_.expired()) {
    Shown()->Load(reference.To(part), context);
    // The plug-in's element ignores errors, but a result must not be lost.
    if (!result_)
      throw HostError(HostError::kInvalidArgument, kElementSource, Tr("the result could not be read"));
  } else {
    return is(tags::kTestElement) && LoadChild(reference.To(part), context);
  }
  return true;
}

void TestElement::LoadAuxiliary(pugi::xml_node node) {
  const auto loaded = auxiliary_ ? auxiliary_ : std::make_shared<AuxiliaryState>();
  loaded->Load(node);
  if (!loaded->IsDefault()) auxiliary_ = loaded;
}

void TestElement::LoadResult(const std::shared_ptr<orvik::IXmlNode>& node,
                             const std::shared_ptr<IObject>& context) {
  orvik::Required(result_).Load(node, context);
  unknownResult_.Take(xml::XmlNode::Of(node).Raw(), {tags::kMTI},
                      {tags::kStatus, tags::kServiceRecord, tags::kComment, tags::kMeasurement});
}

std::shared_ptr<orvik::IXmlNode> TestElement::ITestElement_Save(
    std::shared_ptr<orvik::IXmlNode> Parent) const {
  return Noted(-1, [&] {
    const Nesting level;
    if (level.Outermost() && HasChildren()) RequireShallow(Shown());
    auto node = orvik::Required(Parent).AddChild(tags::kTestElement);
    SaveTo(node);
    return node;
  });
}

void TestElement::SaveTo(const std::shared_ptr<orvik::IXmlNode>& node) const {
  auto raw = xml::XmlNode::Of(node).Raw();
  xml::AddAttribute(raw, tags::kID, std::to_string(id_));
  xml::AddAttribute(raw, tags::kTestID, std::to_string(testId_));
  xml::AddAttribute(raw, tags::kPlugInID, plugInId_);
  xml::AddAttribute(raw, tags::kClass, Shown()->ClassID());

  information_->Save(raw.append_child(tags::kInformation));
  const auto auxiliary = raw.append_child(tags::kAuxiliary);
  auxiliary_ ? auxiliary_->Save(auxiliary) : AuxiliaryState().Save(auxiliary);
  if (configuration_) {
    const auto configuration = node->AddChild(tags::kConfiguration);
    configuration_->Save(configuration);
    unknownConfiguration_.Restore(xml::XmlNode::Of(configuration).Raw());
  }
  if (limits_) limits_->Save(node);
  if (result_) SaveResult(node);
  SaveChildren(node);
  leftovers_.Restore(raw);
}

void TestElement::SaveResult(const std::shared_ptr<orvik::IXmlNode>& node) const {
  const auto saved = result_->Save(node);
  if (!saved)
    throw HostError(HostError::kInvalidArgument, kElementSource,
                    Tr("the result of element %%1 could not be saved", {std::to_string(id_)}));
  unknownResult_.Restore(xml::XmlNode::Of(saved).Raw());
}

}  // namespace host::elements
