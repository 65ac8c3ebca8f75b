#pragma once

#include <gtest/gtest.h>

#include <QPointer>
#include <QString>
#include <filesystem>
#include <functional>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "host/bench/Workbench.h"
#include "host/gui/MainWindow.h"
#include "host/qt/Screen.h"
#include "host/run/GuideToolbar.h"
#include "tests/support/Process.h"
#include "tests/support/TemporaryFolder.h"

class QDialog;
class QTreeWidgetItem;
class QWidget;

namespace desktop_test {

/// The real window with the plug-in opened, driven by mouse and keys as a technician does.
class DesktopTest : public testing::Test {
 protected:
  /// Something that is to be done once it can be; answers whether it has been done.
  struct Step {
    std::string name;
    std::function<bool()> done;
  };
  using Steps = std::vector<Step>;

  /// Pauses are divided by this; a reply may still take 200 ms.
  static constexpr double kTimeScale = 10;

  /// Of the guide's buttons.
  static constexpr int kAbort = host::plugins::keld::guide::kAbort, kNext = host::plugins::keld::guide::kNext,
                       kPlay = host::plugins::keld::guide::kPlay;
  /// Columns of the tree.
  static constexpr int kName = 1, kResult = 2, kValue = 3, kRemark = 4;

  DesktopTest();
  ~DesktopTest() override;

  /// A window in the place of the one before, which must be gone.
  void MakeWindow();

  std::string Path(const std::string& name) const { return (folder_.Path() / name).string(); }
  void Write(const std::string& name, const std::string& text) const;
  static std::string Contents(const std::string& path);
  support::Finished Bench(std::vector<std::string> words) const;
  nlohmann::json Show(const std::string& file) const;
  /// A document with these tests on disk, with limits of IEC 60601-1 for class I, type CF.
  std::string NewDocument(std::vector<std::string> tests) const;
  /// The commands in the document's wire log.
  std::vector<std::string> Sent(const std::string& file) const;

  /// Takes one step after the other, while the program runs, until all are done.
  void Drive(const Steps& steps);

  // Steps.
  /// Clicks the window's button of that action, or takes it from the menu when it has none.
  Step Press(const std::string& action);
  /// Works on the modal dialog of that name.
  Step In(const std::string& dialog, std::function<bool(QDialog&)> work);
  /// Clicks the button in the dialog; the dialog must show the text.
  Step Answer(const std::string& dialog, const std::string& button, const std::string& text = {});
  /// Puts the path into the file dialog.
  Step TakeFile(const std::string& path);
  /// Clicks the guide's button once it can be clicked, such as 202 for play.
  Step Guide(int command);
  Step Await(const std::string& what, std::function<bool()> holds) { return {what, std::move(holds)}; }
  /// Does something once.
  Step Do(std::function<void()> work);
  /// The element has that result.
  Step Result(int id, const std::string& word);
  /// Asks the window to close, which it refuses at first.
  Step Close();
  /// The window has closed.
  Step Left();
  /// Nothing runs and no window of the plug-in is open.
  Step Idle();

  /// A top-level window of that name that can be seen, or null.
  static QWidget* Visible(const std::string& name);
  void ChooseTester(const std::string& text);
  std::string Verdict() const;
  std::string Remark() const;
  /// The text of a column in the row of that element.
  std::string Cell(int id, int column) const;
  /// The name of the colour of the result in the row of that element.
  std::string ResultColour(int id) const;
  void ChooseElement(int id);
  bool Changed() const { return window_->isWindowModified(); }

  support::TemporaryFolder folder_;
  std::unique_ptr<host::bench::Workbench> bench_;
  std::unique_ptr<host::qt::Screen> screen_;
  std::unique_ptr<host::gui::MainWindow> window_;
  bool left_ = false;

 private:
  QTreeWidgetItem* Row(int id) const;

  QPointer<QWidget> leftGuide_;  ///< the guide that was left for the next test
};

}  // namespace desktop_test
