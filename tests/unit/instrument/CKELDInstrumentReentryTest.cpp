// Calls back into the link while it waits, and from inside its events.
#include <gtest/gtest.h>

#include <algorithm>

#include "instrument/CKELDInstrument.h"
#include "tests/unit/instrument/LinkBench.h"

namespace instrument_test {
namespace {

/// More pump calls than any run here has.
constexpr int kMostPumps = 1000;
/// Three attempts at each of the two commands that end a session, after a whole exchange of three attempts.
constexpr milliseconds kLongestStop(3 * 16500);

bool Contains(const Texts& texts, const std::string& text) {
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

/// Whether the tester is out of remote mode, and any session was ended by "EREM".
bool SessionIsOver(LinkBench& link) {
  const bool entered = Contains(link.Bench().Wire().Received(), "irem,0.1,0,Ohm");
  return !link.Bench().Tester().InRemoteMode() && (!entered || link.Sent().back() == "EREM");
}

/// The behaviour of the tester.
enum class Kind { kGood, kSlow, kMute };

void Set(LinkBench& link, Kind kind) {
  if (kind == Kind::kMute) link.Script({});
  if (kind == Kind::kSlow) {
    // Every reply takes a while, so that every wait has pump calls of its own.
    link.Bench().Line().AnswerBy([&link](const std::string& command) {
      std::string reply = command;
      for (int i = 0; i < 4; ++i) reply[static_cast<std::size_t>(i)] |= 0x20;
      link.Bench().Line().Reply(reply + ",0.1,0,Ohm", milliseconds(1500));
    });
  }
}

/// Runs 410 to its end with the action inside each pump call in turn; `check` looks at the outcome.
void AtEveryPump(Kind kind, const std::function<void(LinkBench&)>& action,
                 const std::function<void(LinkBench&)>& check) {
  int pumps = 0;
  for (bool reached = true; reached && pumps < kMostPumps; ++pumps) {
    SCOPED_TRACE("pump call " + std::to_string(pumps));
    LinkBench link;
    Set(link, kind);
    link.Link()->ConnectMTI();
    const auto done = link.AtPump(pumps, [&] { action(link); });
    // Not held here: the action may release the last reference.
    link.Link()->RunMtiTest(410, 0);
    reached = *done;
    if (reached) check(link);
    if (testing::Test::HasFailure()) return;
  }
  EXPECT_GT(pumps, 6);
  EXPECT_LT(pumps, kMostPumps);
}

/// A connected link.
class ReentryOrderTest : public testing::Test {
 protected:
  ReentryOrderTest() { link_.Link()->ConnectMTI(); }
  LinkBench link_;
};

class ReentryTest : public testing::TestWithParam<Kind> {};

TEST_P(ReentryTest, DisconnectEndsSessionAndRun) {
  std::size_t sent = 0;
  milliseconds stopped{};
  AtEveryPump(
      GetParam(),
      [&](LinkBench& link) {
        link.Link()->DisconnectMTI();
        sent = link.Sent().size();
        stopped = link.Elapsed();
        EXPECT_EQ(link.Bench().Wire().All().back().kind, WireRecord::Kind::kClosed);
      },
      [&](LinkBench& link) {
        EXPECT_EQ(link.Sent().size(), sent) << "the run went on";
        EXPECT_EQ(link.Elapsed(), stopped) << "the run did not end immediately";
        EXPECT_LE(stopped, kLongestStop);
        EXPECT_TRUE(SessionIsOver(link));
        EXPECT_TRUE(link.Raised().back() == "7 0" || link.Raised().back() == "7 410") << link.Raised().back();
      });
}

TEST_P(ReentryTest, DisconnectTwiceSendsEverythingOnce) {
  AtEveryPump(
      GetParam(),
      [](LinkBench& link) {
        bool called = false;
        link.onResult = [&](std::int32_t&, std::int16_t) {
          called = true;
          const auto before = link.Sent();
          link.Link()->DisconnectMTI();
          EXPECT_EQ(link.Sent(), before);
        };
        link.Application().Post([&link] { link.Link()->DisconnectMTI(); });
        link.Link()->DisconnectMTI();
        link.onResult = nullptr;
      },
      [&](LinkBench& link) {
        const auto sent = link.Sent();
        const std::ptrdiff_t most = GetParam() == Kind::kMute ? 3 : 1;
        EXPECT_LE(std::count(sent.begin(), sent.end(), "EREM"), most);
        EXPECT_LE(std::count(sent.begin(), sent.end(), "STST,210,0"), most);
        EXPECT_EQ(link.Bench().Wire().Count(WireRecord::Kind::kClosed), 1U);
        EXPECT_TRUE(SessionIsOver(link));
      });
}

TEST_P(ReentryTest, AnotherRunStopsTheFirst) {
  Texts sent;
  AtEveryPump(
      GetParam(),
      [&](LinkBench& link) {
        link.Link()->RunMtiTest(420, 0);
        sent = link.Sent();
      },
      [&](LinkBench& link) {
        EXPECT_EQ(link.Sent(), sent) << "the first run went on";
        EXPECT_EQ(link.Raised().back(), Contains(sent, "STST,410,0") ? "7 410" : link.Raised().back());
        EXPECT_FALSE(Contains(link.Raised(), "5 410"));
        link.Link()->DisconnectMTI();
        EXPECT_TRUE(SessionIsOver(link));
      });
}

TEST_P(ReentryTest, RunDuringDisconnectIsRefused) {
  AtEveryPump(
      GetParam(),
      [&](LinkBench& link) {
        link.Application().Post([&link] { link.Link()->RunMtiTest(420, 0); });
        link.Link()->DisconnectMTI();
      },
      [&](LinkBench& link) {
        EXPECT_FALSE(Contains(link.Sent(), "STST,420,0"));
        EXPECT_TRUE(SessionIsOver(link));
      });
}

TEST_P(ReentryTest, ReleaseRaisesNoEvents) {
  std::size_t told = 0;
  AtEveryPump(
      GetParam(),
      [&](LinkBench& link) {
        told = link.Raised().size();
        link.Release();
      },
      [&](LinkBench& link) { EXPECT_EQ(link.Raised().size(), told); });
}

TEST_P(ReentryTest, DisconnectAndReleaseEndTheSession) {
  AtEveryPump(
      GetParam(),
      [](LinkBench& link) {
        const auto held = link.Link();
        link.Release();
        held->DisconnectMTI();
      },
      [](LinkBench& link) {
        EXPECT_TRUE(SessionIsOver(link));
        EXPECT_FALSE(link.Bench().Line().Line()->Connected());
      });
}

TEST_P(ReentryTest, ReconnectedPortGetsNothingOfTheFirstRun) {
  std::size_t sent = 0;
  AtEveryPump(
      GetParam(),
      [&](LinkBench& link) {
        link.Link()->DisconnectMTI();
        link.Link()->ConnectMTI();
        sent = link.Sent().size();
      },
      [&](LinkBench& link) { EXPECT_EQ(link.Sent().size(), sent); });
}

TEST(ReentryRunTest, RunAfterReconnectInsideAWaitIsComplete) {
  AtEveryPump(
      Kind::kGood,
      [](LinkBench& link) {
        link.Link()->DisconnectMTI();
        link.Link()->ConnectMTI();
        link.Link()->RunMtiTest(420, 0);
        EXPECT_EQ(link.Raised().back(), "5 420");
      },
      [](LinkBench& link) {
        EXPECT_TRUE(Contains(link.Raised(), "5 420"));
        EXPECT_FALSE(Contains(link.Raised(), "5 410"));
        link.Link()->DisconnectMTI();
        EXPECT_TRUE(SessionIsOver(link));
      });
}

TEST_P(ReentryTest, UnplugEndsTheRunWithoutAnAnswer) {
  AtEveryPump(
      GetParam(), [](LinkBench& link) { link.Bench().Line().Unplug(); },
      [](LinkBench& link) {
        EXPECT_EQ(link.Raised().back().substr(0, 1), "7");
        EXPECT_LE(link.Elapsed(), milliseconds(3 * 16500));
      });
}

INSTANTIATE_TEST_SUITE_P(Testers, ReentryTest, testing::Values(Kind::kGood, Kind::kSlow, Kind::kMute),
                         [](const auto& tester) {
                           return std::string(tester.param == Kind::kGood   ? "Good"
                                              : tester.param == Kind::kSlow ? "Slow"
                                                                            : "Mute");
                         });

/// Which event of a run the handler acts on: its place among everything that is raised.
class EventReentryTest : public testing::TestWithParam<int> {
 protected:
  /// Acts in the event of that number, in a run of 410 with the simulated tester.
  void Run(const std::function<void()>& action) {
    link_.Link()->ConnectMTI();
    const auto act = [this, action, left = std::make_shared<int>(GetParam())] {
      if ((*left)-- == 0) action();
    };
    link_.onData = [act](const keld::instrument::MtiDataArray&) { act(); };
    link_.onResult = [act](std::int32_t&, std::int16_t) { act(); };
    // Not held here: the action may release the last reference.
    link_.Link()->RunMtiTest(410, 0);
  }

  LinkBench link_;
};

TEST_P(EventReentryTest, DisconnectFromAHandler) {
  std::size_t sent = 0;
  Run([&] {
    link_.Link()->DisconnectMTI();
    sent = link_.Sent().size();
  });
  EXPECT_EQ(link_.Sent().size(), sent);
  EXPECT_EQ(link_.Sent().back(), "EREM");
  EXPECT_TRUE(SessionIsOver(link_));
  EXPECT_FALSE(link_.Bench().Line().Line()->Connected());
}

TEST_P(EventReentryTest, DisconnectAndReleaseFromAHandler) {
  std::size_t told = 0;
  std::weak_ptr<keld::instrument::CKELDInstrument> left = link_.Link();
  Run([&] {
    const auto held = link_.Link();
    link_.Release();
    told = link_.Raised().size();
    held->DisconnectMTI();
  });
  EXPECT_EQ(link_.Raised().size(), told);
  EXPECT_TRUE(SessionIsOver(link_));
  EXPECT_TRUE(left.expired());
  EXPECT_TRUE(link_.Application().Forms().empty());
}

TEST_P(EventReentryTest, ReleaseFromAHandler) {
  std::weak_ptr<keld::instrument::CKELDInstrument> left = link_.Link();
  Run([&] { link_.Release(); });
  EXPECT_TRUE(left.expired());
}

TEST_P(EventReentryTest, AnotherRunFromAHandler) {
  std::size_t sent = 0;
  Run([&] {
    link_.Link()->RunMtiTest(420, 0);
    sent = link_.Sent().size();
    EXPECT_EQ(link_.Raised().back(), "5 420");
  });
  EXPECT_EQ(link_.Sent().size(), sent);
  link_.Link()->DisconnectMTI();
  EXPECT_TRUE(SessionIsOver(link_));
}

INSTANTIATE_TEST_SUITE_P(Events, EventReentryTest, testing::Range(0, 4));

TEST_F(ReentryOrderTest, InterruptedRunLeavesTheSessionOpen) {
  link_.At(milliseconds(4000), [&] { link_.Link()->RunMtiTest(420, 0); });
  Set(link_, Kind::kSlow);
  link_.Link()->RunMtiTest(410, 0);
  EXPECT_EQ(link_.Raised().back(), "7 0");
  link_.Restart();
  link_.Link()->DisconnectMTI();
  EXPECT_EQ(link_.Sent(), (Texts{"STST,210,0", "EREM"}));
}

TEST_F(ReentryOrderTest, EveryHandlerGetsTheIdentity) {
  link_.Script(GoodAnswers());
  link_.onData = [&](const keld::instrument::MtiDataArray&) { link_.Link()->DisconnectMTI(); };
  keld::instrument::MtiDataArray heard;
  const auto second =
      link_.Link()->GotMtiData().Subscribe([&](const keld::instrument::MtiDataArray& data) { heard = data; });
  link_.Link()->RunMtiTest(410, 0);
  EXPECT_EQ(link_.Sent().back(), "EREM");
  EXPECT_EQ(heard[1], orvik::Variant(std::string("4711")));
}

/// "IREM" is answered after 1.5 seconds, the end of the session immediately.
void AnswerSlowly(LinkBench& link) {
  link.Bench().Line().AnswerBy([&](const std::string& command) {
    if (command == "IREM") link.Bench().Line().Reply("irem,KELD(IN),4711,1.05", milliseconds(1500));
    if (command == "STST,210,0") link.Bench().Line().Reply("stst,210,0");
    if (command == "EREM") link.Bench().Line().Reply("erem");
  });
}

TEST_F(ReentryOrderTest, DisconnectDuringIremWaitsAndEndsTheSession) {
  AnswerSlowly(link_);
  link_.At(milliseconds(4000), [&] { link_.Link()->DisconnectMTI(); });
  link_.Link()->RunMtiTest(410, 0);
  EXPECT_EQ(link_.SentAt(),
            (std::vector{milliseconds(3500), milliseconds(5000 + 3500), milliseconds(5000 + 7000)}));
  EXPECT_EQ(link_.Raised(), (Texts{"4 210", "2 0", "7 0"}));
}

TEST(ReentryRunTest, StrayMessagesDoNotEndTheWaitForIrem) {
  for (const Texts& stray : {Texts{"gres,410,0,1,0,Ohm"}, Texts{"stst", "erem", "ERRM,1003"}}) {
    LinkBench link;
    link.Link()->ConnectMTI();
    AnswerSlowly(link);
    link.At(milliseconds(4000), [&] {
      for (const auto& message : stray) link.Bench().Line().Reply(message);
      link.Link()->DisconnectMTI();
    });
    link.Link()->RunMtiTest(410, 0);
    EXPECT_EQ(link.Sent(), (Texts{"IREM", "STST,210,0", "EREM"}));
    EXPECT_EQ(link.SentAt().back(), milliseconds(5000 + 7000));
    EXPECT_EQ(link.Raised(), (Texts{"4 210", "2 0", "7 0"}));
  }
}

TEST_F(ReentryOrderTest, ManyStrayMessagesDoNotExtendTheTimeOut) {
  link_.Script({});
  link_.At(milliseconds(4000), [&] {
    for (int i = 0; i < 100; ++i) link_.Bench().Line().Reply("stst", milliseconds(50 * i));
    link_.Link()->DisconnectMTI();
  });
  link_.Link()->RunMtiTest(410, 0);
  EXPECT_EQ(link_.Elapsed(), milliseconds(5500));
  EXPECT_EQ(link_.Raised(), (Texts{"MessageSent 6 0 0", "7 0"}));
}

TEST_F(ReentryOrderTest, UnplugEndsTheWaitForIrem) {
  link_.Script({});
  link_.At(milliseconds(4000), [&] {
    link_.Bench().Line().Reply("stst");
    link_.At(milliseconds(500), [&] { link_.Bench().Line().Unplug(); });
    link_.Link()->DisconnectMTI();
  });
  link_.Link()->RunMtiTest(410, 0);
  EXPECT_EQ(link_.Elapsed(), milliseconds(4500));
}

TEST_F(ReentryOrderTest, WaitForIremEndsAtTheTimeOut) {
  link_.Script({});
  link_.At(milliseconds(4000), [&] { link_.Link()->DisconnectMTI(); });
  link_.Link()->RunMtiTest(410, 0);
  EXPECT_EQ(link_.Elapsed(), milliseconds(5500));
  EXPECT_EQ(link_.Raised(), (Texts{"MessageSent 6 0 0", "7 0"}));
}

TEST_F(ReentryOrderTest, DisconnectInTheFirstPauseEndsIt) {
  link_.At(milliseconds(1000), [&] { link_.Link()->DisconnectMTI(); });
  link_.Link()->RunMtiTest(410, 0);
  EXPECT_TRUE(link_.Sent().empty());
  EXPECT_EQ(link_.Elapsed(), milliseconds(1000));
  EXPECT_EQ(link_.Raised(), (Texts{"MessageSent 6 0 0", "7 0"}));
}

}  // namespace
}  // namespace instrument_test
