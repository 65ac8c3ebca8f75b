#include <gtest/gtest.h>

#include "tester/BuiltInProfiles.h"
#include "tester/FaultScript.h"
#include "tests/unit/tester/TestTools.h"

namespace sim {
namespace {

using support::TemporaryFolder;
using test::Ask;
using test::InputErrorOf;

constexpr std::string_view kIrem = "irem,KELD(IN),SIM-0001,3.10\r\n";

class FaultScriptTest : public testing::Test {
 protected:
  void Use(const std::string& script) { tester_.UseFaults(std::make_shared<FaultScript>(script, "f")); }

  Tester tester_{MakeBuiltInProfile("sound-class-1").value()};
};

TEST_F(FaultScriptTest, SpoilsReplies) {
  struct Exchanged {
    const char* command;
    std::string reply;
  };
  const std::string irem(kIrem), started = "stst,410,0\r\n", result = "gres,410,0,0.123,0,Ohm\r\n";
  struct {
    const char* name;
    const char* script;
    std::vector<Exchanged> exchanges;
    bool remote;  ///< the tester is in remote mode in the end
  } const cases[] = {
      {"drop one", "at IREM 1 drop", {{"IREM", ""}, {"IREM", irem}}, true},
      {"drop all", "at IREM drop", {{"IREM", ""}, {"IREM", ""}, {"IREM", ""}}, true},
      {"ANY counts all commands",
       "at ANY 3 drop",
       {{"IREM", irem}, {"STST,410,0", started}, {"GRES,410,0", ""}, {"GRES,410,0", result}},
       true},
      {"wrong-mnemonic", "at STST wrong-mnemonic", {{"IREM", irem}, {"STST,410,0", "xxxx,410,0\r\n"}}, true},
      {"error", "at STST error 1003", {{"IREM", irem}, {"STST,410,0", "ERRM,1003\r\n"}}, true},
      {"double", "at IREM double", {{"IREM", irem + irem}}, true},
      {"truncate loses the line end",
       "at IREM 1 truncate 6\nat IREM 2 truncate 1000",
       {{"IREM", "irem,K"}, {"IREM", "irem,KELD(IN),SIM-0001,3.10"}},
       true},
      {"shorten keeps the line end",
       "at IREM 1 shorten 6\nat IREM 2 shorten 0",
       {{"IREM", "irem,K\r\n"}, {"IREM", "\r\n"}},
       true},
      {"forget leaves remote mode after the reply",
       "at STST 1 forget",
       {{"IREM", irem}, {"STST,410,0", started}, {"GRES,410,0", "ERRM,1003\r\n"}},
       false},
      {"garble", "at EREM garble", {{"IREM", irem}, {"EREM", "er\x1Bm\r\n"}}, false},
      {"reply",
       "at GRES reply gres,420,0,0.1,0,µA",
       {{"IREM", irem},
        {"GRES,410,0",
         "gres,420,0,0.1,0,\xB5"
         "A\r\n"}},
       true},
      {"rules in their order",
       "at IREM error 5\nat IREM double\nat #PON drop",
       {{"IREM", "ERRM,5\r\nERRM,5\r\n"}, {"#PON", ""}},
       true},
  };
  for (const auto& row : cases) {
    SCOPED_TRACE(row.name);
    Tester tester(MakeBuiltInProfile("sound-class-1").value());
    tester.UseFaults(std::make_shared<FaultScript>(row.script, "f"));
    for (const auto& [command, reply] : row.exchanges)
      EXPECT_EQ(Ask(tester, std::string(command) + "\r\n"), reply) << command;
    EXPECT_EQ(tester.InRemoteMode(), row.remote);
  }
}

TEST_F(FaultScriptTest, DelayLetsLaterRepliesOvertake) {
  Use("at STST 1 delay 2500");
  tester_.Receive("IREM\r\nSTST,410,0\r\n", Instant(0));
  ASSERT_EQ(tester_.TakeDue(Instant(0))->bytes, kIrem);
  EXPECT_EQ(tester_.NextDue(), std::chrono::milliseconds(2500));
  EXPECT_FALSE(tester_.TakeDue(std::chrono::milliseconds(2499)));
  tester_.Receive("QMTI\r\n", std::chrono::milliseconds(2499));
  EXPECT_EQ(tester_.TakeDue(std::chrono::milliseconds(2499))->bytes, "qmti,KELD(IN),SIM-0001,3.10\r\n");
  EXPECT_EQ(tester_.TakeDue(std::chrono::milliseconds(2500))->bytes, "stst,410,0\r\n");
}

TEST_F(FaultScriptTest, DividesDelayByTimeScale) {
  Tester fast(MakeBuiltInProfile("sound-class-1").value(), 100);
  fast.UseFaults(std::make_shared<FaultScript>("at IREM delay 2500", "f"));
  fast.Receive("IREM\n", Instant(7));
  EXPECT_EQ(fast.NextDue(), Instant(7) + std::chrono::milliseconds(25));
}

TEST_F(FaultScriptTest, HangUpDropsWaitingReplies) {
  Use("at GRES hang-up");
  tester_.Receive("IREM\r\nSTST,410,0\r\nGRES,410,0\r\nQMTI\r\n", Instant(0));
  EXPECT_TRUE(tester_.TakeDue(Instant(0)));
  EXPECT_TRUE(tester_.TakeDue(Instant(0)));
  const auto last = tester_.TakeDue(std::chrono::milliseconds(900));
  ASSERT_TRUE(last);
  EXPECT_TRUE(last->hangUp);
  EXPECT_EQ(last->bytes, "");
  EXPECT_TRUE(tester_.HungUp());
  EXPECT_EQ(tester_.NextDue(), std::nullopt);
  EXPECT_EQ(Ask(tester_, "IREM\r\n"), "") << "a line that has been hung up is silent";
}

TEST_F(FaultScriptTest, BoundsRepeatedDoubling) {
  std::string script;
  for (int i = 0; i < 60; ++i) script += "at IREM double\n";
  Use(script);
  EXPECT_EQ(Ask(tester_, "IREM\r\n").size(), kMostReplyLines * kIrem.size());
}

TEST_F(FaultScriptTest, StallContinuesLaterOrNever) {
  Use("at IREM 1 stall 6 700\nat IREM 2 stall 4");
  tester_.Receive("IREM\r\n", Instant(0));
  EXPECT_EQ(tester_.TakeDue(Instant(0))->bytes, "irem,K");
  EXPECT_EQ(tester_.NextDue(), std::chrono::milliseconds(700));
  EXPECT_EQ(tester_.TakeDue(std::chrono::milliseconds(700))->bytes, "ELD(IN),SIM-0001,3.10\r\n");
  EXPECT_EQ(Ask(tester_, "IREM\r\n"), "irem");
}

TEST_F(FaultScriptTest, StallBeyondLine_DelaysLineEnd) {
  Use("at STST stall 1000 700");
  tester_.Receive("IREM\r\nSTST,410,0\r\n", Instant(0));
  ASSERT_TRUE(tester_.TakeDue(Instant(0)));
  EXPECT_EQ(tester_.TakeDue(Instant(0))->bytes, "stst,410,0");
  EXPECT_EQ(tester_.TakeDue(std::chrono::milliseconds(700))->bytes, "\r\n");
}

TEST_F(FaultScriptTest, NoisePrecedesOrFollowsTheReply) {
  Use("at IREM 1 noise\nat IREM 2 noise 900");
  LineReader reader;
  std::string good, dropped;
  const auto read = [&](const std::string& bytes) {
    reader.Feed(
        bytes, [&](std::string_view line) { good += std::string(line) + ";"; },
        [&](std::string_view line) { dropped += std::string(line) + ";"; });
  };
  read(Ask(tester_, "IREM\r\n"));
  EXPECT_EQ(good, "irem,KELD(IN),SIM-0001,3.10;") << "the reply itself is whole";
  EXPECT_FALSE(dropped.empty());
  tester_.Receive("IREM\r\n", Instant(0));
  EXPECT_EQ(tester_.TakeDue(Instant(0))->bytes, kIrem);
  EXPECT_EQ(tester_.NextDue(), std::chrono::milliseconds(900));
}

TEST_F(FaultScriptTest, UnplugKeepsTheSession) {
  Use("at STST 1 unplug 1500");
  tester_.Receive("IREM\r\nSTST,410,0\r\nSTST,41", Instant(0));
  ASSERT_TRUE(tester_.TakeDue(Instant(0)));
  const auto pulled = tester_.TakeDue(Instant(0));
  ASSERT_TRUE(pulled && pulled->hangUp);
  EXPECT_EQ(pulled->backAfter, std::chrono::milliseconds(1500));
  EXPECT_EQ(Ask(tester_, "GRES,410,0\r\n"), "");
  tester_.PlugIn();
  EXPECT_EQ(Ask(tester_, "GRES,410,0\r\n"), "gres,410,0,0.123,0,Ohm\r\n") << "what had begun is forgotten";
}

TEST_F(FaultScriptTest, NotesEachFault) {
  Use("at IREM drop\nat IREM stall 3 40");
  std::string notes;
  tester_.OnNote([&](std::string_view note) { notes += std::string(note) + ";"; });
  Ask(tester_, "IREM\r\nQMTI\r\n");
  EXPECT_EQ(notes, "fault: drop;fault: stall 3 40;");
}

TEST_F(FaultScriptTest, KeepsTheTesterWorking) {
  const std::string session = "IREM\r\nSTST,410,0\r\nGRES,410,0\r\nSTST,210,0\r\nEREM\r\n";
  const std::string good = Ask(tester_, session);
  for (const char* fault : {"drop", "wrong-mnemonic", "error 9", "double", "truncate 3", "shorten 3",
                            "stall 3", "noise", "garble", "reply x"}) {
    for (int nth = 1; nth <= 5; ++nth) {
      Use("at ANY " + std::to_string(nth) + " " + fault);
      EXPECT_NE(Ask(tester_, session), good) << fault << " at " << nth;
      EXPECT_EQ(Ask(tester_, session), good) << fault << " at " << nth;
    }
  }
}

struct BadLine {
  const char* line;
  const char* message;
};

class FaultScriptErrorTest : public testing::TestWithParam<BadLine> {};

TEST_P(FaultScriptErrorTest, NamesFileLineAndRemedy) {
  const std::string script = std::string("# faults\n") + GetParam().line;
  EXPECT_EQ(InputErrorOf([&] { FaultScript(script, "late.faults"); }),
            std::string("late.faults:2: ") + GetParam().message);
}

constexpr const char* kKnownFaults =
    "use delay MS, drop, double, truncate N, shorten N, stall N [MS], garble, noise [MS], wrong-mnemonic, "
    "error N, "
    "reply TEXT, forget, hang-up or unplug MS";

INSTANTIATE_TEST_SUITE_P(
    Lines, FaultScriptErrorTest,
    testing::Values(
        BadLine{"GRES drop", "'GRES drop' does not begin with 'at'; write it as: at COMMAND [NTH] FAULT"},
        BadLine{"at", "a command is missing after 'at'; name one such as GRES, or ANY"},
        BadLine{"at GRES 0 drop", "'0' is not a count; 1 is the first GRES of the session"},
        BadLine{"at GRES 1x drop", "'1x' is not a count; 1 is the first GRES of the session"},
        BadLine{"at GRES delay", "'delay' needs a whole number from 0 to 600000 and has ''"},
        BadLine{"at GRES delay 2.5", "'delay' needs a whole number from 0 to 600000 and has '2.5'"},
        BadLine{"at GRES error 40000", "'error' needs a whole number from 0 to 32767 and has '40000'"},
        BadLine{"at GRES stall", "'stall' needs a whole number from 0 to 1024 and has ''"},
        BadLine{"at GRES stall 3 x", "'stall' needs a whole number from 0 to 600000 and has 'x'"},
        BadLine{"at GRES noise 1 2", "'2' is too much after 'noise'; remove it"},
        BadLine{"at GRES unplug", "'unplug' needs a whole number from 0 to 600000 and has ''"},
        BadLine{"at GRES drop 3", "'3' is too much after 'drop'; remove it"},
        BadLine{"at GRES reply",
                "'reply' needs the line to send instead, such as: reply gres,410,0,9,0,Ohm"}));

TEST(FaultScriptFileTest, UnknownFault_ListsKnownOnes) {
  EXPECT_EQ(InputErrorOf([] { FaultScript("at GRES explode", "f"); }),
            std::string("f:1: 'explode' is not a fault; ") + kKnownFaults);
  EXPECT_EQ(InputErrorOf([] { FaultScript("at GRES 2", "f"); }),
            std::string("f:1: '' is not a fault; ") + kKnownFaults);
}

TEST(FaultScriptFileTest, LimitsReplyLength) {
  const std::string longest(kLongestReplyText, 'x');
  EXPECT_EQ(FaultScript("at GRES reply " + longest, "f").Size(), 1u);
  EXPECT_EQ(InputErrorOf([&] { FaultScript("at GRES reply " + longest + "x", "f"); }),
            "f:1: the line after 'reply' is too long; give at most 4096 characters");
}

TEST(FaultScriptFileTest, ReadsAFile) {
  const TemporaryFolder folder;
  const auto script =
      LoadFaultScript(folder.Write("f", "\n# nothing\n  at GRES drop\r\nat ANY 3 hang-up\r\n"));
  EXPECT_EQ(script->Size(), 2u);
  EXPECT_EQ(InputErrorOf([&] { LoadFaultScript(folder.Path("none")); }),
            folder.Path("none") + ": cannot be opened: No such file or directory");
}

}  // namespace
}  // namespace sim
