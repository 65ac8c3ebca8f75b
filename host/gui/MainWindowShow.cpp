// The window's display.
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <algorithm>
#include <sstream>

#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IConfigData.h"
#include "host/base/Tr.h"
#include "host/gui/DetailsView.h"
#include "host/gui/ElementTree.h"
#include "host/gui/EquipmentBar.h"
#include "host/gui/MainWindow.h"
#include "host/gui/RunProgress.h"
#include "host/gui/TesterBox.h"
#include "host/gui/VerdictBar.h"
#include "host/qt/Conversions.h"
#include "host/report/ReportParts.h"

namespace host::gui {

namespace {

constexpr std::size_t kMostLines = 4;  ///< of a remark; the window must fit on a small screen

/// The first lines, and how many more there are.
std::string Shortened(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream all(text);
  for (std::string line; std::getline(all, line);) lines.push_back(line);
  std::string shown;
  const auto most = lines.size() > kMostLines ? kMostLines - 1 : lines.size();
  for (std::size_t i = 0; i < most; ++i) shown += (i > 0 ? "\n" : "") + lines[i];
  if (most == lines.size()) return shown;
  return shown + "\n" + Tr("%%1 more lines: see the list of tests", {std::to_string(lines.size() - most)});
}

}  // namespace

void MainWindow::Refresh() {
  const bool open = session_.HasDocument();
  if (!open) equipment_->Show({});
  view_ = open ? session_.View() : report::DocumentView{};
  tree_->Show(view_.judged, progress_ ? progress_->Running() : 0);
  ShowVerdict();
  ShowDetails();
  UpdateActions();
  if (!state_.Busy()) UpdateTitle();
}

void MainWindow::ShowVerdict() {
  if (!session_.HasDocument()) return verdict_->Clear();
  auto verdict = report::parts::VerdictOf(view_.judged.elements, view_.judged.outcome);
  // The run may still change the verdict.
  if (state_.Running()) {
    verdict.standing = report::Standing::kOpen;
    verdict.word = Tr("Running");
  }
  verdict_->Show(verdict, view_.judged.simulated);
}

void MainWindow::ShowDetails() {
  if (!session_.HasDocument()) return details_->ShowFacts({}, {Tr("Make a new document, or open one.")});
  try {
    const auto id = tree_->Chosen();
    if (const auto sections = id ? session_.Sections(view_, {*id}) : std::vector<report::Section>{};
        !sections.empty())
      return details_->Show(sections.front(), session_.Settings(*id));
    ShowDocument();
  } catch (const orvik::HostError& error) {
    details_->ShowFacts({}, {error.Description()});
  }
}

void MainWindow::ShowDocument() {
  std::vector<std::string> facts{session_.TheDocument().Path().string()};
  if (const auto& tester = view_.instrument)
    facts.push_back(Tr("Tester %%1, serial number %%2, firmware %%3, test leads %%4 mOhm",
                       {tester->type, tester->serial, tester->firmware, std::to_string(tester->leads)}));
  if (view_.judged.simulated) facts.push_back(report::parts::SimulatedMark().text);
  if (view_.judged.elements.empty()) facts.push_back(Tr("The document has no tests yet: add some."));
  if (view_.judged.run == 0) facts.push_back(Tr("The document has not been run yet."));
  details_->ShowFacts(session_.TheDocument().Path().filename().string(), facts, session_.Runs(view_));
}

void MainWindow::ShowRuns() {
  tree_->clearSelection();
  tree_->setCurrentItem(nullptr);
}

void MainWindow::ShowProgress() {
  if (!progress_) return;
  progressText_->setText(qt::ToQt(progress_->Text()));
  progressText_->setToolTip(qt::PlainToolTip(progress_->Text()));
  progressBar_->setRange(0, static_cast<int>(progress_->Count()));
  progressBar_->setValue(static_cast<int>(progress_->Place()) - (progress_->Place() > 0 ? 1 : 0));
}

void MainWindow::UpdateActions() {
  const bool free = !state_.Busy();
  const bool open = free && session_.HasDocument();
  const auto chosen = open ? tree_->Chosen() : std::nullopt;
  const bool some = open && tree_->topLevelItemCount() > 0;
  for (auto* action : {actions_.create, actions_.open, actions_.calibrate}) action->setEnabled(free);
  for (auto* action : {actions_.save, actions_.saveAs, actions_.add, actions_.runs}) action->setEnabled(open);
  for (auto* action :
       {actions_.newFrom, actions_.limits, actions_.report, actions_.archive, actions_.run, actions_.resume})
    action->setEnabled(some);
  for (auto* action : {actions_.remove, actions_.runSelected, actions_.recordOnly})
    action->setEnabled(chosen.has_value());
  const auto element = chosen ? session_.TheDocument().Find(*chosen) : nullptr;
  const auto configuration = element ? element->Configuration() : nullptr;
  actions_.setUp->setEnabled(configuration && configuration->HasDialog());
  actions_.removeLimits->setEnabled(element && session_.HasLimits(element->ID()));
  actions_.recordOnly->setChecked(element && session_.IsRecordOnly(element->ID()));
  actions_.stop->setEnabled(state_.UsesTester());
  equipment_->setEnabled(open);
  tester_->setEnabled(free);
  operator_->setEnabled(free);
  progressBar_->setVisible(state_.Running());
}

void MainWindow::UpdateTitle() {
  const auto name =
      session_.HasDocument() ? session_.TheDocument().Path().filename().string() + "[*] – " : "[*]";
  setWindowTitle(qt::ToQt(name + "orvik-bench"));
  setWindowModified(session_.Changed());
}

void MainWindow::Remark(const std::string& text) {
  remark_->setText(qt::ToQt(text));
  remark_->setVisible(!text.empty());
}

void MainWindow::Change(const std::function<void()>& change) {
  const auto before = session_.BeforeChange();
  change();
  beforeEdit_.reset();
  Refresh();
  if (const auto text = before.Text(); !text.empty()) Remark(Shortened(text));
}

void MainWindow::EquipmentEdited() {
  if (!session_.HasDocument()) return;
  Try([this] {
    // Compared with the document before the first letter, not with a number that is half typed.
    if (!beforeEdit_) beforeEdit_.emplace(session_.BeforeChange());
    session_.TheDocument().equipment = equipment_->Entered();
    Refresh();
    Remark(Shortened(beforeEdit_->Text()));
  });
}

}  // namespace host::gui
