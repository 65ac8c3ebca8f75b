#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IBaseElement.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/IInstrumentColl.h"
#include "OrvikTypeLib/IInstrumentRecord.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IServiceRecord.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "instrument/CKELDData.h"
#include "instrument/CKELDInstrument.h"
#include "model/CKELDSequence.h"
#include "model/CKELDTestElement.h"
#include "plugin/CKELDTestConfiguration.h"
#include "results/CKELDLimitData.h"
#include "results/CKELDResultData.h"
#include "tests/model/GuideOperator.h"
#include "tests/model/RecordingController.h"
#include "tests/support/VirtualBench.h"

namespace support {

/// Elements of the plug-in on a whole bench: real host, headless windows, virtual clock, simulated tester.
class ModelTest : public testing::Test {
 protected:
  using Element = std::shared_ptr<orvik::ITestElement>;
  using Texts = std::vector<std::string>;

  ModelTest() {
    controller->standards =
        orvik::As<orvik::IStandardColl>(bench.Host().CreateObject(orvik::HostClasses::kStandardColl));
  }

  /// A single test that is not from the catalogue.
  static Element MakeTest(std::int32_t testId, std::int32_t id = 1) {
    auto made = keld::CKELDTestElement::Create();
    made->Initialize("KELD(IN)", id, testId);
    return made;
  }
  /// A sequence with these children.
  static Element MakeSequence(const std::vector<Element>& children, std::int32_t id = 100) {
    auto made = keld::CKELDSequence::Create();
    made->Initialize("KELD(IN)", id, 100);
    for (const auto& child : children) made->Add(child, {}, {});
    return made;
  }
  static std::shared_ptr<keld::IKELDTest> Test(const Element& element) {
    return orvik::As<keld::IKELDTest>(element);
  }
  static std::shared_ptr<orvik::ITestContainer> Container(const Element& element) {
    return orvik::As<orvik::ITestContainer>(element);
  }
  static keld::CKELDTestConfiguration& Configuration(const Element& element) {
    return *orvik::As<keld::CKELDTestConfiguration>(element->Configuration());
  }
  static orvik::IBaseElement& Base(const Element& element) {
    return *orvik::As<keld::CKELDElement>(element)->BaseElement();
  }
  static std::int32_t Status(const Element& element) {
    return element->Result() ? element->Result()->Status() : -1;
  }
  /// The measured value as text, "none" without a measurement.
  static std::string Value(const Element& element) {
    const auto measurement = element->Result() ? element->Result()->Measurement(1) : nullptr;
    return measurement ? orvik::TextOf(measurement->value()) : "none";
  }

  /// Gives the element a limit of a standard by which the run judges.
  void Limit(const Element& element, const std::string& low, const std::string& high,
             const std::string& standard = "IEC 62353") {
    element->Limits()->CreateStandard(standard, "")->Limit(1)->SetBounds(low, high);
    if (!controller->standards->Find(standard, "")) {
      const auto selected =
          orvik::As<orvik::IStandard>(bench.Host().CreateObject(orvik::HostClasses::kStandard));
      selected->Initialize(standard, "", 1);
      controller->standards->Add(selected);
    }
  }

  /// Answers "GRES" with these fields after the setting (value, overload, unit), and all other commands as
  /// the tester does.
  void AnswerResult(const std::string& fields) {
    bench.Line().AnswerBy([this, fields](const std::string& command) {
      if (command == "IREM") return bench.Line().Reply("irem,KELD(IN),0815,2.1");
      if (command == "EREM") return bench.Line().Reply("erem");
      const std::string rest = command.substr(4);
      if (command.starts_with("STST")) return bench.Line().Reply("stst" + rest);
      if (command.starts_with("GRES")) return bench.Line().Reply("gres" + rest + "," + fields);
    });
  }

  void Perform(const Element& element) { element->Perform(controller); }

  VirtualBench bench;
  std::shared_ptr<RecordingController> controller = std::make_shared<RecordingController>();
  GuideOperator person{bench.Application()};
};

}  // namespace support
