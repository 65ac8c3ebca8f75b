#pragma once

#include <QApplication>
#include <QComboBox>
#include <memory>
#include <string>

#include "host/base/Tr.h"
#include "tests/system/gui/DesktopTest.h"
#include "tests/system/screen/Display.h"

namespace screen_test {

/// The display and Qt on it; both are there before the window, and go after it.
class OnDisplay {
 protected:
  explicit OnDisplay(QSize size) : display_(size), application_(count_, words_) {
    QApplication::setQuitOnLastWindowClosed(false);
  }

 private:
  Display display_;
  int count_ = 1;
  char name_[12] = "test-screen";
  char* words_[2] = {name_, nullptr};
  QApplication application_;
};

inline constexpr QSize kSmallScreen(1024, 600);

/// The real window under a window manager.
class ScreenTest : private OnDisplay, public desktop_test::DesktopTest {
 protected:
  explicit ScreenTest(QSize size = kSmallScreen) : OnDisplay(size) {}

  /// The window of that name is there and on top of all others.
  Step OnTop(const std::string& name) {
    return Await(name + " on top", [name] {
      const auto* window = Visible(name);
      return window && Display::OnTop(*window);
    });
  }
  /// Opens a document with these tests, runs it until the first guide is shown, takes the steps, and stops
  /// the run. One drive: a run waits inside the messages that the steps come from.
  void DriveRun(std::vector<std::string> tests, const std::string& profile, const Steps& steps) {
    file_ = NewDocument(std::move(tests));
    window_->Open(file_);
    window_->findChild<QComboBox*>("tester")->setCurrentText(
        QString::fromStdString(host::Tr("Simulated tester: %%1", {profile})));
    Steps all{OnTop("main"), Press("run"), OnTop("FTestGuide")};
    all.insert(all.end(), steps.begin(), steps.end());
    all.insert(all.end(), {Press("stop"), Idle()});
    Drive(all);
  }

  std::string file_;
};

}  // namespace screen_test
