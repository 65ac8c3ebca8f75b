#include "tests/system/faults/RunEvidence.h"

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
  const char* unit;
  const char* reply;
};
const std::map<int, Reading> kTruth{{410, {123.0, "mOhm", "gres,410,0,0.123,0,Ohm"}},
                                    {420, {131.0, "mOhm", "gres,420,0,0.131,0,Ohm"}},
                                    {1010, {2.5, "MOhm", "gres,1010,0,2.5,0,MOhm"}},
                                    {610, {90.0, "µA", "gres,610,0,90,0,µA"}}};

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

/// "STST 1" of "STST,410,0": the test by its place in the run.
std::string CommandOf(const std::string& text) {
  if (text == "IREM" || text == "EREM") return text;
  if (text == "STST,210,0") return "STST end";
  const auto mnemonic = text.substr(0, 4);
  for (const auto* first : {"410", "1010", "610"})
    if (text == mnemonic + "," + first + ",0") return mnemonic + " 1";
  return text == mnemonic + ",420,0" ? mnemonic + " 2" : "unknown " + text;
}

std::string Joined(const std::vector<std::string>& texts) {
  std::string joined;
  for (const auto& text : texts) joined += (joined.empty() ? "" : ", ") + text;
  return joined;
}

bool IsDone(const std::string& verdict) {
  return verdict == "passed" || verdict == "recorded" || verdict == "not applicable";
}

/// A pass counts only when the tester's own reading came over the wire and stands in the result.
void LookForUnmeasuredPass(const Json& element, const std::vector<std::string>& received,
                           std::vector<std::string>& offences) {
  if (element["verdict"] != "passed" || element["kind"] == "sequence") return;
  const auto& truth = kTruth.at(element["testId"].get<int>());
  const auto& measurement = element["measurement"];
  const std::string name = "element " + element["id"].dump() + " passed, ";
  if (!Contains(received, truth.reply)) offences.push_back(name + "and its reading never came");
  if (measurement.is_null() || measurement["value"] != truth.value || measurement["unit"] != truth.unit ||
      measurement["flags"] != "")
    offences.push_back(name + "with another reading than the tester's: " + measurement.dump());
}

void LookAtTheWhole(const Json& run, const std::vector<std::string>& verdicts, int exitStatus,
                    std::vector<std::string>& offences) {
  const auto all = Joined(verdicts);
  const bool done = std::all_of(verdicts.begin(), verdicts.end(), IsDone);
  const bool failed = std::count(verdicts.begin(), verdicts.end(), "failed") > 0;
  const bool passed = done && std::count(verdicts.begin(), verdicts.end(), "passed") > 0;
  const std::string outcome = failed ? "failed" : passed ? "passed" : "incomplete";
  if (run["outcome"] != outcome)
    offences.push_back("the outcome is " + run["outcome"].dump() + " with elements " + all);
  if (exitStatus == 0 && !passed) offences.push_back("exit status 0 with elements " + all);
  // The first one is the whole where there is a sequence.
  if (verdicts.size() > 1 && IsDone(verdicts[0]) && !done)
    offences.push_back("the sequence passed with children " + Joined({verdicts.begin() + 1, verdicts.end()}));
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
  std::vector<std::string> commands, verdicts;
  for (const auto& command : Texts(evidence.wireLog, "sent")) commands.push_back(CommandOf(command));
  const Json run = Json::parse(evidence.json, nullptr, false);
  if (run.is_discarded()) {
    observed.offences.push_back("no JSON: " + evidence.json + evidence.said);
  } else {
    const auto received = Texts(evidence.wireLog, "recv");
    for (const auto& element : run["elements"]) {
      verdicts.push_back(element["verdict"]);
      if (verdicts.back() != "passed" && element["reasons"].empty())
        observed.offences.push_back("element " + element["id"].dump() + " is " + verdicts.back() +
                                    ", and nothing says why");
      LookForUnmeasuredPass(element, received, observed.offences);
    }
    LookAtTheWhole(run, verdicts, evidence.exitStatus, observed.offences);
  }
  observed.sent = TextOf(commands);
  observed.verdicts = Joined(verdicts);
  observed.exitStatus = evidence.exitStatus;
  observed.wireLog = evidence.wireLog;
  observed.met = fault.empty() || Contains(Texts(evidence.trace, "note"), "fault: " + fault);
  return observed;
}

}  // namespace faults
