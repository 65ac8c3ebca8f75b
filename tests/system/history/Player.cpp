#include "tests/system/history/Player.h"

#include <fstream>
#include <pugixml.hpp>
#include <sstream>

#include "OrvikTypeLib/HostError.h"
#include "host/report/DocumentView.h"
#include "tests/system/history/Model.h"
#include "tests/system/history/Oracle.h"
#include "tests/system/history/Outputs.h"
#include "tests/system/history/Tamper.h"

namespace history {
namespace {

/// All commands are checked after every this many operations.
constexpr int kCommandsEvery = 4;

std::string TextOf(const Verdicts& verdicts) {
  std::string text;
  for (const auto& verdict : verdicts) text += (text.empty() ? "\"" : " or \"") + verdict + "\"";
  return text;
}

std::string ReasonsOf(const host::judge::JudgedElement& element) {
  std::string text;
  for (const auto& reason : element.reasons) text += (text.empty() ? "" : ", ") + reason.code;
  return text.empty() ? "no reason" : text;
}

std::vector<std::string> RunsIn(const std::filesystem::path& file) {
  pugi::xml_document xml;
  xml.load_file(file.c_str());
  std::vector<std::string> runs;
  for (const auto run : xml.document_element().child("Runs").children("Run")) {
    std::ostringstream text;
    run.print(text, "", pugi::format_raw);
    runs.push_back(text.str());
  }
  return runs;
}

/// Includes parents and tests: a reused identifier would make one result count for another test.
std::string StructureOf(const host::judge::JudgedDocument& judged) {
  std::string text;
  for (const auto& element : judged.elements)
    text += std::to_string(element.id) + ":" + std::to_string(element.testId) + " in " +
            std::to_string(element.parent) + "; ";
  return text;
}

std::string StructureOf(const Plan& plan) {
  std::string text;
  for (const auto* element : plan.All()) {
    const auto* parent = plan.ParentOf(element->id);
    text += std::to_string(element->id) + ":" + std::to_string(element->testId) + " in " +
            std::to_string(parent ? parent->id : 0) + "; ";
  }
  return text;
}

std::string OutcomeOf(const host::judge::JudgedDocument& judged) {
  bool passed = false, open = judged.elements.empty();
  for (const auto& element : judged.elements) {
    const auto verdict = host::judge::VerdictText(element.verdict);
    if (verdict == "failed") return "failed";
    passed = passed || verdict == "passed";
    open = open || (verdict != "passed" && verdict != "recorded" && verdict != "not applicable");
  }
  return passed && !open ? "passed" : "incomplete";
}

}  // namespace

void Player::Begin(bool byCommand) {
  bench_.Clear();
  world_ = {};
  runs_.clear();
  byCommand_ = byCommand;
  step_ = 0;
}

std::optional<std::string> Player::Step(const Operation& operation) {
  if (!Applies(operation, world_)) return {};
  ++counts_.operations;
  ++step_;
  try {
    if (auto offence = Do(operation)) return offence;
    for (const auto& [file, document] : world_.documents)
      if (file == operation.file)
        if (auto offence = Check(file)) return file + ": " + *offence;
  } catch (const std::exception& error) {
    return std::string("an error comes out of the program: ") + error.what();
  }
  return {};
}

std::optional<std::string> Player::Do(const Operation& operation) {
  if (operation.kind == Operation::Kind::kTamper) return TamperWith(operation);
  if (operation.kind == Operation::Kind::kCopy) runs_[operation.file] = runs_[operation.other];
  if (const auto refused = bench_.Perform(operation, world_, byCommand_)) return "refused: " + *refused;
  Apply(operation, world_);
  return {};
}

std::optional<std::string> Player::TamperWith(const Operation& operation) {
  const auto path = bench_.PathOf(operation.file);
  std::ifstream input(path, std::ios::binary);
  std::stringstream before;
  before << input.rdbuf();
  auto& document = world_.documents.at(operation.file);
  const auto known = document;
  Tamper(path, operation.tampering, document);
  if (operation.tampering.kind != Tampering::Kind::kReformat) runs_.erase(operation.file);
  try {
    bench_.Open(operation.file);
  } catch (const orvik::HostError& error) {
    // The file is no longer a document: the old one is restored.
    if (error.Number() != orvik::HostError::kPathError)
      return "refused with another error: " + error.Description();
    document = known;
    std::ofstream(path, std::ios::binary) << before.str();
  }
  return {};
}

std::optional<std::string> Player::Check(const std::string& file) {
  const auto& known = world_.documents.at(file);
  const auto document = bench_.Open(file);
  const auto view = host::report::ViewOf(*document, bench_.Host());
  const auto& judged = view.judged;
  if (StructureOf(judged) != StructureOf(known.plan))
    return "elements are " + StructureOf(judged) + "and should be " + StructureOf(known.plan);

  const Oracle oracle(known);
  const auto said = [&](int id) { return host::judge::VerdictText(judged.Find(id)->verdict); };
  const auto all = known.plan.All();
  for (const auto* element : all) {
    const auto verdict = said(element->id);
    const auto allowed = oracle.Allowed(*element, said);
    ++counts_.elements;
    ++counts_.verdicts[verdict];
    if (allowed.size() == 1) ++counts_.exact;
    const auto& reasons = *judged.Find(element->id);
    if (!allowed.contains(verdict))
      return "element " + std::to_string(element->id) + " is \"" + verdict + "\" (" + ReasonsOf(reasons) +
             "), and should be " + TextOf(allowed);
    if (reasons.reasons.empty() && !host::judge::IsDone(judged.Find(element->id)->verdict))
      return "element " + std::to_string(element->id) + " is \"" + verdict + "\" without a reason";
  }
  const auto outcome = host::judge::OutcomeText(judged.outcome);
  ++counts_.outcomes[outcome];
  if (outcome != OutcomeOf(judged))
    return "outcome \"" + outcome + "\", and should be \"" + OutcomeOf(judged) + "\"";
  if (judged.simulated != known.anySimulated) return std::string("simulated is wrong");
  if (auto offence = CheckRuns(file)) return offence;
  if (auto offence = OutputsDiffer(view, *document, bench_.Host())) return offence;
  return byCommand_ && step_ % kCommandsEvery == 0 ? CommandsDiffer(view, bench_, known.tampered)
                                                   : std::nullopt;
}

std::optional<std::string> Player::CheckRuns(const std::string& file) {
  const auto now = RunsIn(bench_.PathOf(file));
  const auto before = std::exchange(runs_[file], now);
  if (now.size() < before.size()) return "a run is gone";
  for (std::size_t i = 0; i < before.size(); ++i)
    if (now[i] != before[i])
      return "run " + std::to_string(i + 1) + " has changed: " + before[i] + " to " + now[i];
  if (now.size() != world_.documents.at(file).inFile.size())
    return "there are " + std::to_string(now.size()) + " runs, and should be " +
           std::to_string(world_.documents.at(file).inFile.size());
  return {};
}

}  // namespace history
