// The commands of the link, their times, and the states that the replies give.
#include <gtest/gtest.h>

#include "OrvikTypeLib/HostError.h"
#include "instrument/CKELDInstrument.h"
#include "tests/unit/instrument/LinkBench.h"

namespace instrument_test {
namespace {

using orvik::Variant;

Variant Text(const char* text) { return std::string(text); }

class CKELDInstrumentTest : public testing::Test {
 protected:
  keld::instrument::CKELDInstrument& Link() { return *link_.Link(); }
  /// Brings the link into remote mode and forgets how.
  void EnterRemote() {
    link_.Run(GoodAnswers());
    ASSERT_EQ(link_.Raised().back(), "5 410");
    link_.Restart();
  }

  LinkBench link_;
};

TEST_F(CKELDInstrumentTest, HasNoPortAndNoDataAtFirst) {
  EXPECT_EQ(Link().PortNumber(), 0);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(Link().MtiData(i), Text("NO VALUE")) << i;
}

TEST_F(CKELDInstrumentTest, ClockFormIsHiddenAndReleasedWithTheLink) {
  ASSERT_EQ(link_.Application().Forms().size(), 1U);
  EXPECT_EQ(link_.Application().Forms().front()->Name(), "FClock");
  EXPECT_FALSE(link_.Application().Forms().front()->Visible());
  link_.Release();
  EXPECT_TRUE(link_.Application().Forms().empty());
}

TEST_F(CKELDInstrumentTest, ConnectOpensTheAssignedPortAndSendsNothing) {
  Link().ConnectMTI();
  EXPECT_EQ(Link().PortNumber(), 1);
  ASSERT_EQ(link_.Bench().Wire().All().size(), 1U);
  EXPECT_EQ(link_.Bench().Wire().All()[0].kind, WireRecord::Kind::kOpened);
  EXPECT_EQ(link_.Bench().Wire().All()[0].text, "memory 9600,O,8,1");
}

TEST_F(CKELDInstrumentTest, ConnectWithoutAnAssignedPortChangesNothing) {
  link_.Bench().Unassign();
  Link().ConnectMTI();
  EXPECT_EQ(Link().PortNumber(), 0);
  EXPECT_TRUE(link_.Bench().Wire().All().empty());
}

TEST_F(CKELDInstrumentTest, CompleteRunReportsThreeStates) {
  Link().ConnectMTI();
  Link().RunMtiTest(410, 0);
  EXPECT_EQ(link_.Sent(), (Texts{"IREM", "STST,410,0", "GRES,410,0"}));
  EXPECT_EQ(link_.Raised(), (Texts{"GotMtiData", "3 0", "4 410", "5 410"}));
  EXPECT_EQ(Link().MtiData(0), Text("410"));
  EXPECT_EQ(Link().MtiData(4), Text("Ohm"));
}

TEST_F(CKELDInstrumentTest, EveryCommandIsPrecededByItsPause) {
  link_.Run(GoodAnswers());
  EXPECT_EQ(link_.SentAt(), (std::vector{milliseconds(3500), milliseconds(7000), milliseconds(10500)}));
  EXPECT_EQ(link_.Elapsed(), milliseconds(10500));
}

TEST_F(CKELDInstrumentTest, ASecondRunDoesNotEnterRemoteModeAgain) {
  Link().ConnectMTI();
  Link().RunMtiTest(410, 0);
  link_.Restart();
  Link().RunMtiTest(610, 0);
  EXPECT_EQ(link_.Sent(), (Texts{"STST,610,0", "GRES,610,0"}));
  EXPECT_EQ(link_.Raised(), (Texts{"4 610", "5 610"}));
}

TEST_F(CKELDInstrumentTest, SettingsWithoutALeadAreSentAsZero) {
  const std::pair<std::int16_t, const char*> settings[] = {{99, "0"},  {999, "0"},     {9999, "0"},
                                                           {0, "0"},   {1, "1"},       {10, "10"},
                                                           {98, "98"}, {1000, "1000"}, {-5, "-5"}};
  EnterRemote();
  for (const auto& [setting, sent] : settings) {
    link_.Restart();
    link_.Script({{"STST", {"stst"}}, {"GRES", {"gres"}}});
    Link().RunMtiTest(1220, setting);
    EXPECT_EQ(link_.Sent(), (Texts{std::string("STST,1220,") + sent, std::string("GRES,1220,") + sent}));
  }
}

TEST_F(CKELDInstrumentTest, IdentityIsRaisedBeforeTheState) {
  keld::instrument::MtiDataArray data;
  link_.onData = [&](const keld::instrument::MtiDataArray& received) { data = received; };
  link_.Run({{"IREM", {"irem,KELD(IN),4711,1.05"}}, {"STST", {"ERRM,1"}}});
  EXPECT_EQ(data, (keld::instrument::MtiDataArray{Text("KELD(IN)"), Text("4711"), Text("1.05"), Text(""),
                                                  Text("NO VALUE")}));
  EXPECT_EQ(link_.Raised(), (Texts{"GotMtiData", "3 0", "0 410"}));
}

TEST_F(CKELDInstrumentTest, AnUnansweredCommandIsSentThreeTimes) {
  link_.Run({});
  EXPECT_EQ(link_.Sent(), (Texts{"IREM", "IREM", "IREM"}));
  EXPECT_EQ(link_.SentAt(), (std::vector{milliseconds(3500), milliseconds(9000), milliseconds(14500)}));
  EXPECT_EQ(link_.Elapsed(), milliseconds(16500));
  EXPECT_EQ(link_.Raised(), (Texts{"7 0"}));
}

TEST_F(CKELDInstrumentTest, NoAnswerEndsRemoteMode) {
  for (const std::string mute : {"STST", "GRES"}) {
    EnterRemote();
    auto answers = GoodAnswers();
    answers[mute].clear();
    link_.Script(answers);
    Link().RunMtiTest(410, 0);
    EXPECT_EQ(link_.Raised().back(), "7 410") << mute;
    link_.Restart();
    Link().DisconnectMTI();
    EXPECT_EQ(link_.Raised(), (Texts{"MessageSent 6 0 0"})) << mute;
    EXPECT_TRUE(link_.Sent().empty()) << mute;
  }
}

TEST_F(CKELDInstrumentTest, TheThirdAttemptMayStillSucceed) {
  auto answers = GoodAnswers();
  answers["IREM"] = {"", "", "irem,KELD(IN),4711,1.05"};
  answers["GRES"] = {"", "gres,410,0,0.123,0,Ohm"};
  link_.Run(answers);
  EXPECT_EQ(link_.Sent(), (Texts{"IREM", "IREM", "IREM", "STST,410,0", "GRES,410,0", "GRES,410,0"}));
  EXPECT_EQ(link_.Raised(), (Texts{"GotMtiData", "3 0", "4 410", "5 410"}));
}

TEST_F(CKELDInstrumentTest, ReplyCountsUntilTheTimeOut) {
  for (const auto& [delay, sent] : {std::pair{1999, 1U}, std::pair{2001, 2U}}) {
    LinkBench link;
    link.Link()->ConnectMTI();
    link.Bench().Line().AnswerBy([&, wait = milliseconds(delay)](const std::string& command) {
      if (command == "IREM") link.Bench().Line().Reply("irem", wait);
    });
    link.onResult = [&](std::int32_t&, std::int16_t) { link.Link()->DisconnectMTI(); };
    link.Link()->RunMtiTest(410, 0);
    const auto commands = link.Sent();
    EXPECT_EQ(std::count(commands.begin(), commands.end(), "IREM"), sent) << delay;
    EXPECT_EQ(link.Raised()[1], "3 0") << delay;
  }
}

TEST_F(CKELDInstrumentTest, ReplyToAnotherCommandEndsTheExchange) {
  Link().ConnectMTI();
  for (const std::string reply : {"stst", "IREM", "Irem", "errm,1003", "iremx", "hello,1,2"}) {
    link_.Restart();
    link_.Script({{"IREM", {reply}}});
    Link().RunMtiTest(410, 0);
    EXPECT_EQ(link_.Sent(), (Texts{"IREM"})) << reply;
    EXPECT_EQ(link_.Raised(), (Texts{"1 0"})) << reply;
  }
}

TEST_F(CKELDInstrumentTest, AnUnexpectedReplyKeepsRemoteModeAndTheData) {
  EnterRemote();
  const Variant before = Link().MtiData(2);
  link_.Script({{"STST", {"gres,9,9,9,9,9"}}});
  Link().RunMtiTest(410, 0);
  EXPECT_EQ(link_.Raised(), (Texts{"1 410"}));
  EXPECT_EQ(Link().MtiData(2), before);
  link_.Restart();
  Link().RunMtiTest(410, 0);
  EXPECT_EQ(link_.Sent().front(), "STST,410,0");
}

TEST_F(CKELDInstrumentTest, ReplyDuringThePauseCountsAfterTheCommand) {
  link_.Connect({});
  link_.At(milliseconds(1000), [&] { link_.Bench().Line().Reply("irem,A,B,C"); });
  link_.At(milliseconds(3499), [&] { EXPECT_TRUE(link_.Raised().empty()); });
  Texts sent;
  link_.onResult = [&](std::int32_t& state, std::int16_t) {
    sent = link_.Sent();
    state = 0;
  };
  Link().RunMtiTest(410, 0);
  EXPECT_EQ(sent, Texts{"IREM"});
  EXPECT_EQ(link_.SentAt(), std::vector{milliseconds(3500)});
  EXPECT_EQ(link_.Elapsed(), milliseconds(3500));
  EXPECT_EQ(link_.Raised(), (Texts{"GotMtiData", "3 0"}));
}

TEST_F(CKELDInstrumentTest, ExchangeConsumesOneMessage) {
  auto answers = GoodAnswers();
  answers["IREM"] = {"irem,A,B,C\r\nirem,D,E,F"};
  link_.Run(answers);
  EXPECT_EQ(link_.Raised(), (Texts{"GotMtiData", "3 0", "1 410"}));
  EXPECT_EQ(Link().MtiData(0), Text("A"));
}

TEST_F(CKELDInstrumentTest, AHandlerThatChangesTheStateChangesTheRun) {
  link_.Connect(GoodAnswers());
  link_.onResult = [](std::int32_t& state, std::int16_t) {
    if (state == keld::instrument::CommsState::kTestStarted)
      state = keld::instrument::CommsState::kInstrumentError;
  };
  Link().RunMtiTest(410, 0);
  EXPECT_EQ(link_.Sent(), (Texts{"IREM", "STST,410,0"}));
}

TEST_F(CKELDInstrumentTest, DisconnectEndsTheSessionAndClosesThePort) {
  EnterRemote();
  Link().DisconnectMTI();
  EXPECT_EQ(link_.Sent(), (Texts{"STST,210,0", "EREM"}));
  EXPECT_EQ(link_.SentAt(), (std::vector{milliseconds(3500), milliseconds(7000)}));
  EXPECT_EQ(link_.Raised(), (Texts{"4 210", "2 0"}));
  EXPECT_EQ(link_.Bench().Wire().All().back().kind, WireRecord::Kind::kClosed);
  link_.Restart();
  Link().DisconnectMTI();
  EXPECT_EQ(link_.Raised(), (Texts{"MessageSent 6 0 0"}));
}

TEST_F(CKELDInstrumentTest, DisconnectWithoutASessionClosesThePort) {
  Link().ConnectMTI();
  Link().DisconnectMTI();
  EXPECT_EQ(link_.Raised(), (Texts{"MessageSent 6 0 0"}));
  EXPECT_TRUE(link_.Sent().empty());
  EXPECT_EQ(link_.Bench().Wire().All().back().kind, WireRecord::Kind::kClosed);
  EXPECT_EQ(link_.Elapsed(), milliseconds(0));
}

TEST_F(CKELDInstrumentTest, DisconnectBeforeConnectIsAllowed) {
  Link().DisconnectMTI();
  EXPECT_EQ(link_.Raised(), (Texts{"MessageSent 6 0 0"}));
}

TEST_F(CKELDInstrumentTest, DisconnectSendsBothCommandsToAMuteTester) {
  EnterRemote();
  link_.Script({});
  Link().DisconnectMTI();
  EXPECT_EQ(link_.Sent(), (Texts{"STST,210,0", "STST,210,0", "STST,210,0", "EREM", "EREM", "EREM"}));
  EXPECT_EQ(link_.Raised(), (Texts{"7 210", "7 0"}));
  EXPECT_EQ(link_.Elapsed(), milliseconds(33000));
  EXPECT_EQ(link_.Bench().Wire().All().back().kind, WireRecord::Kind::kClosed);
}

TEST_F(CKELDInstrumentTest, ALinkCanBeConnectedAgain) {
  EnterRemote();
  Link().DisconnectMTI();
  link_.Restart();
  link_.Run(GoodAnswers());
  EXPECT_EQ(link_.Raised(), (Texts{"GotMtiData", "3 0", "4 410", "5 410"}));
}

TEST_F(CKELDInstrumentTest, UnplugEndsTheWaitImmediately) {
  link_.Connect({});
  link_.At(milliseconds(4000), [&] { link_.Bench().Line().Unplug(); });
  Link().RunMtiTest(410, 0);
  EXPECT_EQ(link_.Sent(), (Texts{"IREM"}));
  EXPECT_EQ(link_.Raised(), (Texts{"7 0"}));
  EXPECT_EQ(link_.Elapsed(), milliseconds(4000));
}

TEST_F(CKELDInstrumentTest, UnplugDuringThePauseEndsTheRunAfterIt) {
  EnterRemote();
  link_.At(milliseconds(1000), [&] { link_.Bench().Line().Unplug(); });
  Link().RunMtiTest(410, 0);
  EXPECT_TRUE(link_.Sent().empty());
  EXPECT_EQ(link_.Raised(), (Texts{"7 410"}));
  EXPECT_EQ(link_.Elapsed(), milliseconds(3500));
}

TEST_F(CKELDInstrumentTest, PortThatCannotBeOpenedCountsAsClosed) {
  const auto other = keld::instrument::CKELDInstrument::Create();
  other->ConnectMTI();  // holds the line
  Link().ConnectMTI();
  EXPECT_EQ(Link().PortNumber(), 1);
  Link().RunMtiTest(410, 0);
  EXPECT_EQ(link_.Raised(), (Texts{"7 0"}));
  EXPECT_TRUE(link_.Sent().empty());
  EXPECT_EQ(link_.Elapsed(), milliseconds(3500));
}

TEST_F(CKELDInstrumentTest, EveryStateOfATestHasItsNumber) {
  link_.Connect({{"IREM", {"irem"}}, {"STST", {"ERRM,6002"}}});
  Link().RunMtiTest(-1, 0);
  EXPECT_EQ(link_.Raised(), (Texts{"GotMtiData", "3 0", "6002 -1"}));
}

}  // namespace
}  // namespace instrument_test
