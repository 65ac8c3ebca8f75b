#include <functional>
#include <ostream>

#include "tests/unit/model/OperatorRun.h"

// The operator does something at every single moment of a run: once for each call of the message pump in it.
namespace keld {

namespace {

using support::GuideOperator;
using support::OperatorRun;
using Outcome = OperatorRun::Outcome;
using Moment = OperatorRun::Moment;
using Texts = std::vector<std::string>;

/// What the rules say about the end of such a run.
enum class Rule { kAbort, kNoChange, kStop, kNotApplicable, kSkip, kOnlySafe };

/// What the operator does at the chosen moment.
struct Action {
  const char* name;
  Rule rule;
  std::function<void(OperatorRun&)> act;
  bool yes = true;      ///< the answer to the question whether to end the test
  bool silent = false;  ///< tried with a tester that falls silent, too
};

const std::vector<Action>& Actions() {
  static const auto press = [](int command) {
    return [command](OperatorRun& run) { run.person.Press(command); };
  };
  static const std::vector<Action> all{
      {"AbortYes", Rule::kAbort, press(GuideOperator::kAbort), true, true},
      {"AbortNo", Rule::kNoChange, press(GuideOperator::kAbort), false, true},
      {"CloseWindow", Rule::kAbort, [](OperatorRun& run) { run.person.CloseGuide(); }},
      {"CloseWindowNo", Rule::kNoChange, [](OperatorRun& run) { run.person.CloseGuide(); }, false},
      {"Stop", Rule::kStop, press(GuideOperator::kStop), true, true},
      {"NotApplicable", Rule::kNotApplicable, press(GuideOperator::kNotApplicable)},
      {"Skip", Rule::kSkip, press(GuideOperator::kSkip)},
      // The guide offers neither during a run; whoever calls past its buttons must not do harm.
      {"NotApplicablePastTheGuide", Rule::kOnlySafe, [](OperatorRun& run) { run.Test().NATest(); }},
      {"SkipPastTheGuide", Rule::kOnlySafe, [](OperatorRun& run) { run.Test().SkipTest(); }},
      // One after the other at the same moment.
      {"StopThenAbort", Rule::kAbort,
       [](OperatorRun& run) {
         run.person.Press(GuideOperator::kStop);
         run.person.Press(GuideOperator::kAbort);
       }},
  };
  return all;
}

/// Three attempts for each of the two commands that end a session.
constexpr auto kWayOut = 2 * 3 * std::chrono::milliseconds(5500);

}  // namespace

struct OperatorCase {
  bool sequence;
  bool release;  ///< the handler also lets go of the element
  bool silent;   ///< the tester says nothing any more once it is in remote mode
  std::size_t action;

  std::string Name() const {
    return std::string(Actions()[action].name) + (sequence ? "InASequence" : "InASingleTest") +
           (release ? "Released" : "") + (silent ? "SilentTester" : "");
  }

  friend std::ostream& operator<<(std::ostream& out, const OperatorCase& shown) {
    return out << shown.Name();
  }
};

namespace {

/// The starts of children that the host was asked for from that notice on.
Texts StartsFrom(const Texts& told, std::size_t first) {
  Texts found;
  for (std::size_t i = first; i < told.size(); ++i)
    if (told[i].starts_with("start")) found.push_back(told[i]);
  return found;
}

/// The commands that went out from there on, without those that end a session.
Texts TestingFrom(const Texts& sent, std::size_t first) {
  Texts found;
  for (std::size_t i = first; i < sent.size(); ++i)
    if (sent[i] != "STST,210,0" && sent[i] != "EREM") found.push_back(sent[i]);
  return found;
}

}  // namespace

class OperatorEverywhereTest : public testing::TestWithParam<OperatorCase> {
 protected:
  static constexpr int kNever = -1;

  /// One run on a bench of its own; what the operator does comes at the given pump call.
  Outcome Run(int moment) {
    const Action& action = Actions()[GetParam().action];
    OperatorRun run(GetParam().sequence, GetParam().silent);
    run.person.abort = action.yes;
    return run.Perform(moment, GetParam().release, action.act);
  }
  /// What has to hold whatever the operator did.
  static void CheckSafe(const Outcome& end, const Outcome& undisturbed) {
    EXPECT_FALSE(end.stalled) << "the run waited for something that never comes";
    EXPECT_LE(end.duration, undisturbed.duration + kWayOut);
    EXPECT_FALSE(end.leftElement) << "the run left a reference to its element behind";
    EXPECT_FALSE(end.leftWindow) << "the run left a window open";
    EXPECT_FALSE(end.leftPort) << "the port is still open";
    EXPECT_FALSE(end.leftRemote) << "the tester was left in remote mode";
    EXPECT_TRUE(end.stopped) << "the element still holds a link";
    EXPECT_TRUE(end.passedUnmeasured.empty()) << end.passedUnmeasured.front() << " passed unmeasured";
    // The session was entered, so it was ended, and once only.
    const auto& sent = end.sent;
    const bool entered = sent.size() > 1 || end.entered;
    if (entered && !GetParam().silent) {
      EXPECT_EQ(sent.back(), "EREM");
      EXPECT_EQ(std::count(sent.begin(), sent.end(), "EREM"), 1);
    }
  }
  void CheckRule(const Moment& moment, const Outcome& end, const Outcome& undisturbed) {
    switch (Actions()[GetParam().action].rule) {
      case Rule::kAbort:
        return moment.atGuide ? CheckAborted(moment, end) : CheckUndisturbed(end, undisturbed);
      case Rule::kNoChange:
        EXPECT_EQ(end.prompts.size(), undisturbed.prompts.size() + (moment.atGuide ? 1 : 0));
        return CheckUndisturbed(end, undisturbed);
      case Rule::kStop:
        return moment.atGuide && moment.running && !moment.over ? CheckStopped(moment, end)
                                                                : CheckUndisturbed(end, undisturbed);
      case Rule::kNotApplicable:
        return moment.atGuide && !moment.running ? CheckLeft(end, 4, 3) : CheckUndisturbed(end, undisturbed);
      case Rule::kSkip:
        return moment.atGuide && !moment.running ? CheckLeft(end, 3, OperatorRun::kNoResult)
                                                 : CheckUndisturbed(end, undisturbed);
      case Rule::kOnlySafe:
        return;
    }
  }

 private:
  static void CheckUndisturbed(const Outcome& end, const Outcome& undisturbed) {
    EXPECT_EQ(end.told, undisturbed.told);
    EXPECT_EQ(end.sent, undisturbed.sent);
    if (!GetParam().release) {
      EXPECT_EQ(end.states, undisturbed.states);
    }
  }
  static void CheckAborted(const Moment& moment, const Outcome& end) {
    EXPECT_EQ(end.Navigation(), (Texts{"navigate 0", "navigate 2"}));
    EXPECT_EQ(StartsFrom(end.told, moment.told), Texts{});
    EXPECT_EQ(TestingFrom(end.sent, moment.sent), Texts{});
    if (moment.running) {
      EXPECT_EQ(end.Finished(GetParam().sequence ? "100" : "410"), 1);
    }
    if (GetParam().sequence) {
      EXPECT_EQ(end.prompts.size(), moment.prompts + 1) << "the question is all that anybody is told";
    }
    if (GetParam().release) return;
    if (GetParam().sequence) return CheckAllReset(end);
    // What was measured before the abort stays in the record; it counts as aborted.
    ASSERT_EQ(end.states.size(), 1U);
    EXPECT_EQ(end.states[0].status, 4);
    EXPECT_EQ(end.states[0].code, "");
    EXPECT_LE(end.states[0].measurements, moment.over ? 1 : 0);
  }
  static void CheckStopped(const Moment& moment, const Outcome& end) {
    EXPECT_EQ(end.Navigation(), (Texts{"navigate 0", "navigate 0"}));
    EXPECT_EQ(StartsFrom(end.told, moment.told), Texts{});
    // The exchange that is on the way goes to its end first.
    EXPECT_LE(TestingFrom(end.sent, moment.sent).size(), GetParam().silent ? 3U : 1U);
    EXPECT_EQ(end.Finished(GetParam().sequence ? "100" : "410"), 1);
    if (!GetParam().release) CheckAllReset(end);
  }
  static void CheckLeft(const Outcome& end, int request, std::int32_t status) {
    EXPECT_EQ(end.Navigation(), (Texts{"navigate 0", "navigate " + std::to_string(request)}));
    EXPECT_EQ(end.sent, Texts{});
    for (const auto& state : end.states) {
      EXPECT_EQ(state.status, status);
      EXPECT_EQ(state.measurements, 0);
    }
  }
  /// Nothing carries an outcome.
  static void CheckAllReset(const Outcome& end) {
    for (const auto& state : end.states) {
      EXPECT_TRUE(state.status == 0 || state.status == OperatorRun::kNoResult) << state.status;
      EXPECT_EQ(state.measurements, 0);
      EXPECT_EQ(state.code, "");
    }
    EXPECT_EQ(end.states[0].status, 0);
  }
};

TEST_P(OperatorEverywhereTest, NeverHangsNeverCrashesAlwaysClosesTheSession) {
  const Outcome undisturbed = Run(kNever);
  CheckSafe(undisturbed, undisturbed);
  ASSERT_GT(undisturbed.pumps, GetParam().sequence ? 20 : 10);
  bool acted = false;
  for (int moment = 0; moment < undisturbed.pumps; ++moment) {
    SCOPED_TRACE("at pump call " + std::to_string(moment));
    const Outcome end = Run(moment);
    ASSERT_TRUE(end.moment.reached);
    acted = acted || end.moment.running;
    CheckSafe(end, undisturbed);
    CheckRule(end.moment, end, undisturbed);
    if (HasFailure()) return;
  }
  EXPECT_TRUE(acted) << "no test was running at any of the moments";
}

namespace {

std::vector<OperatorCase> Cases() {
  std::vector<OperatorCase> cases;
  for (std::size_t action = 0; action < Actions().size(); ++action)
    for (const bool sequence : {false, true})
      for (const bool release : {false, true}) {
        cases.push_back({sequence, release, false, action});
        if (Actions()[action].silent) cases.push_back({sequence, release, true, action});
      }
  return cases;
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(EveryMoment, OperatorEverywhereTest, testing::ValuesIn(Cases()),
                         [](const auto& tested) { return tested.param.Name(); });

}  // namespace keld
