// What the window does with the tester.
#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "host/app/CalibrationWindow.h"
#include "host/app/StoredLeadsView.h"
#include "host/app/run/RunSession.h"
#include "host/desktop/Dialogs.h"
#include "host/desktop/ElementTree.h"
#include "host/desktop/GuideJudgement.h"
#include "host/desktop/MainWindow.h"
#include "host/desktop/RunProgress.h"
#include "host/desktop/TesterBox.h"
#include "host/desktop/WhileOpen.h"
#include "host/run/GuideToolbar.h"
#include "host/services/Tr.h"
#include "platform/IForm.h"

namespace bench::desktop {

namespace {

/// Between two times that a run is shown.
constexpr std::chrono::milliseconds kShortestPause(250);

}  // namespace

void MainWindow::Resume() {
  RunSelection selection;
  selection.resume = true;
  Run(selection);
}

void MainWindow::RunSelected() {
  if (const auto id = tree_->Chosen()) Run({.file = {}, .elements = {*id}, .standards = {}, .resume = false});
}

void MainWindow::Run(RunSelection selection) {
  if (Busy() || !desk_.HasDocument()) return;
  auto& document = desk_.TheDocument();
  selection.file = document.Path().string();
  const auto selected = SelectedElements(document, selection);
  // Without its tester nothing of the document changes, nor on one of the other kind.
  const TesterConnection tester(tester_->Choice(), desk_.Bench().Ports());
  RequireOneKindOfRuns(document, tester.Simulated());
  if (!selection.resume && !MayReplaceResults(selected)) return;
  WireLog log(selection.file + ".wire.log");
  SelectStandards(document, *desk_.Bench().Host(), selection);
  const auto elements = selection.resume ? Unfinished(selected, document, desk_.View().judged) : selected;
  // The document may have got limits of other standards since.
  Refresh();
  if (elements.empty())
    return ShowMessage(this, Tr("Every element has a result; there is nothing to go on with."));
  // What cannot be saved had better be known before anything is measured.
  desk_.Save();
  PerformRun(elements, log, tester);
}

bool MainWindow::MayReplaceResults(const std::vector<std::shared_ptr<orvik::ITestElement>>& elements) {
  const auto part = JudgedPart(desk_.View().judged, elements);
  const bool some =
      std::any_of(part.elements.begin(), part.elements.end(), [](const judge::JudgedElement& element) {
        return element.Current() && element.verdict != judge::Verdict::kNotTested;
      });
  return !some || Ask(this,
                      Tr("%%1 has results already. Run these tests again? The earlier run stays on record, "
                         "the new one counts.",
                         {desk_.Device()}),
                      {Tr("Run again"), Tr("Cancel")}) == 0;
}

void MainWindow::PerformRun(const std::vector<std::shared_ptr<orvik::ITestElement>>& elements, WireLog& log,
                            const TesterConnection& tester) {
  auto& bench = desk_.Bench();
  RunProgress progress(
      *bench.Application(), bench.TimeScale(), [this] { RunChanged(); },
      [this](const std::string& text) { Remark(text); });
  RunSession session(bench, desk_.TheDocument(), log, progress, OperatorKind::kScreen, tester,
                     OperatorName(operator_->text().toStdString()));
  Remark({});
  beforeEdit_.reset();
  auto end = DocumentRunner::End::kFinished;
  {
    const Part part(*this, session, progress);
    Refresh();
    end = session.Run(elements);
  }
  runChanged_ = false;
  Refresh();
  TellEnd(end, session.Reason());
  if (!log.Failure().empty())
    Remark(Tr("The wire log %%1 could not be written: %%2", {log.Path(), log.Failure()}));
}

void MainWindow::RunChanged() {
  runChanged_ = true;
  if (desk_.Bench().Application()->Now() - runShown_ >= kShortestPause) ShowRun();
}

void MainWindow::ShowRun() {
  runChanged_ = false;
  Refresh();
  // What runs is what the person wants to look at.
  if (progress_ && progress_->Running() != 0) tree_->Choose(progress_->Running());
  ShowJudgementInGuide();
  runShown_ = desk_.Bench().Application()->Now();
}

void MainWindow::ShowJudgementInGuide() {
  if (!progress_) return;
  const auto sections = desk_.Sections(view_, progress_->FinishedInGuide());
  ShowJudgement(*desk_.Bench().Application(), GuideJudgement(sections));
}

MainWindow::Part::Part(MainWindow& window, RunSession& session, RunProgress& progress) : window_(window) {
  window_.session_ = &session;
  window_.progress_ = &progress;
  window_.progressTimer_->start();
}

MainWindow::Part::~Part() {
  window_.progressTimer_->stop();
  window_.progressText_->clear();
  window_.progressText_->setToolTip({});
  window_.session_ = nullptr;
  window_.progress_ = nullptr;
}

void MainWindow::TellEnd(DocumentRunner::End end, const std::string& reason) {
  switch (end) {
    case DocumentRunner::End::kFinished:
      return;
    case DocumentRunner::End::kStopped:
      return Remark(Tr("Stopped. The document is saved; Resume goes on with what has no result yet."));
    case DocumentRunner::End::kAborted:
      return Remark(Tr("Ended by the operator. The document is saved."));
    case DocumentRunner::End::kTesterLost:
      return TellLater(Tr("The run has ended: %%1.", {reason}));
    case DocumentRunner::End::kNotSaved:
      return TellLater(Tr("The run has ended, since the document cannot be saved: %%1", {reason}));
  }
}

void MainWindow::Stop() {
  if (session_) return session_->AskToStop();
  if (calibration_) return calibration_->Cancel();
  if (dialog_) dialog_->Close();
}

void MainWindow::Calibrate() {
  const TesterConnection tester(tester_->Choice(), desk_.Bench().Ports());
  CalibrationWindow window(desk_.Bench(), {});
  {
    const WhileOpen open(calibration_, &window);
    UpdateActions();
    window.Show();
  }
  UpdateActions();
}

void MainWindow::ListenToCalibrations() {
  // The guide opens the dialog too.
  auto& leads = desk_.Bench().Leads();
  leadsStored_ = leads.Stored().Subscribe([this](const LeadCalibration& stored) { Remark(TextOf(stored)); });
  leadsRefused_ = leads.Refused().Subscribe([this](const std::string& reason) { TellLater(reason); });
}

}  // namespace bench::desktop
