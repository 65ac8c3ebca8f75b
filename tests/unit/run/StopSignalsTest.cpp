#include <gtest/gtest.h>

#include <csignal>
#include <vector>

#include "host/run/StopSignals.h"
#include "toolkit/headless/Application.h"

namespace host {
namespace {

using Handler = void (*)(int);

Handler HandlerOf(int signal) {
  struct sigaction action {};
  sigaction(signal, nullptr, &action);
  return action.sa_handler;
}

/// Sets what a signal does while it lives.
class Disposition {
 public:
  Disposition(int signal, Handler handler) : signal_(signal), before_(std::signal(signal, handler)) {}
  Disposition(const Disposition&) = delete;
  Disposition& operator=(const Disposition&) = delete;
  ~Disposition() { std::signal(signal_, before_); }

 private:
  const int signal_;
  const Handler before_;
};

class StopSignalsTest : public ::testing::Test {
 protected:
  toolkit::headless::Application application_{toolkit::loop::ClockKind::kVirtual};
  std::vector<int> arrived_;
};

TEST_F(StopSignalsTest, AreDeliveredOnceWhileMessagesAreProcessed) {
  const run::StopSignals signals(application_, [this](int signal) { arrived_.push_back(signal); });
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    std::raise(signal);
    EXPECT_TRUE(arrived_.empty()) << "not within the handler";
    application_.ProcessMessages();
    application_.ProcessMessages();
    EXPECT_EQ(arrived_, std::vector<int>{signal});
    arrived_.clear();
  }
}

TEST_F(StopSignalsTest, AClosedReaderDoesNotEndTheProgram) {
  const Disposition usual(SIGPIPE, SIG_DFL);
  const run::StopSignals signals(application_, [](int) {});
  EXPECT_EQ(HandlerOf(SIGPIPE), SIG_IGN);
}

TEST_F(StopSignalsTest, RestoreTheEarlierHandlers) {
  const Handler own = [](int) {};
  const Disposition interrupt(SIGINT, own), terminate(SIGTERM, SIG_DFL), hangUp(SIGHUP, SIG_DFL),
      pipe(SIGPIPE, SIG_IGN);
  {
    const run::StopSignals signals(application_, [](int) {});
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
      EXPECT_NE(HandlerOf(signal), SIG_DFL) << signal;
      EXPECT_NE(HandlerOf(signal), own) << signal;
    }
  }
  EXPECT_EQ(HandlerOf(SIGINT), own);
  EXPECT_EQ(HandlerOf(SIGTERM), SIG_DFL);
  EXPECT_EQ(HandlerOf(SIGHUP), SIG_DFL);
  EXPECT_EQ(HandlerOf(SIGPIPE), SIG_IGN);
}

}  // namespace
}  // namespace host
