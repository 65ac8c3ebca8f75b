#include <gtest/gtest.h>

#include <map>
#include <set>

#include "tester/BuiltInProfiles.h"
#include "tester/FaultScript.h"
#include "tester/SeededFaults.h"
#include "tests/unit/tester/TestTools.h"

namespace sim {
namespace {

using test::Ask;

constexpr const char* kSession = "IREM\r\nSTST,410,0\r\nGRES,410,0\r\nSTST,210,0\r\nEREM\r\n";

/// What a tester with these faults says in many sessions, and the faults as lines of a script.
struct Heard {
  std::vector<std::string> said;  ///< in each session
  std::string script;
};

template <class MakeFaults>
Heard Listen(MakeFaults makeFaults, int sessions) {
  Heard heard;
  Tester tester(MakeBuiltInProfile("sound-class-1").value());
  tester.UseFaults(makeFaults(heard));
  for (int i = 0; i < sessions; ++i) {
    heard.said.push_back(Ask(tester, kSession));
    if (tester.HungUp()) tester.PlugIn();
  }
  return heard;
}

Heard ListenToSeed(std::uint64_t seed, double rate, int sessions = 60) {
  return Listen(
      [&](Heard& heard) {
        return std::make_shared<SeededFaults>(
            seed, rate, [&heard](const std::string& line) { heard.script += line + "\n"; });
      },
      sessions);
}

TEST(SeededFaultsTest, SameSeed_MakesTheSameFaults) {
  const auto first = ListenToSeed(42, 0.5);
  const auto second = ListenToSeed(42, 0.5);
  EXPECT_EQ(first.said, second.said);
  EXPECT_EQ(first.script, second.script);
  EXPECT_NE(ListenToSeed(43, 0.5).script, first.script);
}

TEST(SeededFaultsTest, SeedMeansTheSameOnEveryMachine) {
  EXPECT_EQ(ListenToSeed(1, 0.5, 2).script,
            "at ANY 2 error 18382\nat ANY 5 shorten 24\nat ANY 6 stall 7 383\n"
            "at ANY 7 error 1002\nat ANY 9 error 1003\n");
}

TEST(SeededFaultsTest, PrintsAScriptThatDoesTheSame) {
  const auto drawn = ListenToSeed(7, 0.4);
  const auto scripted =
      Listen([&](Heard&) { return std::make_shared<FaultScript>(drawn.script, "printed"); }, 60);
  EXPECT_EQ(scripted.said, drawn.said);
}

TEST(SeededFaultsTest, SpoilsTheGivenShareOfReplies) {
  const auto count = [](const Heard& heard) {
    return std::count(heard.script.begin(), heard.script.end(), '\n');
  };
  const auto tenth = count(ListenToSeed(3, 0.1, 1000));
  EXPECT_GT(tenth, 300);
  EXPECT_LT(tenth, 600);
  EXPECT_GT(count(ListenToSeed(3, 1.0, 200)), 600) << "a pulled cable ends a session early";
}

TEST(SeededFaultsTest, DrawsEveryKindButReplyAndHangUp) {
  std::istringstream lines(ListenToSeed(5, 1.0, 300).script);
  std::set<std::string> words;
  for (std::string at, any, nth, word; lines >> at >> any >> nth >> word;) {
    words.insert(word);
    std::getline(lines, at);
  }
  for (const auto& form : FaultForms()) {
    const bool drawn = form.kind != FaultKind::Reply && form.kind != FaultKind::HangUp;
    EXPECT_EQ(words.count(std::string(form.word)), drawn ? 1u : 0u) << form.word;
  }
}

}  // namespace
}  // namespace sim
