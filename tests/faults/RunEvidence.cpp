#include "tests/faults/RunEvidence.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>

namespace faults {

namespace {

using Json = nlohmann::json;

/// What the tester reads, in the unit in which the elements keep it, and how its reply says so.
struct Reading {
  double value;
  const char* reply;
};
const std::map<int, Reading> kTruth{{410, {123.0, "gres,410,0,0.123,0,Ohm"}},
                                    {420, {131.0, "gres,420,0,0.131,0,Ohm"}}};

/// The texts of one direction of the log, in order.
std::vector<std::string> Texts(const std::vector<std::string>& log, const std::string& direction) {
  std::vector<std::string> texts;
  const std::string mark = " " + direction + " ";
  for (const auto& line : log) {
    const auto at = line.find(mark);
    if (at == line.find(' ') && at != std::string::npos) texts.push_back(line.substr(at + mark.size()));
  }
  return texts;
}

bool Contains(const std::vector<std::string>& texts, const std::string& text) {
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

char LetterOfCommand(const std::string& text) {
  static const std::map<std::string, char> kLetters{
      {"IREM", 'I'},       {"STST,410,0", 'S'}, {"GRES,410,0", 'G'}, {"STST,420,0", 's'},
      {"GRES,420,0", 'g'}, {"STST,210,0", 'c'}, {"EREM", 'E'}};
  const auto found = kLetters.find(text);
  return found == kLetters.end() ? '?' : found->second;
}

char LetterOfElement(const Json& element) {
  const bool doubtful = !element["doubts"].empty();
  switch (element["status"].get<int>()) {
    case 0:
      return '-';
    case 1:
      return doubtful ? 'p' : 'P';
    case 2:
      return 'F';
    case 3:
      return doubtful ? 'n' : 'N';
    case 4:
      return 'A';
    default:
      return '?';
  }
}

/// A pass counts only when the tester's own reading came over the wire and stands in the result.
void LookForUnmeasuredPass(const Json& element, const std::vector<std::string>& received,
                           std::vector<std::string>& offences) {
  if (LetterOfElement(element) != 'P' || element["kind"] == "sequence") return;
  const auto& truth = kTruth.at(element["testId"].get<int>());
  const auto& measurement = element["measurement"];
  const std::string name = "element " + element["id"].dump() + " passed, ";
  if (!Contains(received, truth.reply)) offences.push_back(name + "and its reading never came");
  if (measurement.is_null() || measurement["value"] != truth.value || measurement["unit"] != "mOhm" ||
      measurement["flags"] != "")
    offences.push_back(name + "with another reading than the tester's: " + measurement.dump());
}

void LookAtTheWhole(const Json& run, const std::string& letters, int exitStatus,
                    std::vector<std::string>& offences) {
  const bool good = letters.find_first_not_of("PN") == std::string::npos;
  if ((run["outcome"] == "passed") != good)
    offences.push_back("the outcome is " + run["outcome"].dump() + " with elements " + letters);
  if (exitStatus == 0 && !good) offences.push_back("exit status 0 with elements " + letters);
  // The first letter is the whole where there is a sequence.
  if (letters.size() > 1 && letters[0] == 'P' && letters.find_first_not_of("PN", 1) != std::string::npos)
    offences.push_back("the sequence passed with children " + letters.substr(1));
}

}  // namespace

std::vector<std::string> ReadLines(const std::string& path) {
  std::vector<std::string> lines;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

Observed Judge(const RunEvidence& evidence, const std::string& fault) {
  Observed observed;
  for (const auto& command : Texts(evidence.wireLog, "sent")) observed.cell += LetterOfCommand(command);
  const Json run = Json::parse(evidence.json, nullptr, false);
  std::string letters;
  if (run.is_discarded()) {
    observed.offences.push_back("no JSON: " + evidence.json + evidence.said);
  } else {
    const auto received = Texts(evidence.wireLog, "recv");
    for (const auto& element : run["elements"]) {
      letters += LetterOfElement(element);
      LookForUnmeasuredPass(element, received, observed.offences);
    }
    LookAtTheWhole(run, letters, evidence.exitStatus, observed.offences);
  }
  observed.cell += " " + letters + " " + std::to_string(evidence.exitStatus);
  observed.wireLog = evidence.wireLog;
  observed.met = fault.empty() || Contains(Texts(evidence.trace, "note"), "fault: " + fault);
  return observed;
}

}  // namespace faults
