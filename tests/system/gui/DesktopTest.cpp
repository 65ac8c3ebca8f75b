#include "tests/system/gui/DesktopTest.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "host/gui/Dialogs.h"
#include "tests/support/ReadFile.h"

namespace desktop_test {

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 60s;
constexpr auto kTurn = 10ms;

void Click(QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }

QString TextOf(const QDialog& dialog) {
  QString text;
  if (const auto* box = qobject_cast<const QMessageBox*>(&dialog)) text = box->text();
  for (const auto* label : dialog.findChildren<QLabel*>()) text += label->text();
  return text;
}

/// The text of an open question.
std::string OpenQuestion() {
  const auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  return dialog ? "; instead: " + TextOf(*dialog).toStdString() : "";
}

}  // namespace

DesktopTest::DesktopTest() {
  setenv("ORVIK_STATE", Path("state").c_str(), 1);
  unsetenv("ORVIK_ARCHIVE");
  bench_ = std::make_unique<host::bench::Workbench>(host::bench::GlobalOptions{}, kTimeScale);
  screen_ = std::make_unique<host::qt::Screen>(bench_->Application());
  MakeWindow();
}

void DesktopTest::MakeWindow() {
  window_ = std::make_unique<host::gui::MainWindow>(*bench_, host::bench::GlobalOptions{},
                                                    [this] { left_ = true; });
  screen_->SetHostWindow(window_.get());
  window_->show();
}

DesktopTest::~DesktopTest() {
  window_.reset();
  screen_.reset();
}

void DesktopTest::Write(const std::string& name, const std::string& text) const {
  std::ofstream(Path(name)) << text;
}

std::string DesktopTest::Contents(const std::string& path) { return support::ReadFile(path); }

support::Finished DesktopTest::Bench(std::vector<std::string> words) const {
  return support::Run(ORVIK_BENCH_PATH, std::move(words));
}

nlohmann::json DesktopTest::Show(const std::string& file) const {
  const auto shown = Bench({"show", file, "--json"});
  EXPECT_EQ(shown.status, 0) << shown.error;
  return nlohmann::json::parse(shown.out);
}

std::string DesktopTest::NewDocument(std::vector<std::string> tests) const {
  const auto file = Path("pump.orvik");
  std::vector<std::string> words{"new", file, "--asset", "PUMP-7", "--add"};
  words.insert(words.end(), tests.begin(), tests.end());
  EXPECT_EQ(Bench(words).status, 0);
  EXPECT_EQ(Bench({"limit", file, "--from", "iec-60601-1-class-1-cf"}).status, 0);
  return file;
}

std::vector<std::string> DesktopTest::Sent(const std::string& file) const {
  std::vector<std::string> sent;
  std::ifstream log(file + ".wire.log");
  for (std::string line; std::getline(log, line);) {
    const auto at = line.find(" sent ");
    if (at != std::string::npos) sent.push_back(line.substr(at + 6));
  }
  return sent;
}

void DesktopTest::Drive(const Steps& steps) {
  std::size_t next = 0;
  const auto deadline = std::chrono::steady_clock::now() + kPatience;
  bool late = false;
  QTimer turn;
  // Where a question waits for its answer, or the guide for the operator, only timers get a turn.
  QObject::connect(&turn, &QTimer::timeout, &turn, [&] {
    if (next < steps.size() && std::chrono::steady_clock::now() < deadline) {
      const auto now = next;
      if (steps[now].done()) ++next;
    } else if (next < steps.size() && !late) {
      late = true;
      ADD_FAILURE() << "this did not happen: " << steps[next].name << OpenQuestion();
      window_->EndByRequest();
    } else if (late && std::chrono::steady_clock::now() > deadline + kPatience) {
      // Event loops are nested, so nothing else can end the test.
      std::fputs("the program cannot be ended either\n", stderr);
      std::_Exit(1);
    }
  });
  turn.start(kTurn);
  while (next < steps.size() && !(late && left_))
    bench_->Application()->WaitMessages(bench_->Application()->Now() + 1s);
}

DesktopTest::Step DesktopTest::Press(const std::string& name) {
  return {"press " + name, [this, name] {
            auto* action = window_->findChild<QAction*>(QString::fromStdString(name));
            if (!action) throw std::runtime_error("no action " + name);
            if (!action->isEnabled()) return false;
            for (auto* bar : window_->findChildren<QToolBar*>()) {
              auto* button = bar->widgetForAction(action);
              if (!button) continue;
              Click(*button);
              return true;
            }
            action->trigger();  // it is in the menu only
            return true;
          }};
}

DesktopTest::Step DesktopTest::In(const std::string& name, std::function<bool(QDialog&)> work) {
  return {"in " + name, [name, work] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            return dialog && dialog->objectName().toStdString() == name && work(*dialog);
          }};
}

DesktopTest::Step DesktopTest::Answer(const std::string& dialog, const std::string& button,
                                      const std::string& text) {
  return In(dialog, [=](QDialog& shown) {
    EXPECT_TRUE(TextOf(shown).contains(QString::fromStdString(text))) << TextOf(shown).toStdString();
    for (auto* candidate : shown.findChildren<QAbstractButton*>()) {
      if (candidate->text().remove('&').toStdString() != button) continue;
      Click(*candidate);
      return true;
    }
    return false;
  });
}

DesktopTest::Step DesktopTest::TakeFile(const std::string& path) {
  return In("fileDialog", [path](QDialog& dialog) {
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(path));
    auto* buttons = dialog.findChild<QDialogButtonBox*>();
    auto* accept = buttons->button(QDialogButtonBox::Open) ? buttons->button(QDialogButtonBox::Open)
                                                           : buttons->button(QDialogButtonBox::Save);
    Click(*accept);
    return true;
  });
}

DesktopTest::Step DesktopTest::Guide(int command) {
  return {"guide " + std::to_string(command), [this, command] {
            auto* guide = Visible("FTestGuide");
            // What was clicked may still wait for its turn; the next click is for the next test's guide.
            if (!guide || guide == leftGuide_) return false;
            auto* button = guide->findChild<QToolButton*>("tbrCommands." + QString::number(command));
            if (!button || !button->isEnabled()) return false;
            if (command == kNext) leftGuide_ = guide;
            Click(*button);
            return true;
          }};
}

DesktopTest::Step DesktopTest::Do(std::function<void()> work) {
  return {"do", [work = std::move(work)] {
            work();
            return true;
          }};
}

DesktopTest::Step DesktopTest::Result(int id, const std::string& word) {
  return {"element " + std::to_string(id) + " " + word,
          [this, id, word] { return Cell(id, kResult) == word; }};
}

DesktopTest::Step DesktopTest::Close() {
  return {"closed", [this] { return !window_->close(); }};
}

DesktopTest::Step DesktopTest::Left() {
  return {"left", [this] { return left_; }};
}

DesktopTest::Step DesktopTest::Idle() {
  return {"idle",
          [this] { return !Visible("FTestGuide") && window_->findChild<QAction*>("open")->isEnabled(); }};
}

QWidget* DesktopTest::Visible(const std::string& name) {
  for (auto* widget : QApplication::topLevelWidgets())
    if (widget->isVisible() && widget->objectName().toStdString() == name) return widget;
  return nullptr;
}

void DesktopTest::ChooseTester(const std::string& text) {
  auto* box = window_->findChild<QComboBox*>("tester");
  box->lineEdit()->selectAll();
  QTest::keyClicks(box->lineEdit(), QString::fromStdString(text));
}

std::string DesktopTest::Verdict() const {
  return window_->findChild<QLabel*>("verdictWord")->text().toStdString();
}

std::string DesktopTest::Remark() const {
  return window_->findChild<QLabel*>("remark")->text().toStdString();
}

QTreeWidgetItem* DesktopTest::Row(int id) const {
  auto* tree = window_->findChild<QTreeWidget*>("tree");
  const auto rows = tree->findItems(QString::number(id), Qt::MatchExactly | Qt::MatchRecursive, 0);
  if (rows.size() != 1) throw std::runtime_error("no element " + std::to_string(id) + " in the tree");
  return rows.first();
}

std::string DesktopTest::Cell(int id, int column) const { return Row(id)->text(column).toStdString(); }

std::string DesktopTest::ResultColour(int id) const {
  return Row(id)->foreground(kResult).color().name().toStdString();
}

void DesktopTest::ChooseElement(int id) {
  auto* tree = window_->findChild<QTreeWidget*>("tree");
  const auto place = tree->visualItemRect(Row(id));
  QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, place.center());
}

}  // namespace desktop_test
