#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IAuxiliaryState.h"
#include "OrvikTypeLib/IBaseElement.h"
#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IReport.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IRunController.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "tests/contract/checker-plugin/checker/CCheckLimits.h"
#include "tests/contract/checker-plugin/checker/CCheckSettings.h"
#include "tests/contract/checker-plugin/checker/Checks.h"
#include "tests/contract/checker-plugin/template/CInspection.h"
#include "tests/contract/checker-plugin/template/CInspectionResult.h"
#include "tests/contract/checker-plugin/template/Names.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {
namespace {

std::shared_ptr<orvik::IBaseElement> NewElement() {
  return NewHostObject<orvik::IBaseElement>(orvik::HostClasses::kTestElement);
}

std::shared_ptr<orvik::IXmlNode> NewRoot() {
  return NewHostObject<orvik::IXmlDocument>(orvik::HostClasses::kXmlDocument)->CreateRoot("Checked");
}

void Identity(Findings& findings) {
  const auto element = NewElement();
  findings.Equal(orvik::HostClasses::kTestElement, element->ClassID(), "class of an element");
  findings.Expect(!orvik::As<orvik::ITestContainer>(element), "an element is not a container");
  element->Initialize(names::kPlugInId, 7, 10);
  findings.Equal(7, element->ID(), "identifier");
  findings.Equal(10, element->TestID(), "test identifier");
  findings.Equal(names::kPlugInId, element->PlugInID(), "plug-in identifier");
  findings.Expect(element->Filter() == orvik::Variant(std::int32_t{10}),
                  "elements are filtered by their test");
  element->SetID(-3);
  findings.Equal(-3, element->ID(), "identifier set");
  findings.Expect(element->GetMeasurementList() == orvik::Variant(std::vector<std::string>{}),
                  "an element without result has an empty list of measurements");
  element->UpdateReferences();
  findings.Refused("running an element that has no test", [&] { element->Perform(nullptr); });
}

void Texts(Findings& findings) {
  const auto element = NewElement();
  const auto information = element->Information();
  information->SetDisplayName("Protective earth");
  findings.Equal("Protective earth", information->SecondText(), "second text while none was set");
  information->SetSecondText("PE");
  information->SetFirstText("with cord");
  findings.Equal("PE", information->SecondText(), "second text");
  findings.Equal("with cord", information->FirstText(), "first text");
  findings.Equal("Protective earth", element->Information()->DisplayName(), "display name");
  const auto info = element->Info();
  const auto* list = std::get_if<std::vector<std::string>>(&info);
  findings.Expect(list && list->size() == 2, "an element's info is a list of two strings");
  const auto auxiliary = element->Auxiliary();
  findings.Expect(auxiliary->PrintElement(), "reports show a new element");
  auxiliary->SetPrintElement(false);
  findings.Expect(!element->Auxiliary()->PrintElement(), "an element can be left out of reports");
}

void Parts(Findings& findings) {
  const auto element = NewElement();
  findings.Expect(!element->Configuration() && !element->Limits() && !element->Result() && !element->Parent(),
                  "a new element has no configuration, limits, result and parent");
  const std::shared_ptr<orvik::IResultData> result = CInspectionResult::Create();
  element->SetResult(result);
  findings.Expect(element->Result() == result, "a result that was set is returned");
  element->SetResult(nullptr);
  findings.Expect(!element->Result(), "an empty result removes it");
  const std::shared_ptr<orvik::ILimitData> limits = CCheckLimits::Create();
  element->SetLimits(limits);
  findings.Expect(element->Limits() == limits, "limits that were set are returned");
  element->SetLimits(nullptr);
  findings.Expect(!element->Limits(), "empty limits remove them");
  const std::shared_ptr<orvik::IConfigData> settings = CCheckSettings::Create();
  element->SetConfiguration(settings);
  findings.Expect(element->Configuration() == settings, "settings that were set are returned");
  element->SetConfiguration(nullptr);
  findings.Expect(!element->Configuration(), "empty settings remove them");

  std::shared_ptr<orvik::ITestElement> parent = NewElement();
  element->SetParent(parent);
  findings.Expect(element->Parent() == parent, "a parent that was set is returned");
  parent.reset();
  findings.Expect(!element->Parent(), "an element does not keep its parent alive");
  element->Terminate();
  element->Terminate();
}

/// What an element's settings say.
std::string WordOf(const orvik::ITestElement& element) {
  const auto settings = std::dynamic_pointer_cast<CCheckSettings>(element.Configuration());
  return settings ? settings->word : "no settings of their class";
}

void Settings(Findings& findings) {
  const auto element = NewElement();
  element->Initialize(names::kPlugInId, 7, 10);
  const auto settings = CCheckSettings::Create();
  settings->word = "a & b";
  element->SetConfiguration(settings);
  const auto copy = element->Clone();
  settings->word = "changed";
  findings.Equal("a & b", WordOf(*copy), "settings of a clone whose original was changed");
  const auto node = element->Save(NewRoot());
  const auto loaded = NewElement();
  loaded->SetConfiguration(CCheckSettings::Create());
  loaded->Load(node, nullptr);
  findings.Equal("changed", WordOf(*loaded), "settings of a loaded element");
}

std::shared_ptr<orvik::ITestElement> DecidedInspection() {
  std::shared_ptr<orvik::ITestElement> element = CInspection::Create();
  element->Initialize(names::kPlugInId, 5, names::kInspectionTest);
  element->Information()->SetDisplayName("Inspection <1> & \"2\"");
  const auto root = NewRoot();
  const auto saved = root->AddChild(CInspectionResult::kNode);
  saved->AddChild("Status")->SetText("2");
  saved->AddChild("Comment")->SetText("cracked");
  element->Load(saved, nullptr);
  return element;
}

void CheckCopy(Findings& findings, const orvik::ITestElement& copy, const std::string& how) {
  findings.Equal(names::kInspectionClass, copy.ClassID(), "class of an element " + how);
  findings.Equal(5, copy.ID(), "identifier of an element " + how);
  findings.Equal(names::kInspectionTest, copy.TestID(), "test of an element " + how);
  findings.Equal(names::kPlugInId, copy.PlugInID(), "plug-in of an element " + how);
  findings.Equal("Inspection <1> & \"2\"", copy.Information()->DisplayName(), "name of an element " + how);
  const auto result = copy.Result();
  if (!result) return findings.Expect(false, "an element " + how + " keeps its result");
  findings.Equal(names::kResultClass, result->ClassID(), "class of the result of an element " + how);
  findings.Equal(2, result->Status(), "status of an element " + how);
  findings.Equal("cracked", result->Comment(), "comment of an element " + how);
}

void Clones(Findings& findings) {
  const auto element = DecidedInspection();
  const auto copy = element->Clone();
  CheckCopy(findings, *copy, "cloned");
  findings.Expect(copy->Result() != element->Result(), "a clone has a result of its own");
  copy->SetID(99);
  copy->Information()->SetDisplayName("another");
  copy->Result()->SetComment("another");
  CheckCopy(findings, *element, "whose clone was changed");
}

void Storage(Findings& findings) {
  const auto root = NewRoot();
  const auto node = DecidedInspection()->Save(root);
  if (!node) return findings.Expect(false, "saving returns the node");
  findings.Equal("TestElement", node->Name(), "node of a saved element");
  findings.Equal(1, root->ChildCount(), "nodes added by saving");
  const std::shared_ptr<orvik::ITestElement> loaded = CInspection::Create();
  loaded->Load(node, nullptr);
  CheckCopy(findings, *loaded, "loaded");
  findings.Refused("loading from an empty node", [] { NewElement()->Load(nullptr, nullptr); });
  findings.Refused("loading from a foreign node",
                   [&] { NewElement()->Load(root->AddChild("Alien"), nullptr); });
  findings.Refused("loading a malformed identifier", [&] {
    const auto malformed = root->AddChild("TestElement");
    malformed->SetAttribute("ID", "one");
    malformed->SetAttribute("TestID", "10");
    NewElement()->Load(malformed, nullptr);
  });
  findings.Refused("saving below an empty node", [] { NewElement()->Save(nullptr); });
  findings.Refused("printing into an empty report", [] { NewElement()->PrintReport(nullptr, nullptr); });
}

}  // namespace

void CheckElements(Findings& findings, const HostParts&) {
  RunSteps(findings, {{"identity", Identity},
                      {"texts", Texts},
                      {"parts", Parts},
                      {"settings", Settings},
                      {"cloning", Clones},
                      {"saving and loading", Storage}});
}

}  // namespace check
