#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <map>
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
#include "platform/IContainerSite.h"
#include "platform/IForm.h"
#include "platform/IListView.h"
#include "plugin/configuration/CKELDTestConfiguration.h"
#include "results/CKELDLimitData.h"
#include "results/CKELDResultData.h"
#include "tests/support/VirtualBench.h"
#include "tests/unit/model/GuideOperator.h"
#include "tests/unit/model/RecordingController.h"
#include "ui/FTestGuide.h"

namespace support {

inline constexpr char kEndQuestion[] = "Do you want to end this test and discard all previous test results?";

/// Elements of the plug-in on a whole bench: real host, headless windows, virtual clock, simulated tester.
class ModelTest : public testing::Test {
 protected:
  using Element = std::shared_ptr<orvik::ITestElement>;
  using Texts = std::vector<std::string>;

  ModelTest() {
    controller->standards =
        orvik::As<orvik::IStandardColl>(bench.Host().CreateObject(orvik::HostClasses::kStandardColl));
  }

  /// A single test, not from the catalogue.
  static Element MakeTest(std::int32_t testId, std::int32_t id = 1) {
    auto made = keld::model::CKELDTestElement::Create();
    made->Initialize("KELD(IN)", id, testId);
    return made;
  }
  static Element MakeSequence(const std::vector<Element>& children, std::int32_t id = 100) {
    auto made = keld::model::CKELDSequence::Create();
    made->Initialize("KELD(IN)", id, 100);
    for (const auto& child : children) made->Add(child, {}, {});
    return made;
  }
  static std::shared_ptr<keld::model::IKELDTest> Test(const Element& element) {
    return orvik::As<keld::model::IKELDTest>(element);
  }
  static std::shared_ptr<orvik::ITestContainer> Container(const Element& element) {
    return orvik::As<orvik::ITestContainer>(element);
  }
  static keld::configuration::CKELDTestConfiguration& Configuration(const Element& element) {
    return *orvik::As<keld::configuration::CKELDTestConfiguration>(element->Configuration());
  }
  static orvik::IBaseElement& Base(const Element& element) {
    return *orvik::As<keld::model::CKELDElement>(element)->BaseElement();
  }
  static std::int32_t Status(const Element& element) {
    return element->Result() ? element->Result()->Status() : -1;
  }
  /// The measured value as text, "none" without a measurement.
  static std::string Value(const Element& element) {
    const auto measurement = element->Result() ? element->Result()->Measurement(1) : nullptr;
    return measurement ? orvik::TextOf(measurement->value()) : "none";
  }
  /// Status (-1 without a result), value, and the service record's code if there is one: "1 5 P".
  static std::string State(const Element& element) {
    const auto record = element->Result() ? element->Result()->ServiceRecord() : nullptr;
    return std::to_string(Status(element)) + " " + Value(element) + (record ? " " + record->Code() : "");
  }
  /// The states of the element and of all below it.
  static Texts States(const Element& element) {
    Texts states{State(element)};
    const auto children = Container(element);
    for (std::int32_t i = 1; children && i <= children->Count(); ++i)
      for (const auto& state : States(children->item(i))) states.push_back(state);
    return states;
  }
  /// The number of rows in the result view of a guide.
  static int Rows(const orvik::platform::IForm& guide) {
    const auto view = orvik::As<orvik::platform::IContainerSite>(guide.Find("xrvResultView"));
    return orvik::As<orvik::platform::IListView>(view->Panel()->Find("lvwResults"))->RowCount();
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

  /// Answers each test by its number with its own fields (value, overload, unit), other tests with
  /// `otherTests`: fields, or an error reply.
  void AnswerTests(const std::map<std::int32_t, std::string>& results, const std::string& otherTests) {
    bench.Line().AnswerBy([this, results, otherTests](const std::string& command) {
      if (command == "IREM") return bench.Line().Reply("irem,KELD(IN),0815,2.1");
      if (command == "EREM") return bench.Line().Reply("erem");
      const auto found = results.find(command == "STST,210,0" ? 0 : std::stoi(command.substr(5)));
      const std::string& fields = found == results.end() ? otherTests : found->second;
      if (fields.starts_with("ERRM")) return bench.Line().Reply(fields);
      const bool start = command.starts_with("STST");
      bench.Line().Reply((start ? "stst" : "gres") + command.substr(4) + (start ? "" : "," + fields));
    });
  }
  /// Answers every test with these fields.
  void AnswerResult(const std::string& fields) { AnswerTests({}, fields); }
  void AnswerNothing() {
    bench.Line().AnswerBy([](const std::string&) {});
  }

  void Perform(const Element& element) { element->Perform(controller); }
  /// Performs the element; the operator presses a button after so many seconds.
  void Perform(const Element& element, int command, std::chrono::seconds after) {
    const auto call =
        bench.Application().CallAt(bench.Application().Now() + after, [&] { person.Press(command); });
    Perform(element);
    bench.Application().Forget(call);
  }

  VirtualBench bench;
  std::shared_ptr<RecordingController> controller = std::make_shared<RecordingController>();
  GuideOperator person{bench.Application()};
};

/// An element that the test drives, with its own link and guide.
class DrivenTest : public ModelTest {
 protected:
  const Element& Drive(const Element& element) {
    guide->Initialize(element, controller);
    guide->Form()->Show();
    Test(element)->InitAutoRun(link, guide, controller);
    return element;
  }
  void Raise(std::int32_t status, std::int16_t testNo = 415) { link->ResultReceived().Raise(status, testNo); }
  /// The link reports a measurement.
  void Measure(const std::string& value = "5", const std::string& unit = "V", std::int16_t testNo = 415) {
    link->SetMtiData(2, value);
    link->SetMtiData(4, unit);
    Raise(5, testNo);
  }

  std::shared_ptr<keld::instrument::CKELDInstrument> link = keld::instrument::CKELDInstrument::Create();
  std::shared_ptr<keld::ui::FTestGuide> guide = keld::ui::FTestGuide::Create();
};

}  // namespace support
