#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "model/CKELDSequence.h"
#include "tests/support/VirtualBench.h"
#include "tests/system/leaks/Watch.h"
#include "tests/unit/model/GuideOperator.h"
#include "tests/unit/model/RecordingController.h"

namespace leaks {

/// A bench for several runs, each with a watch of its own.
class Stage {
 public:
  Stage() {
    keld::MKELDGlobalVars::Close();
    keld::MKELDGlobalVars::Open(host_);
  }

  support::VirtualBench bench;

  /// Runs the act on a clean bench, and everything that it schedules.
  /// @return the objects seen
  template <class Act>
  Watch Watched(const Act& act) {
    Watch watch;
    host_->watch = &watch;
    bench.Wire().Clear();
    {
      const auto pumped = bench.Application().Pumped().Subscribe([&] { Look(watch); });
      support::GuideOperator operating(bench.Application());
      person = &operating;
      controller = std::make_shared<support::RecordingController>();
      controller->standards = New<orvik::IStandardColl>(orvik::HostClasses::kStandardColl);
      watch.See("run controller", controller);
      act(*this);
      person = nullptr;
      controller.reset();
      element.reset();
      bench.Line().AnswerBy({});
      bench.Assign();
      const auto end = bench.Application().Now() + std::chrono::minutes(1);
      while (bench.Application().Now() < end) bench.Application().WaitMessages(end);
    }
    host_->watch = nullptr;
    bench.Wire().Clear();
    return watch;
  }

  template <class Interface>
  std::shared_ptr<Interface> New(const std::string& classId) {
    return orvik::As<Interface>(host_->CreateObject(classId));
  }

  /// The element of the run: a single test by which the run's standard is judged.
  orvik::ITestElement& PlaceTest(std::int32_t testId = 410) {
    element = bench.CreateTest(testId);
    Judge(element);
    return *element;
  }
  /// A sequence of a test, a nested sequence, and a test.
  orvik::ITestElement& PlaceSequence() {
    const auto nested = keld::model::CKELDSequence::Create();
    nested->Initialize("KELD(IN)", 20, 200);
    nested->Add(bench.CreateTest(410), {}, {});
    const auto sequence = keld::model::CKELDSequence::Create();
    sequence->Initialize("KELD(IN)", 10, 100);
    sequence->Add(bench.CreateTest(210), {}, {});
    sequence->Add(nested, {}, {});
    sequence->Add(bench.CreateTest(1010), {}, {});
    Judge(nested->item(1));
    element = sequence;
    return *element;
  }

  /// Runs the element and keeps it alive meanwhile.
  void Perform() {
    const auto performed = element;
    performed->Perform(controller);
    Look(*host_->watch);
  }
  /// Runs the element and calls `happening` at one call of the run's message pump.
  void PerformWith(int moment, const std::function<void()>& happening) {
    int calls = 0;
    const auto pumped = bench.Application().Pumped().Subscribe([&] {
      if (calls++ == moment) happening();
    });
    Perform();
  }
  void Look(Watch& watch) {
    watch.SeeWindows(bench.Application());
    watch.SeeElement(element);
  }
  void Look() { Look(*host_->watch); }
  void SeeWindow(const std::shared_ptr<orvik::platform::IForm>& form) { host_->watch->SeeWindow(form); }
  template <class Object>
  void See(const std::string& kind, const std::shared_ptr<Object>& object) {
    host_->watch->See(kind, object);
  }

  std::shared_ptr<orvik::ITestElement> element;
  std::shared_ptr<support::RecordingController> controller;
  support::GuideOperator* person = nullptr;

 private:
  void Judge(const std::shared_ptr<orvik::ITestElement>& judged) {
    judged->Limits()->CreateStandard("IEC 62353", "class I")->Limit(1)->SetBounds("", "300");
    const auto selected = New<orvik::IStandard>(orvik::HostClasses::kStandard);
    selected->Initialize("IEC 62353", "class I", 1);
    controller->standards->Add(selected);
  }

  std::shared_ptr<WatchedHost> host_ = std::make_shared<WatchedHost>(bench.Only().SharedHost());
};

}  // namespace leaks
