#include <gtest/gtest.h>
#include <unistd.h>

#include <QEventLoop>
#include <array>
#include <stdexcept>
#include <thread>

#include "OrvikTypeLib/HostError.h"
#include "host/qt/Screen.h"
#include "toolkit/headless/Application.h"

// Our loop inside Qt's, and the other way round, on the real clock: the order of things is looked at, never
// how long they take.
namespace host::qt {
namespace {

using orvik::platform::Time;
using toolkit::headless::Application;
using toolkit::loop::ClockKind;
using namespace std::chrono_literals;

class EventDispatcherTest : public testing::Test {
 protected:
  EventDispatcherTest() {
    if (pipe(pipe_.data()) != 0) throw std::runtime_error("no pipe can be made");
  }
  ~EventDispatcherTest() override {
    for (const int descriptor : pipe_) close(descriptor);
  }

  void Watch() {
    watch_ = app->WatchReadable(pipe_[0], [this] {
      char byte = 0;
      if (read(pipe_[0], &byte, 1) == 1) received += byte;
    });
  }
  void Send(char byte) const { ASSERT_EQ(write(pipe_[1], &byte, 1), 1); }
  /// Waits as the plug-in does: until something is true.
  template <class Condition>
  void WaitUntil(Condition condition) {
    while (!condition()) app->WaitMessages(Time::max());
  }

  std::shared_ptr<Application> app = std::make_shared<Application>(ClockKind::kReal);
  std::shared_ptr<Screen> screen = std::make_shared<Screen>(app);
  std::string received;
  toolkit::headless::Application::Id watch_ = 0;

 private:
  std::array<int, 2> pipe_{};
};

TEST_F(EventDispatcherTest, EndsASleepForAByte) {
  Watch();
  Send('x');
  WaitUntil([&] { return !received.empty(); });
  EXPECT_EQ(received, "x");
}

TEST_F(EventDispatcherTest, EndsASleepForATimer) {
  std::string order;
  app->CallAt(app->Now() + 2ms, [&] { order += "2"; });
  app->CallAt(app->Now() + 1ms, [&] { order += "1"; });
  WaitUntil([&] { return order.size() == 2; });
  EXPECT_EQ(order, "12");
}

TEST_F(EventDispatcherTest, EndsASleepAtItsDeadline) {
  const Time deadline = app->Now() + 3ms;
  while (app->Now() < deadline) app->WaitMessages(deadline);
  SUCCEED();
}

TEST_F(EventDispatcherTest, EndsASleepForAnotherThread) {
  bool woken = false;
  const auto listening = app->Woken().Subscribe([&] { woken = true; });
  std::thread other([&] { app->Wake(); });
  WaitUntil([&] { return woken; });
  other.join();
  woken = false;
  app->ProcessMessages();
  EXPECT_FALSE(woken) << "once is once";
}

TEST_F(EventDispatcherTest, ServesNestedWaits) {
  Watch();
  std::string order;
  app->Post([&] {
    app->CallAt(app->Now() + 1ms, [&] { Send('y'); });
    WaitUntil([&] { return !received.empty(); });
    order += "inner";
  });
  WaitUntil([&] { return !order.empty(); });
  EXPECT_EQ(received, "y");
}

TEST_F(EventDispatcherTest, ServesTimersAndPortsInALoopOfQt) {
  Watch();
  QEventLoop dialog;
  app->Post([&] {
    app->CallAt(app->Now() + 1ms, [&] { Send('a'); });
    app->CallAt(app->Now() + 2ms, [&] { Send('b'); });
    const auto ends = [&](auto&& again) -> void {
      if (received == "ab") return dialog.quit();
      app->CallAt(app->Now() + 1ms, [&, again] { again(again); });
    };
    ends(ends);
    dialog.exec();
  });
  WaitUntil([&] { return received == "ab"; });
}

TEST_F(EventDispatcherTest, ServesWatchesStartedInALoopOfQt) {
  QEventLoop dialog;
  app->Post([&] {
    app->Post([&] {
      Watch();
      Send('z');
      app->CallAt(app->Now() + 1ms, [&] {
        app->Forget(watch_);
        Send('!');
        app->CallAt(app->Now() + 1ms, [&] { dialog.quit(); });
      });
    });
    dialog.exec();
  });
  WaitUntil([&] { return !received.empty(); });
  app->ProcessMessages();
  EXPECT_EQ(received, "z");
}

TEST_F(EventDispatcherTest, ThrowsErrorsInALoopOfQtToTheWaiter) {
  QEventLoop dialog;
  bool left = false;
  app->Post([&] {
    app->Post([&] {
      app->CallAt(app->Now() + 1ms, [&] { dialog.quit(); });
      throw orvik::HostError(57, "test", "unplugged");
    });
    dialog.exec();
    left = true;
  });
  EXPECT_THROW(WaitUntil([] { return false; }), orvik::HostError);
  EXPECT_TRUE(left) << "the error must not pass through Qt's loop";
}

TEST_F(EventDispatcherTest, ExecRunsUntilQuit) {
  std::string order;
  std::vector<std::string> errors;
  screen->SetErrorHandler([&](const std::string& error) { errors.push_back(error); });
  app->CallAt(app->Now() + 1ms, [&] {
    order += "1";
    throw orvik::HostError(5, "test", "first");
  });
  app->CallAt(app->Now() + 2ms, [&] {
    order += "2";
    screen->Quit();
  });
  screen->Exec();
  EXPECT_EQ(order, "12");
  EXPECT_EQ(errors, std::vector<std::string>{"first"});
}

TEST_F(EventDispatcherTest, LeavesSleepingToTheLoopWhenRemoved) {
  Watch();
  screen.reset();
  Send('x');
  WaitUntil([&] { return !received.empty(); });
  EXPECT_EQ(received, "x");
}

}  // namespace
}  // namespace host::qt
