#include <functional>
#include <ostream>
#include <set>

#include "host/serial/Wire.h"
#include "tests/model/ModelTest.h"

// The operator does something at every single moment of a run: once for each call of the message pump in it.
namespace keld {

namespace {

using support::GuideOperator;

/// What the operator does at the chosen moment.
struct Action {
  const char* name;
  bool abort;  ///< the answer to the question whether to end the test
  std::function<void(GuideOperator&)> act;
};

const std::vector<Action>& Actions() {
  static const std::vector<Action> all{
      {"AbortYes", true, [](GuideOperator& person) { person.Press(GuideOperator::kAbort); }},
      {"AbortNo", false, [](GuideOperator& person) { person.Press(GuideOperator::kAbort); }},
      {"Stop", true, [](GuideOperator& person) { person.Press(GuideOperator::kStop); }},
      {"CloseWindow", true, [](GuideOperator& person) { person.CloseGuide(); }},
      {"NotApplicable", true, [](GuideOperator& person) { person.Press(GuideOperator::kNotApplicable); }},
      {"Skip", true, [](GuideOperator& person) { person.Press(GuideOperator::kSkip); }},
  };
  return all;
}

/// No run takes longer than this, whatever happens in it: three attempts for each of two commands before the
/// session, and the way out.
constexpr auto kBound = std::chrono::minutes(5);

struct Case {
  bool sequence;
  bool release;  ///< the handler also lets go of the element
  std::size_t action;
};

std::ostream& operator<<(std::ostream& out, const Case& shown) {
  return out << Actions()[shown.action].name << (shown.sequence ? " in a sequence" : " in a single test")
             << (shown.release ? ", released" : "");
}

}  // namespace

class OperatorEverywhereTest : public testing::TestWithParam<Case> {
 protected:
  /// One run on a bench of its own; what the operator does comes at the given pump call (-1: never).
  /// @return the number of pump calls
  int Run(int moment);

 private:
  /// A single test, or three children of which one is a nested sequence.
  static std::shared_ptr<orvik::ITestElement> MakeElement(support::VirtualBench& bench);
  static void Check(support::VirtualBench& bench, const support::RecordingController& controller,
                    const orvik::ITestElement& element);
  static void CheckMeasured(const orvik::ITestElement& element);
  /// Nothing below an aborted sequence carries an outcome.
  static void CheckReset(const orvik::ITestElement& element);
};

std::shared_ptr<orvik::ITestElement> OperatorEverywhereTest::MakeElement(support::VirtualBench& bench) {
  if (!GetParam().sequence) return bench.CreateTest(410);
  const auto nested = CKELDSequence::Create();
  nested->Initialize("KELD(IN)", 20, 200);
  nested->Add(bench.CreateTest(410), {}, {});
  const auto sequence = CKELDSequence::Create();
  sequence->Initialize("KELD(IN)", 10, 100);
  sequence->Add(bench.CreateTest(210), {}, {});
  sequence->Add(nested, {}, {});
  sequence->Add(bench.CreateTest(1010), {}, {});
  return sequence;
}

int OperatorEverywhereTest::Run(int moment) {
  const Action& action = Actions()[GetParam().action];
  support::VirtualBench bench;
  const auto controller = std::make_shared<support::RecordingController>();
  controller->standards =
      orvik::As<orvik::IStandardColl>(bench.Host().CreateObject(orvik::HostClasses::kStandardColl));
  support::GuideOperator person(bench.Application());
  person.abort = action.abort;

  auto element = MakeElement(bench);
  const std::weak_ptr<orvik::ITestElement> watched = element;
  std::shared_ptr<orvik::ITestElement> kept;
  if (!GetParam().release) kept = element;

  int pumps = 0;
  const auto pumped = bench.Application().Pumped().Subscribe([&] {
    if (pumps++ != moment) return;
    action.act(person);
    element.reset();
  });

  const auto began = bench.Application().Now();
  // The run holds its element while it is on the way; nobody else needs to.
  watched.lock()->Perform(controller);
  EXPECT_LE(bench.Application().Now() - began, kBound);
  if (kept) Check(bench, *controller, *kept);
  kept.reset();
  element.reset();
  EXPECT_TRUE(watched.expired()) << "the run left a reference to its element behind";
  EXPECT_TRUE(bench.Application().Forms().empty()) << "the run left a window open";
  EXPECT_FALSE(bench.Tester().InRemoteMode()) << "the tester was left in remote mode";
  return pumps;
}

void OperatorEverywhereTest::Check(support::VirtualBench& bench,
                                   const support::RecordingController& controller,
                                   const orvik::ITestElement& element) {
  const auto sent = bench.Wire().Sent();
  if (!sent.empty()) {
    EXPECT_EQ(sent.back(), "EREM");
  }
  EXPECT_TRUE(dynamic_cast<const IKELDTest&>(element).Stopped());

  const auto result = element.Result();
  const bool aborted = controller.Count("navigate 2") > 0;
  if (aborted) {
    ASSERT_TRUE(result);
    EXPECT_EQ(result->Status(), GetParam().sequence ? 0 : 4);
    if (GetParam().sequence) CheckReset(element);
  }
  CheckMeasured(element);
}

void OperatorEverywhereTest::CheckMeasured(const orvik::ITestElement& element) {
  const auto result = element.Result();
  if (const auto* children = dynamic_cast<const orvik::ITestContainer*>(&element)) {
    for (std::int32_t i = 1; i <= children->Count(); ++i) CheckMeasured(*children->item(i));
  } else if (result && result->Status() == 1) {
    // Never a pass that was not measured.
    ASSERT_EQ(result->MeasurementCount(), 1);
    EXPECT_FALSE(orvik::IsEmpty(result->Measurement(1)->value()));
  }
}

void OperatorEverywhereTest::CheckReset(const orvik::ITestElement& element) {
  if (const auto result = element.Result()) {
    EXPECT_EQ(result->Status(), 0);
    EXPECT_EQ(result->MeasurementCount(), 0);
  }
  const auto* children = dynamic_cast<const orvik::ITestContainer*>(&element);
  for (std::int32_t i = 1; children && i <= children->Count(); ++i) CheckReset(*children->item(i));
}

TEST_P(OperatorEverywhereTest, NeverHangsNeverCrashesAlwaysClosesTheSession) {
  const int pumps = Run(-1);
  ASSERT_GT(pumps, GetParam().sequence ? 20 : 10);
  for (int moment = 0; moment < pumps; ++moment) {
    SCOPED_TRACE("at pump call " + std::to_string(moment));
    Run(moment);
    if (HasFatalFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(EveryMoment, OperatorEverywhereTest, testing::ValuesIn([] {
                           std::vector<Case> cases;
                           for (std::size_t action = 0; action < Actions().size(); ++action)
                             for (const bool sequence : {false, true})
                               for (const bool release : {false, true})
                                 cases.push_back({sequence, release, action});
                           return cases;
                         }()),
                         [](const auto& tested) {
                           return std::string(Actions()[tested.param.action].name) +
                                  (tested.param.sequence ? "InASequence" : "InASingleTest") +
                                  (tested.param.release ? "Released" : "");
                         });

}  // namespace keld
