// The window's commands that use the tester.
#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "host/base/Tr.h"
#include "host/bench/CalibrationWindow.h"
#include "host/bench/RunSession.h"
#include "host/bench/ScreenOperator.h"
#include "host/bench/StoredLeadsView.h"
#include "host/gui/Dialogs.h"
#include "host/gui/ElementTree.h"
#include "host/gui/GuideJudgement.h"
#include "host/gui/MainWindow.h"
#include "host/gui/RunProgress.h"
#include "host/gui/TesterBox.h"
#include "host/run/GuideToolbar.h"
#include "platform/IForm.h"

namespace host::gui {

namespace {

/// The shortest time between two refreshes during a run.
constexpr std::chrono::milliseconds kRefreshInterval(250);

}  // namespace

void MainWindow::Resume() {
  bench::RunSelection selection;
  selection.resume = true;
  Run(selection);
}

void MainWindow::RunSelected() {
  if (const auto id = tree_->Chosen()) Run({.file = {}, .elements = {*id}, .standards = {}, .resume = false});
}

void MainWindow::Run(bench::RunSelection selection) {
  if (!session_.HasDocument()) return;
  auto& document = session_.TheDocument();
  selection.file = document.Path().string();
  const auto selected = bench::SelectedElements(document, selection);
  // A missing tester, or one of the other kind, must leave the document unchanged.
  const bench::TesterConnection tester(tester_->Choice(), session_.Bench().Ports());
  bench::RequireOneKindOfRuns(document, tester.Simulated());
  if (!selection.resume && !MayReplaceResults(selected)) return;
  serial::WireLog log(selection.file + ".wire.log");
  bench::SelectStandards(document, *session_.Bench().Host(), selection);
  const auto elements =
      selection.resume ? bench::Unfinished(selected, document, session_.View().judged) : selected;
  // The selected standards may have changed.
  Refresh();
  if (elements.empty()) return ShowMessage(this, Tr("Every element has a result; nothing is left to run."));
  // A document that cannot be saved must be reported before anything is measured.
  session_.Save();
  PerformRun(elements, log, tester);
}

bool MainWindow::MayReplaceResults(const std::vector<std::shared_ptr<orvik::ITestElement>>& elements) {
  const auto part = report::JudgedPart(session_.View().judged, elements);
  const bool some =
      std::any_of(part.elements.begin(), part.elements.end(), [](const judge::JudgedElement& element) {
        return element.Current() && element.verdict != judge::Verdict::kNotTested;
      });
  return !some || Ask(this,
                      Tr("%%1 has results already. Run these tests again? The earlier run stays on record, "
                         "the new one counts.",
                         {session_.Device()}),
                      {Tr("Run again"), Tr("Cancel")}) == 0;
}

void MainWindow::PerformRun(const std::vector<std::shared_ptr<orvik::ITestElement>>& elements,
                            serial::WireLog& log, const bench::TesterConnection& tester) {
  auto& bench = session_.Bench();
  RunProgress progress(
      *bench.Application(), bench.TimeScale(), [this] { RunChanged(); },
      [this](const std::string& text) { Remark(text); });
  bench::RunSession session(bench, session_.TheDocument(), log, progress, tester,
                            bench::OperatorName(operator_->text().toStdString()));
  Remark({});
  beforeEdit_.reset();
  auto end = run::DocumentRunner::End::kFinished;
  {
    const auto running = state_.Begin(WindowState::Activity::kRunning, [&session] { session.AskToStop(); });
    const ProgressDisplay display(*this, progress);
    Refresh();
    end = session.Run(elements, std::make_unique<bench::ScreenOperator>(bench.Application()));
  }
  runChanged_ = false;
  Refresh();
  ShowEnd(end, session.Reason());
  if (!log.Failure().empty())
    Remark(Tr("The wire log %%1 could not be written: %%2", {log.Path(), log.Failure()}));
}

void MainWindow::RunChanged() {
  runChanged_ = true;
  if (session_.Bench().Application()->Now() - runShown_ >= kRefreshInterval) ShowRun();
}

void MainWindow::ShowRun() {
  runChanged_ = false;
  Refresh();
  if (progress_ && progress_->Running() != 0) tree_->Choose(progress_->Running());
  ShowJudgementInGuide();
  runShown_ = session_.Bench().Application()->Now();
}

void MainWindow::ShowJudgementInGuide() {
  if (!progress_) return;
  const auto sections = session_.Sections(view_, progress_->FinishedInGuide());
  run::ShowJudgement(*session_.Bench().Application(), GuideJudgement(sections));
}

MainWindow::ProgressDisplay::ProgressDisplay(MainWindow& window, RunProgress& progress) : window_(window) {
  window_.progress_ = &progress;
  window_.progressTimer_->start();
}

MainWindow::ProgressDisplay::~ProgressDisplay() {
  window_.progressTimer_->stop();
  window_.progressText_->clear();
  window_.progressText_->setToolTip({});
  window_.progress_ = nullptr;
}

void MainWindow::ShowEnd(run::DocumentRunner::End end, const std::string& reason) {
  switch (end) {
    case run::DocumentRunner::End::kFinished:
      return;
    case run::DocumentRunner::End::kStopped:
      return Remark(
          Tr("Stopped. The document is saved; Resume continues with the elements that have no result yet."));
    case run::DocumentRunner::End::kAborted:
      return Remark(Tr("Ended by the operator. The document is saved."));
    case run::DocumentRunner::End::kTesterLost:
      return ShowErrorLater(Tr("The run has ended: %%1.", {reason}));
    case run::DocumentRunner::End::kNotSaved:
      return ShowErrorLater(Tr("The run has ended because the document cannot be saved: %%1", {reason}));
  }
}

void MainWindow::Calibrate() {
  const bench::TesterConnection tester(tester_->Choice(), session_.Bench().Ports());
  bench::CalibrationWindow window(session_.Bench(), {});
  {
    const auto calibrating =
        state_.Begin(WindowState::Activity::kCalibrating, [&window] { window.Cancel(); });
    UpdateActions();
    window.Show();
  }
  UpdateActions();
}

void MainWindow::SubscribeToCalibrations() {
  // The guide opens the calibration dialog too.
  auto& leads = session_.Bench().Leads();
  leadsStored_ =
      leads.Stored().Subscribe([this](const run::LeadCalibration& stored) { Remark(bench::TextOf(stored)); });
  leadsRefused_ = leads.Refused().Subscribe([this](const std::string& reason) { ShowErrorLater(reason); });
}

}  // namespace host::gui
