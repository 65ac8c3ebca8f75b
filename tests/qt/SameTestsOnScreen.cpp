#include <gtest/gtest.h>

#include <QApplication>
#include <memory>
#include <string>

#include "host/toolkit/headless/Application.h"
#include "host/toolkit/qt/Screen.h"
#include "tests/qt/Mirror.h"
#include "tests/support/OnScreen.h"

// The main program of tests that also run without a screen: here every application has one, and at every turn
// of the message pump, and at the end of each test, the widgets must show what the windows hold.
namespace support {
namespace {

class Watched {
 public:
  explicit Watched(const std::shared_ptr<bench::headless::Application>& application)
      // The tests know the sizes that windows have without a screen.
      : screen_(application, bench::qt::Measure::kPlain),
        application_(application),
        pumped_(application->Pumped().Subscribe([this] { Look(); })) {}
  ~Watched() { Look(); }

 private:
  void Look() {
    if (!screen_.Update()) return;
    for (const std::string& difference : Differences(screen_, *application_)) ADD_FAILURE() << difference;
  }

  bench::qt::Screen screen_;
  std::shared_ptr<bench::headless::Application> application_;
  orvik::platform::Subscription pumped_;
};

}  // namespace
}  // namespace support

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  support::TheScreenMaker() = [](const auto& shown) { return std::make_shared<support::Watched>(shown); };
  return RUN_ALL_TESTS();
}
