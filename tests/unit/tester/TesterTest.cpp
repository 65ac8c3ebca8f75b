#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <stdexcept>

#include "tester/BuiltInProfiles.h"
#include "tester/Tester.h"
#include "tests/support/Seed.h"
#include "tests/unit/tester/TestTools.h"

namespace sim {
namespace {

using std::chrono::milliseconds;
using test::Ask;

constexpr std::string_view kIdentity = "irem,KELD(IN),SIM-0001,3.10\r\n";

class TesterTest : public testing::Test {
 protected:
  void EnterRemote() { ASSERT_EQ(Ask(tester_, "IREM\r\n"), kIdentity); }

  Tester tester_{MakeBuiltInProfile("sound-class-1").value()};
};

TEST_F(TesterTest, AnswersACompleteSession) {
  EXPECT_EQ(Ask(tester_, "IREM\r\n"), kIdentity);
  EXPECT_EQ(Ask(tester_, "STST,410,0\r\n"), "stst,410,0\r\n");
  EXPECT_EQ(Ask(tester_, "GRES,410,0\r\n"), "gres,410,0,0.123,0,Ohm\r\n");
  EXPECT_EQ(Ask(tester_, "STST,210,0\r\n"), "stst,210,0\r\n");
  EXPECT_EQ(Ask(tester_, "EREM\r\n"), "erem\r\n");
  EXPECT_FALSE(tester_.InRemoteMode());
}

TEST_F(TesterTest, IdentifiesTypeSerialAndFirmware) {
  Profile profile = MakeBuiltInProfile("leaky").value();
  profile.SetIdentity({"KELD(IN)", "A,\"7\" µ", "9"});
  Tester tester(profile);
  EXPECT_EQ(Ask(tester, "IREM\r"), "irem,KELD(IN),\"A,\"\"7\"\" \xB5\",9\r\n");
  EXPECT_EQ(Ask(tester, "QMTI\n"), "qmti,KELD(IN),\"A,\"\"7\"\" \xB5\",9\r\n");
}

TEST_F(TesterTest, RefusesAllButIdentity_OutsideRemoteMode) {
  EXPECT_EQ(Ask(tester_, "QMTI\r\n"), "qmti,KELD(IN),SIM-0001,3.10\r\n");
  EXPECT_FALSE(tester_.InRemoteMode());
  for (const char* command : {"STST,410,0\r\n", "GRES,410,0\r\n", "EREM\r\n", "#PON\r\n", "#POF\r\n"}) {
    EXPECT_EQ(Ask(tester_, command), "ERRM,1003\r\n") << command;
  }
}

TEST_F(TesterTest, ForgetsTheSession_OnLeavingRemoteMode) {
  EnterRemote();
  Ask(tester_, "#PON\r\nSTST,410,0\r\nEREM\r\n");
  EXPECT_FALSE(tester_.PowerOn());
  EXPECT_EQ(Ask(tester_, "GRES,410,0\r\n"), "ERRM,1003\r\n");
  EnterRemote();
  EXPECT_EQ(Ask(tester_, "GRES,410,0\r\n"), "ERRM,1003\r\n") << "the test was started in another session";
}

TEST_F(TesterTest, AnswersARepeatedCommand) {
  EnterRemote();
  EnterRemote();
  EXPECT_EQ(Ask(tester_, "STST,630,0\r\nSTST,630,0\r\n"), "stst,630,0\r\nstst,630,0\r\n");
  EXPECT_EQ(Ask(tester_, "GRES,630,0\r\nGRES,630,0\r\n"),
            "gres,630,0,341,0,\xB5"
            "A\r\ngres,630,0,341,0,\xB5"
            "A\r\n");
}

TEST_F(TesterTest, ReturnsTheStartedTestsResultOnly) {
  EnterRemote();
  EXPECT_EQ(Ask(tester_, "GRES,410,0\r\n"), "ERRM,1003\r\n");
  Ask(tester_, "STST,910,3\r\n");
  EXPECT_EQ(Ask(tester_, "GRES,910,4\r\n"), "ERRM,1003\r\n");
  EXPECT_EQ(Ask(tester_, "GRES,410,0\r\n"), "ERRM,1003\r\n");
  EXPECT_EQ(Ask(tester_, "GRES,910,3\r\n"),
            "gres,910,3,2.3,0,\xB5"
            "A\r\n");
  Ask(tester_, "STST,410,0\r\n");
  EXPECT_EQ(Ask(tester_, "GRES,910,3\r\n"), "ERRM,1003\r\n");
}

TEST_F(TesterTest, RefusesATestItLacks_KeepsTheStartedOne) {
  EnterRemote();
  Ask(tester_, "STST,410,0\r\n");
  EXPECT_EQ(Ask(tester_, "STST,430,0\r\n"), "ERRM,6002\r\n");
  EXPECT_EQ(Ask(tester_, "GRES,430,0\r\n"), "ERRM,6002\r\n");
  EXPECT_EQ(Ask(tester_, "STST,0,0\r\n"), "ERRM,6002\r\n");
  EXPECT_EQ(Ask(tester_, "GRES,410,0\r\n"), "gres,410,0,0.123,0,Ohm\r\n");
}

TEST_F(TesterTest, ReportsOverloadAs1) {
  Tester tester(MakeBuiltInProfile("overloaded").value());
  EXPECT_EQ(Ask(tester, "IREM\r\nSTST,410,0\r\nGRES,410,0\r\n"),
            std::string(kIdentity) + "stst,410,0\r\ngres,410,0,19.99,1,Ohm\r\n");
}

TEST_F(TesterTest, SwitchesPowerInRemoteMode) {
  EnterRemote();
  EXPECT_EQ(Ask(tester_, "#PON\r\n"), "#pon\r\n");
  EXPECT_TRUE(tester_.PowerOn());
  EXPECT_EQ(Ask(tester_, "#POF\r\n"), "#pof\r\n");
  EXPECT_FALSE(tester_.PowerOn());
}

TEST_F(TesterTest, RefusesUnknownCommands) {
  for (const char* command : {"HELP\r\n", "irem\r\n", " IREM\r\n", "IREM \r\n", ",\r\n", "STST410,0\r\n"}) {
    EXPECT_EQ(Ask(tester_, command), "ERRM,1001\r\n") << command;
  }
  EnterRemote();
  EXPECT_EQ(Ask(tester_, "HELP\r\n"), "ERRM,1001\r\n");
}

TEST_F(TesterTest, RefusesBadParameters) {
  EnterRemote();
  for (const char* command : {"STST", "STST,410", "STST,410,0,0", "STST,x,0", "STST,410,", "STST,410,11",
                              "STST,410,999", "STST,-1,0", "STST,40000,0", "STST, 410,0", "STST,410,\"0",
                              "GRES,410", "IREM,1", "EREM,0", "QMTI,", "#PON,1"}) {
    EXPECT_EQ(Ask(tester_, std::string(command) + "\r\n"), "ERRM,1002\r\n") << command;
  }
  EXPECT_TRUE(tester_.InRemoteMode());
  EXPECT_EQ(Ask(tester_, "STST,\"410\",\"0\"\r\n"), "stst,410,0\r\n") << "quoted where it need not be";
}

TEST_F(TesterTest, AnErrorReplyIsNeverAnswered) {
  EXPECT_EQ(Ask(tester_, "ERRM,1001\r\nERRM\r\n"), "");
  EXPECT_EQ(tester_.CommandsReceived(), 2u);
}

TEST_F(TesterTest, DroppedLinesAreCountedAndNotAnswered) {
  EXPECT_EQ(Ask(tester_,
                "IR\x1B"
                "EM\r\n" +
                    std::string(2000, 'I') + "\r\nQM\tTI\r\n\r\n"),
            "");
  EXPECT_EQ(tester_.LinesDropped(), 3u);
  EXPECT_EQ(tester_.CommandsReceived(), 0u);
  EnterRemote();
}

TEST_F(TesterTest, DelaysResultsByTheMeasuringTime) {
  const Instant start = std::chrono::hours(1000);
  tester_.Receive("IREM\r\nSTST,410,0\r\n", start);
  EXPECT_EQ(tester_.NextDue(), start);
  EXPECT_TRUE(tester_.TakeDue(start));
  EXPECT_TRUE(tester_.TakeDue(start));
  EXPECT_EQ(tester_.NextDue(), std::nullopt);
  EXPECT_FALSE(tester_.TakeDue(start));

  const Instant asked = start + milliseconds(3500);
  tester_.Receive("GRES,410,0\r\n", asked);
  EXPECT_EQ(tester_.NextDue(), asked + milliseconds(900));
  EXPECT_FALSE(tester_.TakeDue(asked + milliseconds(899)));
  const auto output = tester_.TakeDue(asked + milliseconds(900));
  ASSERT_TRUE(output);
  EXPECT_EQ(output->bytes, "gres,410,0,0.123,0,Ohm\r\n");
  EXPECT_EQ(output->due, asked + milliseconds(900));
  EXPECT_FALSE(output->hangUp);
}

TEST_F(TesterTest, AnswersCommandsAfterTheMeasurement) {
  tester_.Receive("IREM\r\nSTST,410,0\r\nGRES,410,0\r\n", Instant(0));
  tester_.Receive("EREM\r\n", milliseconds(100));
  EXPECT_EQ(tester_.TakeDue(milliseconds(100))->bytes, kIdentity);
  EXPECT_EQ(tester_.TakeDue(milliseconds(100))->bytes, "stst,410,0\r\n");
  EXPECT_FALSE(tester_.TakeDue(milliseconds(899)));
  EXPECT_EQ(tester_.TakeDue(milliseconds(900))->bytes, "gres,410,0,0.123,0,Ohm\r\n");
  EXPECT_EQ(tester_.TakeDue(milliseconds(900))->bytes, "erem\r\n");
}

TEST_F(TesterTest, DividesMeasuringTimesByTheTimeScale) {
  Tester fast(MakeBuiltInProfile("sound-class-1").value(), 1000);
  fast.Receive("IREM\r\nSTST,410,0\r\nGRES,410,0\r\n", Instant(5));
  fast.TakeDue(Instant(5));
  fast.TakeDue(Instant(5));
  EXPECT_EQ(fast.NextDue(), Instant(905));
  Tester slow(MakeBuiltInProfile("sound-class-1").value(), 0.5);
  slow.Receive("IREM\r\nSTST,410,0\r\nGRES,410,0\r\n", Instant(0));
  slow.TakeDue(Instant(0));
  slow.TakeDue(Instant(0));
  EXPECT_EQ(slow.NextDue(), milliseconds(1800));
}

TEST_F(TesterTest, RefusesATimeScaleOutOfRange) {
  for (const double scale : {0.0, -1.0, 1e-9, 1e12, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_THROW(Tester(Profile("p"), scale), std::invalid_argument) << scale;
  }
}

TEST_F(TesterTest, DropsCommands_WhenTooManyRepliesWait) {
  for (std::size_t i = 0; i < Tester::kMaxWaiting + 5; ++i) tester_.Receive("QMTI\r\n", Instant(0));
  EXPECT_EQ(tester_.LinesDropped(), 5u);
  std::size_t replies = 0;
  while (tester_.TakeDue(Instant(0))) ++replies;
  EXPECT_EQ(replies, Tester::kMaxWaiting);
  EnterRemote();
}

TEST_F(TesterTest, ReportsGoodAndDroppedLines) {
  std::string heard;
  tester_.OnLine([&](std::string_view bytes, bool dropped) {
    heard += (dropped ? "-" : "+") + std::string(bytes) + ";";
  });
  Ask(tester_, "IREM\r\nA\x01\r\n\r\nQMTI\r\n");
  EXPECT_EQ(heard, "+IREM;-A\x01;+QMTI;");
}

TEST_F(TesterTest, PassesEveryReplyToTheFaults) {
  struct Watch : Faults {
    void OnReply(const Exchange& exchange, Reply& reply) override {
      ASSERT_EQ(reply.lines.size(), 1u);
      EXPECT_EQ(exchange.line.substr(0, exchange.command.size()), exchange.command);
      seen += std::to_string(exchange.index) + std::string(exchange.command) + ">" + reply.lines[0].bytes;
    }
    std::string seen;
  };
  const auto watch = std::make_shared<Watch>();
  tester_.UseFaults(watch);
  Ask(tester_, "IREM\r\nERRM\r\nSTST,410,0\r\nNO\r\n");
  EXPECT_EQ(watch->seen, "1IREM>" + std::string(kIdentity) + "3STST>stst,410,0\r\n4NO>ERRM,1001\r\n");
}

TEST_F(TesterTest, AnswersEveryTestOfEveryProfile) {
  for (const auto& builtIn : BuiltInProfiles()) {
    const Profile profile = MakeBuiltInProfile(builtIn.name).value();
    Tester tester(profile);
    Ask(tester, "IREM\r\n");
    for (const int test : AllTests()) {
      for (int setting = 0; setting <= 10; ++setting) {
        const std::string what = std::to_string(test) + "," + std::to_string(setting);
        const Reading* reading = profile.Find(test, setting);
        if (!reading) {
          EXPECT_EQ(Ask(tester, "STST," + what + "\r\n"), "ERRM,6002\r\n");
          continue;
        }
        const std::string unit = reading->unit == "µA" ? "\xB5"
                                                         "A"
                                                       : reading->unit;
        EXPECT_EQ(Ask(tester, "STST," + what + "\r\n"), "stst," + what + "\r\n");
        EXPECT_EQ(
            Ask(tester, "GRES," + what + "\r\n"),
            "gres," + what + "," + reading->value + (reading->overload ? ",1," : ",0,") + unit + "\r\n");
      }
    }
  }
}

TEST_F(TesterTest, AnswersRandomInputInCompleteLines) {
  std::mt19937 random(support::Seed());
  const std::vector<std::string> pieces = {"IREM", "STST", "GRES", "EREM",       ",410", ",0",
                                           ",",    "\"",   "\r",   "\n",         "\r\n", "#PON",
                                           "ERRM", "\x00", "\xFF", "9999999999", " "};
  for (int round = 0; round < 5000; ++round) {
    std::string bytes;
    for (auto count = random() % 12; count > 0; --count) bytes += pieces[random() % pieces.size()];
    const std::string said = Ask(tester_, bytes);
    ASSERT_TRUE(said.empty() || said.substr(said.size() - 2) == "\r\n") << bytes;
  }
  Ask(tester_, "\r\n");
  EnterRemote();
}

}  // namespace
}  // namespace sim
