#include <algorithm>
#include <cmath>
#include <cstdio>

#include "tests/system/soak/SoakRun.h"

namespace soak {

namespace {

using host::judge::JudgedElement;
using host::judge::Outcome;
using host::judge::Verdict;
using Texts = std::vector<std::string>;

bool Contains(const Texts& texts, const std::string& text) {
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

bool AllDone(const std::vector<JudgedElement>& elements) {
  return std::all_of(elements.begin(), elements.end(),
                     [](const JudgedElement& element) { return host::judge::IsDone(element.verdict); });
}

/// A pass counts only if the tester's own reading of this run came over the wire, is in the result, and is
/// within the limit.
void CheckPass(const Plan& plan, const JudgedElement& element, const Texts& received, Texts& offences) {
  const std::string name = "element " + std::to_string(element.id) + " passed, ";
  const int truth = plan.truth.at(element.testId);
  if (!Contains(received, ReplyTo(element.testId, truth)))
    offences.push_back(name + "and its reading never came");
  const auto& measured = element.measurement;
  if (!measured || !measured->value || std::abs(*measured->value - truth) > 1e-6 ||
      measured->unit != "mOhm" || !measured->flags.empty())
    offences.push_back(name + "with another reading than the tester's");
  if (truth > kHighest) offences.push_back(name + "beyond its limit");
}

void CheckElement(const Plan& plan, const JudgedElement& element, const Texts& received, Texts& offences) {
  const std::string name = "element " + std::to_string(element.id);
  if (element.status < 0 || element.status > 4) offences.push_back(name + " has an unknown status");
  const auto verdict = element.verdict;
  // Every test has a limit, so "not judged" would be a lost one.
  if (verdict == Verdict::kRecorded || verdict == Verdict::kNotJudged)
    offences.push_back(name + " has a reading that no limit judged");
  if (verdict == Verdict::kNotApplicable)
    offences.push_back(name + " is not applicable, though it has a limit and no operator set it aside");
  if (verdict != Verdict::kPassed && element.reasons.empty())
    offences.push_back(name + " has not passed, and nothing says why");
  if (element.group) return;
  if (verdict == Verdict::kPassed) CheckPass(plan, element, received, offences);
  const bool beyond =
      element.measurement && element.measurement->value && *element.measurement->value > kHighest;
  if (verdict == Verdict::kFailed && !beyond)
    offences.push_back(name + " failed, and its reading keeps the limit");
}

void CheckWhole(const Evidence& evidence, Texts& offences) {
  const auto& elements = evidence.elements;
  if ((evidence.outcome == Outcome::kPassed) != AllDone(elements))
    offences.push_back("the outcome is " + host::judge::OutcomeText(evidence.outcome));
  // The first element may be the sequence.
  if (elements.size() > 1 && elements.front().verdict == Verdict::kPassed && !AllDone(elements))
    offences.push_back("the sequence passed with such children");
  if (evidence.portOpen) offences.push_back("the port is still open");
  if (evidence.windows > 0) offences.push_back("a window is still open");
  if (!evidence.reopened.empty() && VerdictsOf(evidence.reopened) != VerdictsOf(elements))
    offences.push_back("the saved document reads " + VerdictsOf(evidence.reopened));
}

/// Without faults everything must be exact.
void CheckUndisturbed(const Plan& plan, const Evidence& evidence, Texts& offences) {
  const auto verdict = [&](int testId) {
    return std::string(plan.truth.at(testId) > kHighest ? "failed" : "passed");
  };
  auto expected = verdict(410);
  Texts commands{"IREM", "STST,410,0", "GRES,410,0", "STST,210,0", "EREM"};
  if (plan.kind == Kind::kSequence) {
    const bool failed = verdict(410) == "failed" || verdict(420) == "failed";
    expected = std::string(failed ? "failed" : "passed") + ", " + verdict(410) + ", " + verdict(420);
    commands.insert(commands.begin() + 3, {"STST,420,0", "GRES,420,0"});
  }
  if (VerdictsOf(evidence.elements) != expected)
    offences.push_back("undisturbed, it should have ended " + expected);
  if (evidence.sent != commands) offences.push_back("undisturbed, it sent other commands");
  if (evidence.end != host::run::DocumentRunner::End::kFinished)
    offences.push_back("undisturbed, it was not finished");
}

}  // namespace

std::string VerdictsOf(const std::vector<JudgedElement>& elements) {
  std::string texts;
  for (const auto& element : elements)
    texts += (texts.empty() ? "" : ", ") + host::judge::VerdictText(element.verdict);
  return texts;
}

std::string ReplyTo(int testId, int milliohms) {
  char text[60];
  std::snprintf(text, sizeof text, "gres,%d,0,%d.%03d,0,Ohm", testId, milliohms / 1000, milliohms % 1000);
  return text;
}

std::vector<std::string> Offences(const Plan& plan, const Evidence& evidence) {
  Texts offences;
  if (evidence.elements.size() != (plan.kind == Kind::kTest ? 1U : 3U))
    offences.push_back("elements are missing");
  for (const auto& element : evidence.elements) CheckElement(plan, element, evidence.received, offences);
  CheckWhole(evidence, offences);
  const bool faulty = !plan.script.empty() || plan.faultRate > 0;
  // Without IREM the session is that of an earlier run whose end the tester did not receive.
  if (!faulty && Contains(evidence.sent, "IREM") && evidence.inRemoteMode)
    offences.push_back("the session with the tester is still open");
  if (plan.Undisturbed()) CheckUndisturbed(plan, evidence, offences);
  return offences;
}

}  // namespace soak
