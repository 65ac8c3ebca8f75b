#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iostream>
#include <utility>

#include "tests/system/faults/Rows.h"

namespace faults {
namespace {

/// Pauses and time-outs are divided by this, so that a reply may take 200 ms. All runs of a fault are
/// concurrent, since they mostly wait.
constexpr int kAttempts = 3;
constexpr int kTimeScale = 10;
constexpr std::size_t kAtOnce = 46;
/// On a busy machine a reply can be late without a fault. A run that ends otherwise than expected is repeated
/// with more time and fewer at once; an offence fails the test in either run.
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

using FaultCase = std::pair<std::string, FaultRows>;

std::vector<FaultCase> AllFaults() {
  std::vector<FaultCase> all;
  for (const auto* group : {&LostReplies(), &WrongReplies(), &BrokenSessions()})
    for (const auto& rows : *group)
      for (const auto& fault : rows.faults) all.emplace_back(fault, rows);
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

/// Runs them and reports every offence.
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

class FaultMatrix : public testing::TestWithParam<FaultCase> {};

// Each fault at every command of a test and of a sequence, in each of its three attempts.
TEST_P(FaultMatrix, EndsAsExpectedAndNeverPassesUnmeasured) {
  const auto& [fault, rows] = GetParam();
  std::vector<Expectation> expectations;
  AddRows(Kind::kTest, fault, rows.test, kAttempts, expectations);
  AddRows(Kind::kSequence, fault, rows.sequence, kAttempts, expectations);
  // The same rows for every test: the effect of a fault does not depend on it.
  AddRows(Kind::kLeakage, fault, rows.test, 1, expectations);
  AddRows(Kind::kInsulation, fault, RowsOfInsulation(rows), 1, expectations);

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

std::string NameOfFault(const testing::TestParamInfo<FaultCase>& info) {
  std::string name = info.param.first;
  std::replace_if(
      name.begin(), name.end(), [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(EveryCommandAndAttempt, FaultMatrix, testing::ValuesIn(AllFaults()), NameOfFault);

TEST(FaultMatrixTest, NoCommandIsLeftOut) {
  for (const auto& [fault, rows] : AllFaults()) {
    std::vector<std::string> test, sequence;
    for (const Row& row : rows.test) test.emplace_back(row.command);
    for (const Row& row : rows.sequence) sequence.emplace_back(row.command);
    EXPECT_EQ(test, CommandsOf(Kind::kTest)) << fault;
    EXPECT_EQ(sequence, CommandsOf(Kind::kSequence)) << fault;
  }
}

}  // namespace
}  // namespace faults
