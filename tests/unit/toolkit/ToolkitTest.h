#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "OrvikTypeLib/HostError.h"
#include "platform/Controls.h"
#include "platform/IContainerSite.h"
#include "platform/IForm.h"
#include "platform/IListView.h"
#include "platform/ITimer.h"
#include "platform/ITreeView.h"
#include "platform/IUserControl.h"
#include "tests/support/OnScreen.h"
#include "toolkit/headless/Application.h"

namespace orvik::platform {

inline void PrintTo(const Rect& rect, std::ostream* out) {
  *out << rect.left << "," << rect.top << " " << rect.width << "x" << rect.height;
}
inline void PrintTo(const Size& size, std::ostream* out) { *out << size.width << "x" << size.height; }

}  // namespace orvik::platform

namespace toolkit::headless {

namespace platform = orvik::platform;
using namespace std::chrono_literals;

/// Expects a `HostError` of that number with the text in its description.
inline void ExpectHostError(std::int32_t number, const std::string& text,
                            const std::function<void()>& action) {
  try {
    action();
    ADD_FAILURE() << "no error, expected " << number << " " << text;
  } catch (const orvik::HostError& error) {
    EXPECT_EQ(error.Number(), number);
    EXPECT_NE(error.Description().find(text), std::string::npos) << error.Description();
  }
}

/// A grid with one column and a row for each control.
inline platform::Grid OneColumn(const std::vector<std::string>& names, platform::Track column = {}) {
  platform::Grid grid;
  grid.columns = {column};
  for (const auto& name : names) {
    grid.cells.push_back({name, static_cast<int>(grid.rows.size()), 0});
    grid.rows.push_back({});
  }
  return grid;
}

inline void Start(platform::ITimer& timer, int milliseconds) {
  timer.SetInterval(milliseconds);
  timer.SetEnabled(true);
}

/// A user control with a text box "txtInner" that it is asked to focus, and a timer "tmrInner".
class ProbeControl final : public platform::IUserControl {
 public:
  void AttachTo(const std::shared_ptr<platform::IContainerSite>& site) override {
    ++attached;
    where = site;
    if (fails) throw orvik::HostError(5, "probe", "cannot be placed");
    site->Panel()->AddTextBox("txtInner");
    site->Panel()->AddTimer("tmrInner");
  }

  int attached = 0;
  bool fails = false;
  std::weak_ptr<platform::IContainerSite> where;
};

/// A headless application on the virtual clock, with forms of its own and the control class "test.Probe".
class ToolkitTest : public testing::Test {
 protected:
  ToolkitTest() {
    app->SetControlFactory([](const std::string& id) -> std::shared_ptr<platform::IUserControl> {
      return id == "test.Probe" ? std::make_shared<ProbeControl>() : nullptr;
    });
  }

  std::shared_ptr<platform::IForm> Shown(const std::string& name) {
    auto form = app->CreateForm(name);
    form->Show();
    return form;
  }

  /// Counts how often the event is raised, for as long as the fixture lives.
  template <class... Args>
  std::shared_ptr<int> Count(platform::Event<Args...>& event) {
    auto count = std::make_shared<int>(0);
    subscriptions.push_back(event.Subscribe([count](Args...) { ++*count; }));
    return count;
  }

  template <class... Args, class Handler>
  void On(platform::Event<Args...>& event, Handler handler) {
    subscriptions.push_back(event.Subscribe(std::move(handler)));
  }

  std::shared_ptr<Application> app = std::make_shared<Application>(ClockKind::kVirtual);
  std::shared_ptr<void> screen = support::OnScreen(app);
  std::vector<platform::Subscription> subscriptions;
};

}  // namespace toolkit::headless
