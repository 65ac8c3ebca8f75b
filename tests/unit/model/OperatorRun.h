#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "tests/unit/model/ModelTest.h"

namespace support {

/// A whole run of one element on a bench of its own, in which the operator does something at a given call of
/// the message pump.
class OperatorRun {
 public:
  static constexpr std::int32_t kNoResult = -1;

  /// How things stood when the operator acted.
  struct Moment {
    bool reached = false;
    bool atGuide = false;     ///< the guide was open, and no prompt before it
    bool running = false;     ///< a test was running
    bool over = false;        ///< ... and its outcome was final: the session is being ended
    std::size_t told = 0;     ///< how much the host had been told
    std::size_t sent = 0;     ///< how many commands had gone out
    std::size_t prompts = 0;  ///< how many questions and messages had come up
  };
  struct State {
    std::int32_t status = kNoResult;
    std::int32_t measurements = 0;
    std::string code;   ///< of the service record
    std::string value;  ///< of the measurement
    bool operator==(const State&) const = default;
  };
  struct Outcome {
    Moment moment;
    int pumps = 0;
    std::chrono::microseconds duration{};
    std::vector<std::string> told;
    std::vector<std::string> sent;
    std::vector<std::string> prompts;
    /// The element and all below it, in document order; empty when it was released.
    std::vector<State> states;
    std::vector<std::string> passedUnmeasured;
    bool entered = false;  ///< the tester has entered remote mode
    bool stalled = false;
    bool stopped = true;
    bool leftElement = false;
    bool leftWindow = false;
    bool leftPort = false;
    bool leftRemote = false;

    std::vector<std::string> Navigation() const {
      std::vector<std::string> requests;
      std::copy_if(told.begin(), told.end(), std::back_inserter(requests),
                   [](const std::string& what) { return what.starts_with("navigate"); });
      return requests;
    }
    std::ptrdiff_t Finished(const std::string& testId) const {
      return std::count(told.begin(), told.end(), "finished " + testId);
    }
  };

  /// A single test, or three children of which one is a nested sequence.
  OperatorRun(bool sequence, bool silent) {
    controller_->standards =
        orvik::As<orvik::IStandardColl>(bench_.Host().CreateObject(orvik::HostClasses::kStandardColl));
    bench_.Application().SetStallHandler([this] {
      outcome_.stalled = true;
      throw std::logic_error("the run waits for ever");
    });
    if (silent)
      bench_.Line().AnswerBy([this](const std::string& command) {
        if (command == "IREM") bench_.Line().Reply("irem,KELD(IN),0815,2.1");
      });
    element_ = sequence ? MakeSequence() : bench_.CreateTest(410);
    top_ = element_->TestID();
  }

  keld::model::IKELDTest& Test() { return dynamic_cast<keld::model::IKELDTest&>(*element_); }

  /// @param moment the pump call at which the operator acts; less than 0: never
  /// @param release whether nobody but the run holds the element any more from then on
  Outcome Perform(int moment, bool release, const std::function<void(OperatorRun&)>& act) {
    const std::weak_ptr<orvik::ITestElement> watched = element_;
    const auto pumped = bench_.Application().Pumped().Subscribe([&] {
      if (outcome_.pumps++ != moment) return;
      outcome_.moment = Now();
      act(*this);
      if (release) element_.reset();
    });
    const auto began = bench_.Application().Now();
    // The run holds its element while it is on the way; nobody else needs to.
    watched.lock()->Perform(controller_);
    outcome_.duration = bench_.Application().Now() - began;
    outcome_.told = controller_->told;
    outcome_.sent = bench_.Wire().Sent();
    outcome_.prompts = person.prompts;
    const auto received = bench_.Wire().Received();
    outcome_.entered = std::any_of(received.begin(), received.end(),
                                   [](const std::string& reply) { return reply.starts_with("irem"); });
    if (element_) {
      outcome_.stopped = Test().Stopped();
      Read(*element_);
    }
    element_.reset();
    outcome_.leftElement = !watched.expired();
    outcome_.leftWindow = !bench_.Application().Forms().empty();
    outcome_.leftPort = bench_.Line().Line()->Connected();
    outcome_.leftRemote = bench_.Tester().InRemoteMode();
    return outcome_;
  }

 private:
  std::shared_ptr<orvik::ITestElement> MakeSequence() {
    const auto nested = keld::model::CKELDSequence::Create();
    nested->Initialize("KELD(IN)", 20, 200);
    nested->Add(bench_.CreateTest(410), {}, {});
    nested->Add(bench_.CreateTest(420), {}, {});
    const auto sequence = keld::model::CKELDSequence::Create();
    sequence->Initialize("KELD(IN)", 10, 100);
    sequence->Add(bench_.CreateTest(210), {}, {});
    sequence->Add(nested, {}, {});
    sequence->Add(bench_.CreateTest(1010), {}, {});
    return sequence;
  }

  Moment Now() {
    Moment now;
    now.reached = true;
    now.atGuide = person.AtGuide();
    now.running = person.Running();
    now.over = controller_->Count("finished " + std::to_string(top_)) > 0;
    now.told = controller_->told.size();
    now.sent = bench_.Wire().Sent().size();
    now.prompts = person.prompts.size();
    return now;
  }

  void Read(const orvik::ITestElement& element) {
    State state;
    if (const auto result = element.Result()) {
      state.status = result->Status();
      state.measurements = result->MeasurementCount();
      if (const auto record = result->ServiceRecord()) state.code = record->Code();
      if (const auto measurement = result->Measurement(1)) state.value = orvik::TextOf(measurement->value());
    }
    outcome_.states.push_back(state);
    const auto* children = dynamic_cast<const orvik::ITestContainer*>(&element);
    if (!children && state.status == 1 && state.value.empty())
      outcome_.passedUnmeasured.push_back(std::to_string(element.TestID()));
    for (std::int32_t i = 1; children && i <= children->Count(); ++i) Read(*children->item(i));
  }

  VirtualBench bench_;

 public:
  GuideOperator person{bench_.Application()};

 private:
  std::shared_ptr<RecordingController> controller_ = std::make_shared<RecordingController>();
  std::shared_ptr<orvik::ITestElement> element_;
  std::int32_t top_ = 0;
  Outcome outcome_;
};

}  // namespace support
