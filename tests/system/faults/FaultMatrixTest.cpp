#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iostream>

#include "tests/system/faults/Rows.h"

namespace faults {
namespace {

/// Pauses and time-outs are divided by this: a reply may take 200 ms. All the runs of a fault go on at once,
/// since nearly all of their time is waiting.
constexpr int kAttempts = 3;
constexpr int kTimeScale = 10;
constexpr std::size_t kAtOnce = 46;
/// On a machine that stood still for longer a reply came too late that was none of the fault's. Such a run is
/// had again with more time, and fewer at once. What must never be is not forgiven in either run.
constexpr int kPatientTimeScale = 3;
constexpr std::size_t kPatientlyAtOnce = 12;

struct Expectation {
  Case what;
  std::string sent, verdicts;
  int exitStatus = 0;
};

/// The commands with `command` sent more often.
std::string MoreOften(const std::string& sent, const std::string& command, std::size_t times) {
  auto commands = CommandsIn(sent);
  commands.insert(std::find(commands.begin(), commands.end(), command), times, command);
  return TextOf(commands);
}

void AddRows(Kind kind, const std::string& fault, const std::vector<Row>& rows, int attempts,
             std::vector<Expectation>& expectations) {
  for (const Row& row : rows) {
    for (int attempt = 1; attempt <= attempts; ++attempt) {
      Expectation expected{{kind, row.command, attempt, fault}, {}, row.verdicts, row.exitStatus};
      expected.sent = MoreOften(row.sent, row.command, static_cast<std::size_t>(attempt) - 1);
      if (attempt == 3 && row.third) {
        expected.sent = row.third->sent;
        expected.verdicts = row.third->verdicts;
        expected.exitStatus = row.third->exitStatus;
      }
      expectations.push_back(expected);
    }
  }
}

std::vector<Row> RowsOfInsulation(const FaultRows& fault) {
  auto rows = fault.test;
  for (Row& row : rows)
    for (const Row& other : fault.insulation)
      if (std::string(other.command) == row.command) row = other;
  return rows;
}

std::vector<FaultRows> AllFaults() {
  std::vector<FaultRows> all;
  for (const auto* group : {&LostReplies(), &WrongReplies(), &BrokenSessions()})
    all.insert(all.end(), group->begin(), group->end());
  return all;
}

bool IsAsExpected(const Observed& observed, const Expectation& expected) {
  return observed.met && observed.sent == expected.sent && observed.verdicts == expected.verdicts &&
         observed.exitStatus == expected.exitStatus;
}

std::string NameOf(const Case& what) {
  static constexpr std::array kNames{"test", "leakage", "insulation", "sequence"};
  return std::string(kNames.at(static_cast<std::size_t>(what.kind))) + ", \"" + what.fault + "\" at " +
         what.command + ", attempt " + std::to_string(what.attempt);
}

/// Runs them and reports what must never be.
std::vector<Observed> RunAll(const FaultRig& rig, const std::vector<Expectation>& expectations) {
  std::vector<Case> cases;
  for (const auto& expected : expectations) cases.push_back(expected.what);
  auto observed = rig.RunAll(cases);
  for (std::size_t i = 0; i < cases.size(); ++i) {
    for (const auto& offence : observed[i].offences)
      ADD_FAILURE() << NameOf(cases[i]) << " (" << observed[i].Text() << "): " << offence;
  }
  return observed;
}

class FaultMatrix : public testing::TestWithParam<FaultRows> {};

// Each fault at every command of a test and of a sequence, in each of its three attempts.
TEST_P(FaultMatrix, EndsAsTheRowsSayAndNeverPassesUnmeasured) {
  std::vector<Expectation> expectations;
  AddRows(Kind::kTest, GetParam().fault, GetParam().test, kAttempts, expectations);
  AddRows(Kind::kSequence, GetParam().fault, GetParam().sequence, kAttempts, expectations);
  // What a fault does to a reading does not depend on its test.
  AddRows(Kind::kLeakage, GetParam().fault, GetParam().test, 1, expectations);
  AddRows(Kind::kInsulation, GetParam().fault, RowsOfInsulation(GetParam()), 1, expectations);

  const auto observed = RunAll(FaultRig(kTimeScale, kAtOnce), expectations);
  std::vector<Expectation> again;
  for (std::size_t i = 0; i < expectations.size(); ++i) {
    if (IsAsExpected(observed[i], expectations[i])) continue;
    std::cout << "again, with more time: " << NameOf(expectations[i].what) << ", which was \""
              << observed[i].Text() << "\"\n";
    again.push_back(expectations[i]);
  }
  if (again.empty()) return;

  const auto repeated = RunAll(FaultRig(kPatientTimeScale, kPatientlyAtOnce), again);
  for (std::size_t i = 0; i < again.size(); ++i) {
    EXPECT_TRUE(repeated[i].met) << NameOf(again[i].what) << ": the run never met the fault";
    EXPECT_EQ(repeated[i].sent, again[i].sent) << NameOf(again[i].what);
    EXPECT_EQ(repeated[i].verdicts, again[i].verdicts) << NameOf(again[i].what);
    EXPECT_EQ(repeated[i].exitStatus, again[i].exitStatus) << NameOf(again[i].what);
  }
}

std::string NameOfFault(const testing::TestParamInfo<FaultRows>& info) {
  std::string name = info.param.fault;
  std::replace_if(
      name.begin(), name.end(), [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(EveryCommandAndAttempt, FaultMatrix, testing::ValuesIn(AllFaults()), NameOfFault);

TEST(FaultMatrixTest, NoCommandIsLeftOut) {
  for (const auto& rows : AllFaults()) {
    std::vector<std::string> test, sequence;
    for (const Row& row : rows.test) test.emplace_back(row.command);
    for (const Row& row : rows.sequence) sequence.emplace_back(row.command);
    EXPECT_EQ(test, CommandsOf(Kind::kTest)) << rows.fault;
    EXPECT_EQ(sequence, CommandsOf(Kind::kSequence)) << rows.fault;
  }
}

}  // namespace
}  // namespace faults
