#include <array>

#include "tests/system/history/Operation.h"

namespace history {
namespace {

using Arguments = std::vector<std::string>;

constexpr std::array<const char*, 4> kFields{"--asset", "--serial", "--maker", "--model"};

Arguments Numbers(const std::vector<int>& numbers) {
  Arguments texts;
  for (const int number : numbers) texts.push_back(std::to_string(number));
  return texts;
}

void Append(Arguments& arguments, const Arguments& more) {
  arguments.insert(arguments.end(), more.begin(), more.end());
}

void AppendPlace(Arguments& arguments, const Operation& operation) {
  if (operation.place.empty()) return;
  arguments.push_back(operation.place);
  if (operation.placeOf != 0) arguments.push_back(std::to_string(operation.placeOf));
}

void AppendFields(Arguments& arguments, const Operation& operation) {
  for (const auto& [field, value] : operation.fields)
    Append(arguments, {kFields[static_cast<std::size_t>(field)], value});
}

void AppendLimit(Arguments& arguments, const Operation& operation) {
  Append(arguments, {"--standard", operation.limit.standard});
  if (!operation.limit.description.empty()) Append(arguments, {"--description", operation.limit.description});
  if (!operation.lowText.empty()) Append(arguments, {"--low", operation.lowText});
  if (!operation.highText.empty()) Append(arguments, {"--high", operation.highText});
  if (!operation.limit.unit.empty()) Append(arguments, {"--unit", operation.limit.unit});
}

void AppendRun(Arguments& arguments, const RunSetup& run) {
  Append(arguments, run.simulated ? Arguments{"--simulate"} : Arguments{"--port", "/dev/ttyUSB0"});
  for (const int element : run.elements) Append(arguments, {"--element", std::to_string(element)});
  for (const auto& standard : run.standards) Append(arguments, {"--standard", standard});
  if (run.resume) arguments.push_back("--resume");
}

std::string TextOf(Press press) {
  switch (press) {
    case Press::kPlayThenNext:
      return "play, next";
    case Press::kNext:
      return "next without play";
    case Press::kPlayThenPrevious:
      return "play, previous";
    case Press::kPlayTwice:
      return "play, play, next";
    case Press::kNotApplicable:
      return "not applicable";
    case Press::kSkip:
      return "skip";
    case Press::kAbort:
      break;
  }
  return "abort";
}

std::string TextOf(const Behaviour& behaviour) {
  const auto test = " test " + std::to_string(behaviour.testId);
  switch (behaviour.kind) {
    case Behaviour::Kind::kInUnit:
      return "says" + test + " in " + behaviour.unit;
    case Behaviour::Kind::kOverload:
      return "overloaded in" + test;
    case Behaviour::Kind::kLacks:
      return "lacks" + test;
    case Behaviour::Kind::kRefusesNow:
      break;
  }
  return "refuses" + test + " for now (1003)";
}

std::string Remark(const RunSetup& run) {
  auto text = "tester \"" + run.tester.serial + "\"";
  if (!run.tester.laterSerial.empty()) text += ", then \"" + run.tester.laterSerial + "\"";
  if (run.tester.type != "KELD(IN)") text += " of type " + run.tester.type;
  for (const auto& behaviour : run.tester.behaviours) text += "; " + TextOf(behaviour);
  std::string faults = run.tester.faults;
  for (auto& letter : faults)
    if (letter == '\n') letter = ';';
  if (!faults.empty()) text += "; faults: " + faults;
  if (run.tester.faultPercent > 0)
    text += "; " + std::to_string(run.tester.faultPercent) + "% of its replies spoiled, seed " +
            std::to_string(run.tester.faultSeed);
  if (!run.newProgram) text += "; in the program that ran before";
  for (const auto press : run.presses) text += "; [" + TextOf(press) + "]";
  if (run.stopAt) text += "; stop at pump call " + std::to_string(*run.stopAt);
  if (run.abortAt) text += "; abort at pump call " + std::to_string(*run.abortAt);
  if (run.killedAfterSaves) text += "; killed after " + std::to_string(*run.killedAfterSaves) + " saves";
  return text;
}

std::string TextOf(const Tampering& tampering) {
  static constexpr std::array<const char*, 14> kNames{"lays the file out anew",
                                                      "changes the saved status of element",
                                                      "changes the saved value of element",
                                                      "removes the saved result of element",
                                                      "changes an attribute in a run",
                                                      "removes a node of a run",
                                                      "changes a text in a run",
                                                      "removes a run",
                                                      "swaps two runs",
                                                      "changes a bound of element",
                                                      "changes a limit's unit of element",
                                                      "changes a limit's key of element",
                                                      "changes the settings of element",
                                                      "changes the equipment"};
  return std::string("another program ") + kNames[static_cast<std::size_t>(tampering.kind)] + " " +
         std::to_string(tampering.element) + " (number " + std::to_string(tampering.which) + ", \"" +
         tampering.value + "\")";
}

std::string Quoted(const std::string& text) {
  const bool plain = !text.empty() && text.find_first_of(" ;()\"") == std::string::npos;
  return plain ? text : "\"" + text + "\"";
}

std::string NameOf(const Equipment& equipment) { return equipment[0] + "/" + equipment[1]; }

}  // namespace

std::vector<std::string> ArgumentsOf(const Operation& operation, const std::string& folder) {
  const auto file = folder + operation.file;
  const auto elements = Numbers(operation.elements);
  Arguments arguments;
  switch (operation.kind) {
    case Operation::Kind::kNew:
      arguments = {"new", file, "--add"};
      Append(arguments, Numbers(operation.tests));
      AppendFields(arguments, operation);
      break;
    case Operation::Kind::kNewFrom:
      arguments = {"new", file, "--from", folder + operation.other};
      AppendFields(arguments, operation);
      break;
    case Operation::Kind::kAdd:
      arguments = {"add", file};
      Append(arguments, Numbers(operation.tests));
      AppendPlace(arguments, operation);
      break;
    case Operation::Kind::kRemove:
      arguments = {"remove", file, "--element"};
      Append(arguments, elements);
      break;
    case Operation::Kind::kMove:
      arguments = {"move", file, "--element", elements.front()};
      AppendPlace(arguments, operation);
      break;
    case Operation::Kind::kEdit:
      arguments = {"edit", file};
      AppendFields(arguments, operation);
      break;
    case Operation::Kind::kLimit:
      arguments = {"limit", file, "--element"};
      Append(arguments, elements);
      AppendLimit(arguments, operation);
      break;
    case Operation::Kind::kLimitSet:
      arguments = {"limit", file, "--from", folder + operation.set + ".xml"};
      if (!elements.empty()) arguments.push_back("--element");
      Append(arguments, elements);
      if (operation.also) arguments.push_back("--also");
      break;
    case Operation::Kind::kLimitRemove:
      arguments = {"limit", file, "--element"};
      Append(arguments, elements);
      arguments.push_back("--remove");
      if (!operation.limit.standard.empty()) Append(arguments, {"--standard", operation.limit.standard});
      break;
    case Operation::Kind::kRecordOnly:
      arguments = {"limit", file, "--element"};
      Append(arguments, elements);
      arguments.push_back("--record-only");
      break;
    case Operation::Kind::kOptions:
      arguments = {"config",         file,        "--element",
                   elements.front(), "--options", std::to_string(operation.number)};
      break;
    case Operation::Kind::kFilter:
      arguments = {"config", file, "--element", elements.front(), "--filter", operation.text};
      break;
    case Operation::Kind::kRun:
      arguments = {"run", file};
      AppendRun(arguments, operation.run);
      break;
    case Operation::Kind::kCopy:
    case Operation::Kind::kLeads:
    case Operation::Kind::kEquipmentIs:
    case Operation::Kind::kTamper:
      break;
  }
  return arguments;
}

std::string TextOf(const Operation& operation) {
  switch (operation.kind) {
    case Operation::Kind::kCopy:
      return "cp " + operation.other + " " + operation.file;
    case Operation::Kind::kLeads:
      return "# the leads of tester " + operation.text + " are stored as " +
             std::to_string(operation.number) + " mOhm";
    case Operation::Kind::kEquipmentIs:
      return "# equipment " + NameOf(operation.equipment) + " now has " + operation.amount.number.Text() +
             " " + operation.amount.unit + " in test " + std::to_string(operation.testId) + ", setting " +
             std::to_string(operation.setting);
    case Operation::Kind::kTamper:
      return "# " + operation.file + ": " + TextOf(operation.tampering);
    default:
      break;
  }
  std::string text = "orvik-bench";
  for (const auto& argument : ArgumentsOf(operation, "")) text += " " + Quoted(argument);
  if (operation.kind == Operation::Kind::kRun) text += "   # " + Remark(operation.run);
  return text;
}

}  // namespace history
