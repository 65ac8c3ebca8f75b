#include <gtest/gtest.h>

#include <QApplication>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "host/qt/Presenter.h"
#include "host/qt/WidgetMirror.h"
#include "tests/support/OnScreen.h"
#include "tests/unit/qt/WidgetDifferences.h"
#include "toolkit/headless/Application.h"
#include "toolkit/headless/IScreen.h"

// The main program of tests that also run without a screen: here every application has one. Changes are shown
// at once, to find a change without notification. Whenever messages are processed, and at the end of each
// test, the widgets must show the state of the windows.
namespace support {
namespace {

class WatchedScreen final : public toolkit::headless::IScreen {
 public:
  explicit WatchedScreen(const std::shared_ptr<toolkit::headless::Application>& application)
      // The tests know the sizes that windows have without a screen.
      : mirror_(application, host::qt::Measure::kPlain),
        application_(application),
        pumped_(application->Pumped().Subscribe([this] { Look(); })) {
    application_->SetScreen(this);
  }
  ~WatchedScreen() override { Look(); }

  void Changed(toolkit::headless::Control& control) override {
    mirror_.Changed(control);
    mirror_.Update();
  }
  void Destroyed(const toolkit::headless::Control& control) override { mirror_.Destroyed(control); }
  const toolkit::headless::IMetrics& Metrics() const override { return mirror_.Metrics(); }
  void Watch(const std::vector<int>& descriptors) override { mirror_.Watch(descriptors); }
  void WorkAdded() override { mirror_.WorkAdded(); }
  void Sleep(std::chrono::nanoseconds longest) override { mirror_.Sleep(longest); }

 private:
  void Look() {
    if (!mirror_.Update()) return;
    const auto finder = [this](const orvik::platform::IControl& control) {
      const auto* presenter = mirror_.Find(control.Handle());
      return presenter ? presenter->Widget() : nullptr;
    };
    for (const std::string& difference : Differences(finder, *application_)) ADD_FAILURE() << difference;
  }

  host::qt::WidgetMirror mirror_;
  std::shared_ptr<toolkit::headless::Application> application_;
  orvik::platform::Subscription pumped_;
};

}  // namespace
}  // namespace support

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  support::TheScreenMaker() = [](const auto& shown) {
    return std::make_shared<support::WatchedScreen>(shown);
  };
  return RUN_ALL_TESTS();
}
