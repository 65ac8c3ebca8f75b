#include <algorithm>
#include <cmath>
#include <cstdio>

#include "tests/soak/SoakRun.h"

namespace soak {

namespace {

using bench::ElementSummary;
using Texts = std::vector<std::string>;

enum Status { kNotTested = 0, kPassed = 1, kFailed = 2, kNotApplicable = 3, kAborted = 4 };

bool Contains(const Texts& texts, const std::string& text) {
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

char LetterOf(const ElementSummary& element) {
  const bool doubtful = !element.doubts.empty();
  switch (element.status) {
    case kNotTested:
      return '-';
    case kPassed:
      return doubtful ? 'p' : 'P';
    case kFailed:
      return 'F';
    case kNotApplicable:
      return doubtful ? 'n' : 'N';
    case kAborted:
      return 'A';
    default:
      return '?';
  }
}

bool AllDone(const std::string& letters) { return letters.find_first_not_of("PN") == std::string::npos; }

/// A pass counts only when the tester's own reading of this run came over the wire, stands in the result, and
/// keeps the limit.
void CheckPass(const Plan& plan, const ElementSummary& element, const Texts& received, Texts& offences) {
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

void CheckElement(const Plan& plan, const ElementSummary& element, const Texts& received, Texts& offences) {
  const std::string name = "element " + std::to_string(element.id);
  const char letter = LetterOf(element);
  if (letter == '?') offences.push_back(name + " has an unknown status");
  if (letter == 'N' && !Contains(received, "ERRM,6002"))
    offences.push_back(name + " is not applicable, and the tester never said so");
  if (element.sequence) return;
  if (letter == 'P') CheckPass(plan, element, received, offences);
  const bool beyond =
      element.measurement && element.measurement->value && *element.measurement->value > kHighest;
  if (letter == 'F' && !beyond) offences.push_back(name + " failed, and its reading keeps the limit");
}

void CheckWhole(const Evidence& evidence, const std::string& letters, Texts& offences) {
  if ((evidence.outcome == bench::Outcome::kPassed) != AllDone(letters))
    offences.push_back("the outcome is " + bench::OutcomeText(evidence.outcome));
  // The first one is the sequence, where there is one.
  if (letters.size() > 1 && letters.front() == 'P' && !AllDone(letters))
    offences.push_back("the sequence passed with such children");
  if (evidence.portOpen) offences.push_back("the port is still open");
  if (evidence.windows > 0) offences.push_back("a window is still open");
  if (!evidence.reopened.empty() && LettersOf(evidence.reopened) != letters)
    offences.push_back("the saved document reads " + LettersOf(evidence.reopened));
}

/// Nothing went wrong, so everything has to be exact.
void CheckUndisturbed(const Plan& plan, const Evidence& evidence, const std::string& letters,
                      Texts& offences) {
  const auto verdict = [&](int testId) { return plan.truth.at(testId) > kHighest ? 'F' : 'P'; };
  std::string expected{verdict(410)};
  Texts commands{"IREM", "STST,410,0", "GRES,410,0", "STST,210,0", "EREM"};
  if (plan.kind == Kind::kSequence) {
    const bool failed = verdict(410) == 'F' || verdict(420) == 'F';
    expected = {failed ? 'F' : 'P', verdict(410), verdict(420)};
    commands.insert(commands.begin() + 3, {"STST,420,0", "GRES,420,0"});
  }
  if (letters != expected) offences.push_back("undisturbed, it should have ended " + expected);
  if (evidence.sent != commands) offences.push_back("undisturbed, it sent other commands");
  if (evidence.end != bench::DocumentRunner::End::kFinished)
    offences.push_back("undisturbed, it was not finished");
}

}  // namespace

std::string LettersOf(const std::vector<ElementSummary>& elements) {
  std::string letters;
  for (const auto& element : elements) letters += LetterOf(element);
  return letters;
}

std::string ReplyTo(int testId, int milliohms) {
  char text[60];
  std::snprintf(text, sizeof text, "gres,%d,0,%d.%03d,0,Ohm", testId, milliohms / 1000, milliohms % 1000);
  return text;
}

std::vector<std::string> Offences(const Plan& plan, const Evidence& evidence) {
  Texts offences;
  const auto letters = LettersOf(evidence.elements);
  if (letters.size() != (plan.kind == Kind::kTest ? 1U : 3U)) offences.push_back("elements are missing");
  for (const auto& element : evidence.elements) CheckElement(plan, element, evidence.received, offences);
  CheckWhole(evidence, letters, offences);
  const bool faulty = !plan.script.empty() || plan.faultRate > 0;
  // Without IREM the session is that of an earlier run, whose end the tester never heard of.
  if (!faulty && Contains(evidence.sent, "IREM") && evidence.inRemoteMode)
    offences.push_back("the session with the tester is still open");
  if (plan.Undisturbed()) CheckUndisturbed(plan, evidence, letters, offences);
  return offences;
}

}  // namespace soak
