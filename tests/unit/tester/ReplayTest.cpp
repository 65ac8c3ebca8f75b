#include <gtest/gtest.h>

#include "tester/BuiltInProfiles.h"
#include "tester/Replay.h"
#include "tests/unit/tester/TestTools.h"

namespace sim {
namespace {

using std::chrono::milliseconds;
using test::Ask;

/// A session with a tester that lost a reply, spoke late, garbled a line and was unplugged.
constexpr const char* kLog =
    "2026-03-01T10:00:00.000000Z note /dev/ttyUSB0 9600,O,8,1\n"
    "2026-03-01T10:00:03.500000Z sent IREM\n"
    "2026-03-01T10:00:09.000000Z sent IREM\n"
    "2026-03-01T10:00:09.250000Z recv irem,KELD(IN),0417,2.71\n"
    "2026-03-01T10:00:13.000000Z sent STST,410,0\n"
    "2026-03-01T10:00:13.100000Z lost s\\x1Bst\\\\,410,0\n"
    "2026-03-01T10:00:18.500000Z note a reply was already waiting\n"
    "2026-03-01T10:00:18.500000Z sent STST,410,0\n"
    "2026-03-01T10:00:18.600000Z recv stst,410,0\n"
    "2026-03-01T10:00:22.000000Z sent GRES,410,0\n"
    "2026-03-01T10:00:23.000000Z note the line has failed\n"
    "2026-03-01T10:00:23.000001Z note closed\n"
    "2026-03-02T08:00:00.000000Z note /dev/ttyUSB0 9600,O,8,1\n"
    "2026-03-02T08:00:03.500000Z sent IREM\n"
    "2026-03-02T08:00:03.600000Z recv irem,KELD(IN),0417,2.71\n";

class ReplayTest : public testing::Test {
 protected:
  void Use(const std::string& log) {
    tester_.UseFaults(std::make_shared<Replay>(
        ParseWireLog(log, "w.log"), [this](const std::string& remark) { remarks_.push_back(remark); }));
  }

  Tester tester_{MakeBuiltInProfile("sound-class-1").value()};
  std::vector<std::string> remarks_;
};

TEST_F(ReplayTest, AnswersAsTheTesterDid) {
  Use(kLog);
  EXPECT_EQ(Ask(tester_, "IREM\r\n"), "") << "the first one was lost";
  EXPECT_EQ(Ask(tester_, "IREM\r\n"), "irem,KELD(IN),0417,2.71\r\n");
  EXPECT_EQ(Ask(tester_, "STST,410,0\r\n"), "s\x1Bst\\,410,0\r\n");
  EXPECT_EQ(Ask(tester_, "STST,410,0\r\n"), "stst,410,0\r\n");
  EXPECT_EQ(Ask(tester_, "GRES,410,0\r\n"), "");
  EXPECT_TRUE(tester_.HungUp());
  tester_.PlugIn();
  EXPECT_EQ(Ask(tester_, "IREM\r\n"), "irem,KELD(IN),0417,2.71\r\n");
  EXPECT_TRUE(remarks_.empty());
}

TEST_F(ReplayTest, UsesTheTimesOfTheLog) {
  Use(kLog);
  tester_.Receive("IREM\r\nIREM\r\n", Instant(0));
  EXPECT_EQ(tester_.NextDue(), milliseconds(250));
  EXPECT_TRUE(tester_.TakeDue(milliseconds(250)));
  tester_.Receive("STST,410,0\r\nSTST,410,0\r\n", milliseconds(300));
  EXPECT_EQ(tester_.TakeDue(milliseconds(400))->bytes, "s\x1Bst\\,410,0\r\n");
  EXPECT_EQ(tester_.TakeDue(milliseconds(400))->bytes, "stst,410,0\r\n");
  tester_.Receive("GRES,410,0\r\n", milliseconds(500));
  EXPECT_EQ(tester_.NextDue(), milliseconds(1500)) << "no measuring time is added";
  const auto pulled = tester_.TakeDue(milliseconds(1500));
  ASSERT_TRUE(pulled && pulled->hangUp);
  EXPECT_EQ(pulled->backAfter, milliseconds(1000)) << "the log goes on";
}

TEST_F(ReplayTest, HangsUp_AtTheEndOfAFailedLog) {
  Use("2026-03-01T10:00:00.000000Z sent IREM\n2026-03-01T10:00:01.000000Z note the line has failed\n");
  tester_.Receive("IREM\r\n", Instant(0));
  const auto pulled = tester_.TakeDue(milliseconds(1000));
  ASSERT_TRUE(pulled && pulled->hangUp);
  EXPECT_FALSE(pulled->backAfter);
}

TEST_F(ReplayTest, ReportsACommandMissingInTheLog) {
  Use(kLog);
  EXPECT_EQ(Ask(tester_, "IREM\r\nIREM\r\n"), "irem,KELD(IN),0417,2.71\r\n");
  EXPECT_EQ(Ask(tester_, "STST,420,0\r\n"), "stst,420,0\r\n");
  ASSERT_EQ(remarks_.size(), 1u);
  EXPECT_EQ(
      remarks_[0],
      "STST,420,0 is not in w.log at this point (line 5 has STST,410,0 next); answered as the simulated "
      "tester does");
  EXPECT_EQ(Ask(tester_, "STST,410,0\r\n"), "s\x1Bst\\,410,0\r\n") << "the log has not been left";
}

TEST_F(ReplayTest, NewSession_ContinuesAtTheNextOne) {
  Use(kLog);
  Ask(tester_, "IREM\r\nIREM\r\nSTST,410,0\r\n");
  EXPECT_EQ(Ask(tester_, "IREM\r\n"), "irem,KELD(IN),0417,2.71\r\n");
  EXPECT_TRUE(remarks_.empty());
  EXPECT_EQ(Ask(tester_, "EREM\r\n"), "erem\r\n");
  ASSERT_EQ(remarks_.size(), 1u);
  EXPECT_EQ(remarks_[0],
            "EREM is not in w.log at this point (the log has ended); answered as the simulated tester "
            "does");
}

TEST_F(ReplayTest, SendsEarlyLinesWithTheFirstReply) {
  Use("2026-03-01T10:00:00.000000Z recv gres,410,0,1,0,Ohm\n2026-03-01T10:00:01.000000Z sent IREM\n");
  EXPECT_EQ(Ask(tester_, "IREM\r\n"), "gres,410,0,1,0,Ohm\r\n");
}

TEST(WireLogTest, KeepsBlanksLettersAndOverlongLines) {
  const std::string overlong(1024, 'x');
  const auto wire = ParseWireLog(
      "2026-03-01T23:59:59.000000Z sent STST,410,0\r\n"
      "2026-03-02T00:00:00.500000Z recv  gres,3 ,µA \r\n"
      "2026-03-02T00:00:01.000000Z lost " +
          overlong +
          "\n"
          "2026-03-01T23:00:00.000000Z recv late\n",
      "w.log");
  ASSERT_EQ(wire.commands.size(), 1u);
  const auto& replies = wire.commands[0].replies;
  ASSERT_EQ(replies.size(), 3u);
  EXPECT_EQ(replies[0].bytes,
            " gres,3 ,\xB5"
            "A ");
  EXPECT_EQ(replies[0].after, milliseconds(1500)) << "over midnight";
  EXPECT_GT(replies[1].bytes.size(), 1024u) << "too long again";
  EXPECT_EQ(replies[2].after, milliseconds(0)) << "the clock was set back";
}

struct BadLog {
  const char* line;
  const char* message;
};

class WireLogErrorTest : public testing::TestWithParam<BadLog> {};

TEST_P(WireLogErrorTest, NamesFileLineAndRemedy) {
  const std::string log = std::string("2026-03-01T10:00:00.000000Z sent IREM\n") + GetParam().line + "\n";
  const std::string error = test::InputErrorOf([&] { ParseWireLog(log, "w.log"); });
  EXPECT_EQ(error.substr(0, 9), "w.log:2: ");
  EXPECT_NE(error.find(GetParam().message), std::string::npos) << error;
}

INSTANTIATE_TEST_SUITE_P(
    Lines, WireLogErrorTest,
    testing::Values(
        BadLog{"hello", "no time such as"}, BadLog{"2026-13-01T10:00:00.000000Z sent IREM", "no time"},
        BadLog{"2026-03-01T10:00:00Z sent IREM", "no time"},
        BadLog{"2026-03-01T10:00:00.000000Z told IREM", "'told' is not a direction"},
        BadLog{"2026-03-01T10:00:00.000000Z", "'' is not a direction"},
        BadLog{"2026-03-01T10:00:00.000000Z sent", "'sent' has no command"},
        BadLog{"2026-03-01T10:00:00.000000Z recv a\\q", "is not written as orvik-bench writes it"},
        BadLog{"2026-03-01T10:00:00.000000Z recv \xCE\xA9", "is not written as orvik-bench writes it"},
        BadLog{"2026-03-01T10:00:00.000000Z recv STST,410,0", "keld-sim's own trace"}));

TEST(WireLogTest, RefusesALogWithoutCommands) {
  const support::TemporaryFolder folder;
  const std::string path = folder.Write("w.log", "2026-03-01T10:00:00.000000Z note closed\n");
  EXPECT_EQ(test::InputErrorOf([&] { LoadWireLog(path); }),
            path + ": it has no sent command; give the wire log that orvik-bench wrote in a run");
}

}  // namespace
}  // namespace sim
