#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>

#include "tests/faults/Rows.h"

namespace faults {
namespace {

/// Pauses and time-outs are divided by this: a reply may take 200 ms. All the runs of a fault go on at once,
/// since nearly all of their time is waiting.
constexpr int kTimeScale = 10;
constexpr std::size_t kAtOnce = 36;
/// On a machine that stood still for longer a reply came too late that was none of the fault's. Such a run is
/// had again with more time, and fewer at once. What must never be is not forgiven in either run.
constexpr int kPatientTimeScale = 3;
constexpr std::size_t kPatientlyAtOnce = 12;

struct Expectation {
  Case what;
  std::string cell;
};

/// "ISGcE P 0" with `command` sent once more.
std::string OnceMore(std::string cell, char command) { return cell.insert(cell.find(command), 1, command); }

void AddRows(Kind kind, const std::string& fault, const std::vector<Row>& rows,
             std::vector<Expectation>& expectations) {
  for (const Row& row : rows) {
    expectations.push_back({{kind, row.command, 1, fault}, row.first});
    expectations.push_back({{kind, row.command, 2, fault}, OnceMore(row.first, row.command)});
    expectations.push_back({{kind, row.command, 3, fault}, row.third});
  }
}

std::vector<FaultRows> AllFaults() {
  std::vector<FaultRows> all;
  for (const auto* group : {&LostReplies(), &WrongReplies(), &BrokenSessions()})
    all.insert(all.end(), group->begin(), group->end());
  return all;
}

bool IsAsExpected(const Observed& observed, const Expectation& expected) {
  return observed.met && observed.cell == expected.cell;
}

std::string NameOf(const Case& what) {
  return std::string(what.kind == Kind::kTest ? "test" : "sequence") + ", \"" + what.fault + "\" at " +
         what.command + ", attempt " + std::to_string(what.attempt);
}

/// Runs them and reports what must never be.
std::vector<Observed> RunAll(const FaultRig& rig, const std::vector<Expectation>& expectations) {
  std::vector<Case> cases;
  for (const auto& expected : expectations) cases.push_back(expected.what);
  auto observed = rig.RunAll(cases);
  for (std::size_t i = 0; i < cases.size(); ++i) {
    for (const auto& offence : observed[i].offences)
      ADD_FAILURE() << NameOf(cases[i]) << " (" << observed[i].cell << "): " << offence;
  }
  return observed;
}

class FaultMatrix : public testing::TestWithParam<FaultRows> {};

// Each fault at every command of a test and of a sequence, in each of its three attempts.
TEST_P(FaultMatrix, EndsAsTheRowsSayAndNeverPassesUnmeasured) {
  std::vector<Expectation> expectations;
  AddRows(Kind::kTest, GetParam().fault, GetParam().test, expectations);
  AddRows(Kind::kSequence, GetParam().fault, GetParam().sequence, expectations);

  const auto observed = RunAll(FaultRig(kTimeScale, kAtOnce), expectations);
  std::vector<Expectation> again;
  for (std::size_t i = 0; i < expectations.size(); ++i) {
    if (IsAsExpected(observed[i], expectations[i])) continue;
    std::cout << "again, with more time: " << NameOf(expectations[i].what) << ", which was \""
              << observed[i].cell << "\"\n";
    again.push_back(expectations[i]);
  }
  if (again.empty()) return;

  const auto repeated = RunAll(FaultRig(kPatientTimeScale, kPatientlyAtOnce), again);
  for (std::size_t i = 0; i < again.size(); ++i) {
    EXPECT_TRUE(repeated[i].met) << NameOf(again[i].what) << ": the run never met the fault";
    EXPECT_EQ(repeated[i].cell, again[i].cell) << NameOf(again[i].what);
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
    std::string test, sequence;
    for (const Row& row : rows.test) test += row.command;
    for (const Row& row : rows.sequence) sequence += row.command;
    EXPECT_EQ(test, CommandsOf(Kind::kTest)) << rows.fault;
    EXPECT_EQ(sequence, CommandsOf(Kind::kSequence)) << rows.fault;
  }
}

}  // namespace
}  // namespace faults
