#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "OrvikTypeLib/HostError.h"
#include "toolkit/loop/EventLoop.h"

namespace host {
namespace {

using orvik::platform::Time;
using namespace std::chrono_literals;

class VirtualLoop : public testing::Test {
 protected:
  toolkit::loop::EventLoop loop{toolkit::loop::ClockKind::kVirtual, 1};
  std::vector<std::string> log;
};

TEST_F(VirtualLoop, StartsAtZeroAndDoesNotAdvance) {
  EXPECT_EQ(loop.Now(), Time(0));
  loop.Process();
  EXPECT_EQ(loop.Now(), Time(0));
}

TEST_F(VirtualLoop, WaitsUntilTheNextCall) {
  loop.CallAt(5s, [&] { log.push_back("five"); });
  loop.CallAt(3s, [&] { log.push_back("three"); });
  EXPECT_EQ(loop.Wait(1h), toolkit::loop::WaitOutcome::kProcessed);
  EXPECT_EQ(loop.Now(), 3s);
  EXPECT_EQ(log, (std::vector<std::string>{"three"}));
  EXPECT_EQ(loop.Wait(1h), toolkit::loop::WaitOutcome::kProcessed);
  EXPECT_EQ(loop.Now(), 5s);
}

TEST_F(VirtualLoop, WaitsUntilAnEarlierDeadline) {
  loop.CallAt(5s, [&] { log.push_back("five"); });
  EXPECT_EQ(loop.Wait(2s), toolkit::loop::WaitOutcome::kNothing);
  EXPECT_EQ(loop.Now(), 2s);
  EXPECT_TRUE(log.empty());
}

TEST_F(VirtualLoop, IsMonotonic) {
  loop.Wait(2s);
  loop.Wait(1s);
  EXPECT_EQ(loop.Now(), 2s);
  loop.CallAt(1s, [&] { log.push_back("late"); });
  EXPECT_EQ(loop.Wait(1h), toolkit::loop::WaitOutcome::kProcessed);
  EXPECT_EQ(loop.Now(), 2s);
}

TEST_F(VirtualLoop, DoesNotAdvanceForPendingWork) {
  loop.CallAt(1s, [&] { log.push_back("call"); });
  loop.Post([&] { log.push_back("posted"); });
  EXPECT_EQ(loop.Wait(1h), toolkit::loop::WaitOutcome::kProcessed);
  EXPECT_EQ(loop.Now(), Time(0));
  EXPECT_EQ(log, (std::vector<std::string>{"posted"}));
}

TEST_F(VirtualLoop, ReportsWhenNothingIsLeft) {
  EXPECT_EQ(loop.Wait(Time::max()), toolkit::loop::WaitOutcome::kNothingLeft);
  EXPECT_EQ(loop.Now(), Time(0));
  loop.CallAt(1s, [] {});
  EXPECT_EQ(loop.Wait(Time::max()), toolkit::loop::WaitOutcome::kProcessed);
}

TEST_F(VirtualLoop, RunsPostedWorkThenDueCalls) {
  for (int round = 0; round < 3; ++round) loop.CallAt(0s, [&] { log.push_back("call"); });
  for (int round = 0; round < 3; ++round) loop.Post([&] { log.push_back("posted"); });
  EXPECT_TRUE(loop.Process());
  EXPECT_EQ(log, (std::vector<std::string>{"posted", "posted", "posted", "call", "call", "call"}));
  EXPECT_FALSE(loop.Process());
}

TEST_F(VirtualLoop, IsFairToWorkThatRenewsItself) {
  int posts = 0;
  int calls = 0;
  std::function<void()> post = [&] { loop.Post(post), ++posts; };
  std::function<void()> call = [&] { loop.CallAt(0s, call), ++calls; };
  post();
  call();
  for (int round = 0; round < 10; ++round) loop.Process();
  EXPECT_EQ(posts, 11);
  EXPECT_EQ(calls, 11);
}

TEST_F(VirtualLoop, IsFairToCallsRenewedInThePast) {
  loop.Wait(10s);
  loop.Process();
  std::function<void()> renew = [&] { loop.CallAt(1s, renew); };
  renew();
  loop.CallAt(5s, [&] { log.push_back("other"); });
  loop.Process();
  EXPECT_EQ(log, (std::vector<std::string>{"other"}));
}

TEST_F(VirtualLoop, DoesNotRunAForgottenCall) {
  toolkit::loop::ILoop::Id second = 0;
  loop.CallAt(1s, [&] { loop.Forget(second); });
  second = loop.CallAt(1s, [&] { log.push_back("second"); });
  loop.Wait(1h);
  loop.Wait(2s);
  EXPECT_TRUE(log.empty());
}

TEST_F(VirtualLoop, IsReentrant) {
  loop.CallAt(1s, [&] {
    log.push_back("outer begins");
    while (loop.Now() < 3s) loop.Wait(3s);
    log.push_back("outer ends");
  });
  loop.CallAt(2s, [&] { log.push_back("inner"); });
  loop.Wait(1h);
  EXPECT_EQ(log, (std::vector<std::string>{"outer begins", "inner", "outer ends"}));
  EXPECT_EQ(loop.Now(), 3s);
}

TEST_F(VirtualLoop, RunsPostedWorkInANestedWait) {
  loop.Post([&] {
    loop.Process();
    log.push_back("first ends");
  });
  loop.Post([&] { log.push_back("second"); });
  loop.Process();
  EXPECT_EQ(log, (std::vector<std::string>{"second", "first ends"}));
}

TEST_F(VirtualLoop, ThrowsErrorsAndKeepsOtherWork) {
  loop.Post([] { throw std::runtime_error("broken"); });
  loop.Post([&] { log.push_back("second"); });
  loop.CallAt(0s, [&] { log.push_back("call"); });
  EXPECT_THROW(loop.Process(), std::runtime_error);
  EXPECT_TRUE(loop.Process());
  EXPECT_EQ(log, (std::vector<std::string>{"second", "call"}));
}

TEST_F(VirtualLoop, RejectsDescriptors) {
  try {
    loop.WatchReadable(0, [] {});
    FAIL() << "a device was accepted";
  } catch (const orvik::HostError& error) {
    EXPECT_EQ(error.Number(), 5);
    EXPECT_NE(error.Description().find("virtual clock"), std::string::npos);
  }
}

TEST_F(VirtualLoop, RaisesWokenOnce) {
  const auto woken = loop.Woken().Subscribe([&] { log.push_back("woken"); });
  loop.Wake();
  loop.Wake();
  EXPECT_EQ(loop.Wait(1h), toolkit::loop::WaitOutcome::kProcessed);
  EXPECT_EQ(log, (std::vector<std::string>{"woken"}));
  EXPECT_EQ(loop.Now(), Time(0));
}

TEST(Clock, RejectsAnInvalidScale) {
  for (const double scale : {0.0, -1.0, 1.0 / 0.0, 0.0 / 0.0})
    EXPECT_THROW(toolkit::loop::EventLoop(toolkit::loop::ClockKind::kReal, scale), orvik::HostError);
}

TEST(Clock, SleepsTheScaledTimeRoundedUp) {
  const toolkit::loop::Clock clock(toolkit::loop::ClockKind::kReal, 1000);
  const auto sleep = clock.SleepUntil(clock.Now() + 1000s);
  EXPECT_LE(sleep, 1s + 1us);
  EXPECT_GT(sleep, 0s);
  EXPECT_EQ(clock.SleepUntil(Time(0)), 0ns);
  EXPECT_EQ(toolkit::loop::Clock(toolkit::loop::ClockKind::kReal, 1).SleepUntil(Time::max()), 1h);
}

/// A pipe whose ends go with it.
struct Pipe {
  Pipe() {
    if (pipe2(ends, O_NONBLOCK | O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  }
  ~Pipe() {
    close(ends[0]);
    if (ends[1] >= 0) close(ends[1]);
  }
  void Write() const { ASSERT_EQ(write(ends[1], "x", 1), 1); }
  void Read() const {
    char byte = 0;
    ASSERT_EQ(read(ends[0], &byte, 1), 1);
  }
  void CloseWriter() {
    close(ends[1]);
    ends[1] = -1;
  }
  int ends[2];
};

class RealLoop : public testing::Test {
 protected:
  toolkit::loop::EventLoop loop{toolkit::loop::ClockKind::kReal, 1};
  std::vector<std::string> log;
};

TEST_F(RealLoop, WaitsUntilTheDeadline) {
  const Time deadline = loop.Now() + 20ms;
  while (loop.Now() < deadline) loop.Wait(deadline);
  EXPECT_GE(loop.Now(), deadline);
}

TEST_F(RealLoop, RunsNoCallBeforeItsTime) {
  const Time due = loop.Now() + 10ms;
  Time came{};
  loop.CallAt(due, [&] { came = loop.Now(); });
  while (came == Time{}) loop.Wait(Time::max());
  EXPECT_GE(came, due);
}

TEST_F(RealLoop, RunsCallsInOrder) {
  const Time now = loop.Now();
  loop.CallAt(now + 4ms, [&] { log.push_back("second"); });
  loop.CallAt(now + 2ms, [&] { log.push_back("first"); });
  while (log.size() < 2) loop.Wait(Time::max());
  EXPECT_EQ(log, (std::vector<std::string>{"first", "second"}));
}

TEST_F(RealLoop, SleepsInsteadOfSpinning) {
  const Time deadline = loop.Now() + 30ms;
  int rounds = 0;
  while (loop.Now() < deadline) loop.Wait(deadline), ++rounds;
  EXPECT_LE(rounds, 3);
}

TEST_F(RealLoop, EndsTheWaitForAByte) {
  Pipe pipe;
  loop.WatchReadable(pipe.ends[0], [&] {
    pipe.Read();
    log.push_back("byte");
  });
  pipe.Write();
  EXPECT_EQ(loop.Wait(Time::max()), toolkit::loop::WaitOutcome::kProcessed);
  EXPECT_EQ(log, (std::vector<std::string>{"byte"}));
}

TEST_F(RealLoop, ReportsAHangUp) {
  Pipe pipe;
  toolkit::loop::ILoop::Id id = 0;
  id = loop.WatchReadable(pipe.ends[0], [&] {
    loop.Forget(id);
    log.push_back("hung up");
  });
  pipe.CloseWriter();
  EXPECT_EQ(loop.Wait(Time::max()), toolkit::loop::WaitOutcome::kProcessed);
  EXPECT_FALSE(loop.Process());
  EXPECT_EQ(log, (std::vector<std::string>{"hung up"}));
}

TEST_F(RealLoop, DoesNotWatchAForgottenDescriptor) {
  Pipe pipe;
  const auto id = loop.WatchReadable(pipe.ends[0], [&] { log.push_back("byte"); });
  loop.Forget(id);
  loop.Forget(id);
  pipe.Write();
  EXPECT_FALSE(loop.Process());
  EXPECT_TRUE(log.empty());
}

TEST_F(RealLoop, SkipsADescriptorForgottenInACallback) {
  Pipe first;
  Pipe second;
  toolkit::loop::ILoop::Id other = 0;
  loop.WatchReadable(first.ends[0], [&] {
    first.Read();
    loop.Forget(other);
  });
  other = loop.WatchReadable(second.ends[0], [&] { log.push_back("second"); });
  first.Write();
  second.Write();
  EXPECT_TRUE(loop.Process());
  EXPECT_TRUE(log.empty());
}

TEST_F(RealLoop, SkipsADescriptorReadByANestedWait) {
  Pipe first;
  Pipe second;
  loop.WatchReadable(first.ends[0], [&] {
    first.Read();
    loop.Process();
  });
  loop.WatchReadable(second.ends[0], [&] {
    second.Read();
    log.push_back("second");
  });
  first.Write();
  second.Write();
  EXPECT_TRUE(loop.Process());
  EXPECT_EQ(log, (std::vector<std::string>{"second"}));
}

TEST_F(RealLoop, RunsAReplyBeforeATimeOutDueWithIt) {
  Pipe pipe;
  loop.CallAt(loop.Now(), [&] { log.push_back("time-out"); });
  loop.WatchReadable(pipe.ends[0], [&] {
    pipe.Read();
    log.push_back("reply");
  });
  pipe.Write();
  loop.Wait(Time::max());
  EXPECT_EQ(log, (std::vector<std::string>{"reply", "time-out"}));
}

TEST_F(RealLoop, IsWokenByAnotherThread) {
  const auto woken = loop.Woken().Subscribe([&] { log.push_back("woken"); });
  std::jthread other([this] { loop.Wake(); });
  while (log.empty()) loop.Wait(Time::max());
  EXPECT_EQ(log.size(), 1U);
}

toolkit::loop::EventLoop* signalled = nullptr;

TEST_F(RealLoop, IsWokenByASignalHandler) {
  const auto woken = loop.Woken().Subscribe([&] { log.push_back("woken"); });
  signalled = &loop;
  struct sigaction action {};
  struct sigaction before {};
  action.sa_handler = [](int) { signalled->Wake(); };
  // Even where system calls are begun again after a signal.
  action.sa_flags = SA_RESTART;
  sigaction(SIGUSR1, &action, &before);
  const auto waiting = pthread_self();
  std::jthread other([waiting] { pthread_kill(waiting, SIGUSR1); });
  while (log.empty()) loop.Wait(Time::max());
  sigaction(SIGUSR1, &before, nullptr);
  EXPECT_EQ(log.size(), 1U);
}

TEST_F(RealLoop, KeepsAWakeUpDuringWork) {
  const auto woken = loop.Woken().Subscribe([&] { log.push_back("woken"); });
  loop.Post([&] {
    loop.Wake();
    log.push_back("posted");
  });
  loop.Process();
  while (log.size() < 2) loop.Wait(Time::max());
  EXPECT_EQ(log, (std::vector<std::string>{"posted", "woken"}));
  EXPECT_FALSE(loop.Process());
}

TEST(ScaledLoop, RunsFasterByTheScale) {
  toolkit::loop::EventLoop loop(toolkit::loop::ClockKind::kReal, 100000);
  const auto begin = std::chrono::steady_clock::now();
  const Time deadline = loop.Now() + 1000s;
  while (loop.Now() < deadline) loop.Wait(deadline);
  // The floor is exact; a busy machine may add any amount to it.
  EXPECT_GE(std::chrono::steady_clock::now() - begin, 9ms);
}

}  // namespace
}  // namespace host
