#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "instrument/CKELDMeasurement.h"
#include "model/CKELDSequence.h"
#include "model/CKELDTestElement.h"
#include "platform/Controls.h"
#include "platform/IContainerSite.h"
#include "platform/IForm.h"
#include "plugin/configuration/CKELDTestConfiguration.h"
#include "results/CKELDLimitData.h"
#include "results/CKELDResultData.h"
#include "tests/support/HostOnly.h"
#include "tests/unit/plugin/Recorders.h"

namespace results {

/// The plug-in's elements, results and limits on the real host.
class ResultsTest : public testing::Test {
 protected:
  template <class Interface>
  std::shared_ptr<Interface> Make(const char* classId) {
    return keld::MKELDGlobalVars::CreateHostObject<Interface>(classId);
  }

  std::shared_ptr<keld::model::CKELDTestElement> Test(std::int32_t id, std::int32_t testId = 110) {
    auto element = keld::model::CKELDTestElement::Create();
    element->Initialize("KELD(IN)", id, testId);
    element->Information()->SetDisplayName("Test " + std::to_string(id));
    return element;
  }

  std::shared_ptr<keld::model::CKELDSequence> Sequence(
      std::int32_t id, const std::vector<std::shared_ptr<orvik::ITestElement>>& children) {
    auto sequence = keld::model::CKELDSequence::Create();
    sequence->Initialize("KELD(IN)", id, 100);
    for (const auto& child : children) sequence->Add(child, {}, {});
    return sequence;
  }

  std::shared_ptr<keld::results::CKELDResultData> GiveResult(keld::model::CKELDElement& element,
                                                             std::int32_t status) {
    auto result = keld::results::CKELDResultData::Create();
    result->SetStatus(status);
    element.BaseElement()->SetResult(result);
    return result;
  }

  /// A child with a result and a measurement of that value.
  std::shared_ptr<keld::model::CKELDTestElement> Measured(std::int32_t id, const orvik::Variant& value,
                                                          std::int32_t status = 1) {
    auto element = Test(id);
    GiveResult(*element, status)->SetMeasurement(Measurement(value));
    return element;
  }

  static std::shared_ptr<keld::instrument::CKELDMeasurement> Measurement(const orvik::Variant& value,
                                                                         const std::string& unit = "mA",
                                                                         const std::string& flags = "") {
    auto measurement = keld::instrument::CKELDMeasurement::Create();
    measurement->AddValue(value, unit, flags, "");
    return measurement;
  }

  static void SetFilter(keld::model::CKELDElement& element, std::int32_t filter) {
    orvik::As<keld::configuration::CKELDTestConfiguration>(element.Configuration())->SetValueFilter(filter);
  }

  /// A standard with one limit of the plug-in's key.
  std::shared_ptr<orvik::IStandard> Standard(const std::string& name, const std::string& low,
                                             const std::string& high,
                                             const std::string& key = "NO LIMIT KEY") {
    auto standard = Make<orvik::IStandard>(orvik::HostClasses::kStandard);
    standard->Initialize(name, name + " text", 1);
    standard->AddLimit(Limit(low, high, key));
    return standard;
  }

  std::shared_ptr<orvik::ILimit> Limit(const std::string& low, const std::string& high,
                                       const std::string& key = "NO LIMIT KEY") {
    auto limit = Make<orvik::ILimit>(orvik::HostClasses::kLimit);
    limit->Initialize(key, "mA", low, high);
    return limit;
  }

  std::shared_ptr<orvik::IStandardColl> Collection(
      const std::vector<std::shared_ptr<orvik::IStandard>>& standards) {
    auto collection = Make<orvik::IStandardColl>(orvik::HostClasses::kStandardColl);
    for (const auto& standard : standards) collection->Add(standard);
    return collection;
  }

  /// An empty node of a new document.
  std::shared_ptr<orvik::IXmlNode> Node(const std::string& name = "Parent") {
    return Make<orvik::IXmlDocument>(orvik::HostClasses::kXmlDocument)->CreateRoot(name);
  }

  /// The root of a document with that text.
  std::shared_ptr<orvik::IXmlNode> Parsed(const std::string& text) {
    auto document = Make<orvik::IXmlDocument>(orvik::HostClasses::kXmlDocument);
    if (!document->LoadFromString(text)) throw std::runtime_error(document->LastError());
    return document->Root();
  }

  static std::vector<std::string> ChildNames(const orvik::IXmlNode& node) {
    std::vector<std::string> names;
    for (auto child = node.FirstChild(); child; child = child->NextSibling()) names.push_back(child->Name());
    return names;
  }

  /// A shown form with one control of the class on it.
  std::shared_ptr<orvik::platform::IContainerSite> Placed(const std::string& classId) {
    form_ = host_.Application().CreateForm("Place");
    auto site = form_->AddControl(classId, "ctl");
    orvik::platform::Grid grid;
    grid.rows = {{0, 1}};
    grid.columns = {{0, 1}};
    grid.cells = {{"ctl", 0, 0}};
    grid.margin = 0;
    form_->SetGrid(grid);
    form_->Resize({6000, 4000});
    form_->Show();
    return site;
  }

  support::HostOnly host_;
  std::shared_ptr<orvik::platform::IForm> form_;
};

}  // namespace results
