#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <vector>

#include "host/gui/WindowState.h"

namespace desktop_test {
namespace {

using host::gui::WindowState;
using Activity = WindowState::Activity;
using Closing = WindowState::Closing;

TEST(WindowState, AllowsWhatTheActivityAllows) {
  struct {
    const char* name;
    Activity activity;
    bool busy, usesTester, running, acceptsCommand;
  } const cases[] = {
      {"idle", Activity::kIdle, false, false, false, true},
      {"a command", Activity::kWorking, false, false, false, false},
      {"settings", Activity::kSettingUp, true, false, false, false},
      {"calibration", Activity::kCalibrating, true, true, false, false},
      {"run", Activity::kRunning, true, true, true, false},
  };
  for (const auto& row : cases) {
    SCOPED_TRACE(row.name);
    WindowState state;
    {
      std::unique_ptr<WindowState::Scope> command, longer;
      if (row.activity != Activity::kIdle) command.reset(new WindowState::Scope(state.Work()));
      if (row.activity > Activity::kWorking)
        longer.reset(new WindowState::Scope(state.Begin(row.activity, [] {})));
      EXPECT_EQ(state.Current(), row.activity);
      EXPECT_EQ(state.Busy(), row.busy);
      EXPECT_EQ(state.UsesTester(), row.usesTester);
      EXPECT_EQ(state.Running(), row.running);
      EXPECT_EQ(state.AcceptsCommand(), row.acceptsCommand);
    }
    EXPECT_EQ(state.Current(), Activity::kIdle);
  }
}

TEST(WindowState, KeepsTheRunDuringACommand) {
  WindowState state;
  int stops = 0;
  const auto command = state.Work();
  {
    const auto run = state.Begin(Activity::kRunning, [&] { ++stops; });
    {
      const auto question = state.Work();
      EXPECT_TRUE(state.Running());
    }
    EXPECT_TRUE(state.Running());
    state.Stop();
    EXPECT_EQ(stops, 1);
  }
  EXPECT_EQ(state.Current(), Activity::kWorking);
  state.Stop();
  EXPECT_EQ(stops, 1);
}

TEST(WindowState, RefusesASecondActivity) {
  WindowState state;
  const auto run = state.Begin(Activity::kRunning, [] {});
  EXPECT_THROW((void)state.Begin(Activity::kCalibrating, [] {}), std::logic_error);
  EXPECT_TRUE(state.Running());
}

TEST(WindowState, ClosesAfterTheRun) {
  WindowState state;
  {
    const auto run = state.Begin(Activity::kRunning, [] {});
    state.Close();
    EXPECT_FALSE(state.ReadyToClose());
  }
  EXPECT_TRUE(state.ReadyToClose());
  state.Closed();
  EXPECT_FALSE(state.ReadyToClose());
  EXPECT_FALSE(state.AcceptsCommand());
}

TEST(WindowState, FollowsTheStrongestRequestToClose) {
  enum Step { kClose, kRequire, kKeep, kClosed };
  struct {
    const char* name;
    std::vector<Step> steps;
    Closing expected;
    bool unattended;
  } const cases[] = {
      {"nothing asked", {}, Closing::kNo, false},
      {"closed by the user", {kClose}, Closing::kWanted, false},
      {"kept open", {kClose, kKeep}, Closing::kNo, false},
      {"required", {kRequire}, Closing::kRequired, true},
      {"required after the user", {kClose, kRequire}, Closing::kRequired, true},
      {"the user after required", {kRequire, kClose}, Closing::kRequired, true},
      {"required is not kept open", {kRequire, kKeep}, Closing::kRequired, true},
      {"the end is final", {kRequire, kClosed, kClose, kRequire, kKeep}, Closing::kDone, true},
  };
  for (const auto& row : cases) {
    SCOPED_TRACE(row.name);
    WindowState state;
    for (const auto step : row.steps) {
      if (step == kClose) state.Close();
      if (step == kRequire) state.RequireClose();
      if (step == kKeep) state.KeepOpen();
      if (step == kClosed) state.Closed();
    }
    EXPECT_EQ(state.CloseStatus(), row.expected);
    EXPECT_EQ(state.Unattended(), row.unattended);
  }
}

}  // namespace
}  // namespace desktop_test
