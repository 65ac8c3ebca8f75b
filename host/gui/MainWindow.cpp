#include "host/gui/MainWindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QToolBar>
#include <algorithm>
#include <iostream>
#include <utility>

#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IConfigData.h"
#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/gui/DetailsView.h"
#include "host/gui/Dialogs.h"
#include "host/gui/ElementTree.h"
#include "host/gui/EquipmentBar.h"
#include "host/gui/MenuText.h"
#include "host/gui/PlainTextValidator.h"
#include "host/gui/RunProgress.h"
#include "host/gui/TesterBox.h"
#include "host/gui/VerdictBar.h"
#include "host/qt/Conversions.h"

namespace host::gui {

namespace {

constexpr QSize kWindowSize(1260, 780);
constexpr int kFrameHeight = 60;  ///< title and borders, at most
constexpr int kProgressMilliseconds = 250;

/// A label before a box that it names, with its access key.
QLabel* LabelFor(QWidget* box, const std::string& text) {
  auto* label = new QLabel(" " + qt::ToQt(text) + " ");
  label->setBuddy(box);
  return label;
}

}  // namespace

MainWindow::MainWindow(bench::Workbench& workbench, const bench::GlobalOptions& options,
                       std::function<void()> quit)
    : session_(workbench, options), quit_(std::move(quit)) {
  setObjectName("main");
  FitToScreen();
  MakeActions();
  MakeMenus();
  MakeToolbars();
  MakeBody();
  progressTimer_ = new QTimer(this);
  progressTimer_->setInterval(kProgressMilliseconds);
  connect(progressTimer_, &QTimer::timeout, this, [this] {
    ShowProgress();
    if (runChanged_) Later([this] { ShowRun(); }, When::kAlways);
  });
  SubscribeToCalibrations();
  ShowOpened();
}

MainWindow::~MainWindow() = default;

void MainWindow::FitToScreen() {
  const QSize available = screen()->availableSize();
  resize(kWindowSize.boundedTo(available));
  // On a small screen the window with its frame would not fit.
  if (available.width() <= kWindowSize.width() || available.height() <= kWindowSize.height() + kFrameHeight)
    setWindowState(Qt::WindowMaximized);
}

void MainWindow::Open(const std::filesystem::path& file) {
  session_.Open(file);
  ShowOpened();
  std::error_code none;
  if (const auto unsaved = session_.UnsavedFile(); std::filesystem::exists(unsaved, none))
    Remark(
        Tr("An earlier session left changes of this document unsaved; they are in %%1: open that file to "
           "keep them, or remove it.",
           {unsaved.string()}));
}

void MainWindow::ShowOpened() {
  beforeEdit_.reset();
  equipment_->Show(session_.HasDocument() ? session_.TheDocument().equipment
                                          : document::Document::Equipment{});
  Remark(bench::TimeScaleRemark(session_.Bench().TimeScale()));
  Refresh();
  FocusForScan();
}

void MainWindow::FocusForScan() {
  if (session_.HasDocument() && session_.TheDocument().equipment.asset.empty())
    equipment_->FocusOnAsset();
  else
    tree_->setFocus(Qt::OtherFocusReason);
}

void MainWindow::EndByRequest() {
  state_.RequireClose();
  CloseQuestions();
  if (state_.Running()) leftOver_ = true;
  Stop();
  CloseIfReady();
}

void MainWindow::ShowErrorLater(const std::string& error) {
  if (std::find(pendingErrors_.begin(), pendingErrors_.end(), error) == pendingErrors_.end())
    pendingErrors_.push_back(error);
  Remark(error);
  Later([] {}, When::kAlways);
}

void MainWindow::ReportPendingErrors() {
  // A message box would hold up the session with the tester. One box at a time is enough.
  if (state_.UsesTester() || reportingErrors_) return;
  reportingErrors_ = true;
  while (!pendingErrors_.empty()) {
    const auto error = pendingErrors_.front();
    pendingErrors_.erase(pendingErrors_.begin());
    ReportError(error);
  }
  reportingErrors_ = false;
}

void MainWindow::ReportError(const std::string& error) {
  if (state_.Unattended())
    std::cerr << "orvik-bench: " << error << std::endl;
  else
    ShowError(this, error);
}

QAction* MainWindow::NewAction(const char* name, const std::string& text, const QKeySequence& keys,
                               void (MainWindow::*work)(), When when) {
  auto* action = new QAction(qt::ToQt(text), this);
  action->setIconText(ButtonText(text));
  action->setObjectName(name);
  action->setShortcut(keys);
  connect(action, &QAction::triggered, this,
          [this, work, when] { Later([this, work] { (this->*work)(); }, when); });
  addAction(action);
  return action;
}

void MainWindow::MakeActions() {
  const auto icon = [this](QStyle::StandardPixmap picture) { return style()->standardIcon(picture); };
  actions_.create = NewAction("new", Tr("&New..."), QKeySequence::New, &MainWindow::New);
  actions_.create->setIcon(icon(QStyle::SP_FileIcon));
  actions_.open = NewAction("open", Tr("&Open..."), QKeySequence::Open, &MainWindow::OpenOther);
  actions_.open->setIcon(icon(QStyle::SP_DialogOpenButton));
  actions_.save = NewAction("save", Tr("&Save"), QKeySequence::Save, &MainWindow::Save);
  actions_.save->setIcon(icon(QStyle::SP_DialogSaveButton));
  actions_.saveAs = NewAction("saveAs", Tr("Sa&ve as..."), QKeySequence::SaveAs, &MainWindow::SaveAs);
  actions_.newFrom = NewAction("newFrom", Tr("New for the next &device..."), {}, &MainWindow::NewFromThis);
  actions_.runs = NewAction("runs", Tr("R&uns of the document"), Qt::Key_F9, &MainWindow::ShowRuns);
  actions_.report = NewAction("report", Tr("Re&port..."), QKeySequence::Print, &MainWindow::Report);
  actions_.archive = NewAction("archive", Tr("Add to &archive"), {}, &MainWindow::AddToArchive);
  actions_.quit = new QAction(qt::ToQt(Tr("&Quit")), this);
  actions_.quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
  connect(actions_.quit, &QAction::triggered, this, &QWidget::close);
  actions_.add = NewAction("addTests", Tr("&Add tests..."), Qt::Key_Insert, &MainWindow::AddTests);
  actions_.remove = NewAction("remove", Tr("&Remove"), Qt::CTRL | Qt::Key_Delete, &MainWindow::Remove);
  actions_.limits =
      NewAction("limits", Tr("&Limits from set..."), Qt::CTRL | Qt::Key_L, &MainWindow::SetLimits);
  actions_.removeLimits = NewAction("removeLimits", Tr("Remo&ve its limits"), {}, &MainWindow::RemoveLimits);
  actions_.recordOnly = NewAction("recordOnly", Tr("Record &only"), {}, &MainWindow::SetRecordOnly);
  actions_.recordOnly->setCheckable(true);
  actions_.recordOnly->setToolTip(qt::ToQt(
      Tr("Readings of the chosen element are recorded and not judged; without this mark and without a "
         "limit the document stays incomplete")));
  actions_.setUp = NewAction("setUp", Tr("Set &up..."), Qt::CTRL | Qt::Key_U, &MainWindow::SetUp);
  actions_.calibrate = NewAction("calibrate", Tr("&Calibrate leads..."), {}, &MainWindow::Calibrate);
  actions_.run = NewAction("run", Tr("&Run"), Qt::Key_F5, &MainWindow::RunAll);
  actions_.run->setIcon(icon(QStyle::SP_MediaPlay));
  actions_.resume = NewAction("resume", Tr("R&esume"), Qt::Key_F6, &MainWindow::Resume);
  actions_.runSelected = NewAction("runSelected", Tr("Run se&lected"), Qt::Key_F7, &MainWindow::RunSelected);
  actions_.stop = NewAction("stop", Tr("S&top"), Qt::Key_F8, &MainWindow::Stop, When::kAlways);
  actions_.stop->setIcon(icon(QStyle::SP_MediaStop));
  // The guide has the focus during a run.
  actions_.stop->setShortcutContext(Qt::ApplicationShortcut);
  actions_.resume->setToolTip(qt::ToQt(Tr("Run only what has no result yet (F6)")));
  actions_.stop->setToolTip(
      qt::ToQt(Tr("Drop the running test and close the session with the tester in good order (F8)")));
}

void MainWindow::MakeMenus() {
  const auto add = [this](const std::string& title, std::initializer_list<QAction*> actions) {
    auto* menu = menuBar()->addMenu(qt::ToQt(title));
    for (auto* action : actions) action ? menu->addAction(action) : (void)menu->addSeparator();
  };
  add(Tr("&Document"), {actions_.create, actions_.newFrom, actions_.open, actions_.save, actions_.saveAs,
                        nullptr, actions_.runs, actions_.report, actions_.archive, nullptr, actions_.quit});
  add(Tr("&Tests"), {actions_.add, actions_.remove, nullptr, actions_.limits, actions_.removeLimits,
                     actions_.recordOnly, actions_.setUp});
  add(Tr("&Run"), {actions_.run, actions_.resume, actions_.runSelected, nullptr, actions_.stop, nullptr,
                   actions_.calibrate});
}

void MainWindow::MakeToolbars() {
  const auto add = [this](const char* name, const std::string& title) {
    auto* bar = addToolBar(qt::ToQt(title));
    bar->setObjectName(name);
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    return bar;
  };
  auto* document = add("documentBar", Tr("Document"));
  document->addActions({actions_.create, actions_.open, actions_.save});
  document->addSeparator();
  document->addActions({actions_.add, actions_.remove, actions_.limits, actions_.setUp});
  document->addSeparator();
  document->addActions({actions_.report, actions_.archive});
  addToolBarBreak();

  auto* run = add("runBar", Tr("Run"));
  run->addActions({actions_.run, actions_.resume, actions_.runSelected, actions_.stop});
  run->addSeparator();
  tester_ = new TesterBox(session_.Bench().TimeScale(), run);
  run->addWidget(LabelFor(tester_, Tr("Tester")));
  run->addWidget(tester_);
  // A scan must not change the tester's port.
  tester_->OnChosen([this] { FocusForScan(); });
  run->addAction(actions_.calibrate);
  run->addSeparator();
  operator_ = new QLineEdit(qt::ToQt(bench::OperatorName({})), run);
  operator_->setObjectName("operator");
  operator_->setValidator(new PlainTextValidator(operator_));
  operator_->setAccessibleName(qt::ToQt(Tr("Operator")));
  operator_->setMaximumWidth(220);
  run->addWidget(LabelFor(operator_, Tr("Operator")));
  run->addWidget(operator_);
}

void MainWindow::MakeBody() {
  auto* body = new QWidget(this);
  auto* layout = new QVBoxLayout(body);
  equipment_ = new EquipmentBar([this] { EquipmentEdited(); }, body);
  auto* halves = new QSplitter(body);
  halves->setChildrenCollapsible(false);
  tree_ = new ElementTree(halves);
  details_ = new DetailsView(halves);
  halves->setStretchFactor(0, 3);
  halves->setStretchFactor(1, 2);
  halves->setSizes({2 * kWindowSize.width() / 3, kWindowSize.width() / 3});
  remark_ = new QLabel(body);
  remark_->setObjectName("remark");
  remark_->setTextFormat(Qt::PlainText);
  remark_->setWordWrap(true);
  verdict_ = new VerdictBar(body);
  layout->addWidget(equipment_);
  layout->addWidget(halves, 1);
  layout->addWidget(remark_);
  layout->addWidget(verdict_);
  setCentralWidget(body);

  progressText_ = new QLabel(this);
  progressText_->setObjectName("progress");
  progressText_->setTextFormat(Qt::PlainText);
  // A long text must not widen the window.
  progressText_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  progressBar_ = new QProgressBar(this);
  progressBar_->setAccessibleName(qt::ToQt(Tr("Progress of the run")));
  progressBar_->setFormat("%v / %m");
  progressBar_->setMaximumWidth(160);
  progressBar_->setVisible(false);
  statusBar()->addWidget(progressText_, 1);
  statusBar()->addPermanentWidget(progressBar_);
  tree_->OnChosen([this] {
    ShowDetails();
    UpdateActions();
  });
}

void MainWindow::Later(std::function<void()> work, When when) {
  session_.Bench().Application()->Post([this, when, work = std::move(work)] {
    if (when == When::kIdle && !state_.AcceptsCommand()) return;
    {
      const auto working = state_.Work();
      Try(work);
      ReportPendingErrors();
    }
    CloseIfReady();
  });
}

void MainWindow::Try(const std::function<void()>& work) {
  std::string failure;
  try {
    work();
  } catch (const orvik::HostError& error) {
    failure = error.Description();
  } catch (const bench::InputError& error) {
    failure = error.what();
  } catch (const bench::IncompleteError& error) {
    failure = error.what();
  } catch (const std::exception& error) {
    failure = Tr("internal error: %%1", {error.what()});
  }
  if (failure.empty()) return;
  ReportError(failure);
  Refresh();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();  // `CloseWindow` closes it after the run
  Later(
      [this] {
        if (state_.Running() && state_.CloseStatus() == WindowState::Closing::kNo &&
            Ask(this,
                Tr("%%1 is being tested. Stop the run, close the session with the tester, and quit?",
                   {session_.Device()}),
                {Tr("Stop and quit"), Tr("Go on with the run")}) != 0)
          return;
        state_.Close();
        Stop();
      },
      When::kAlways);
}

void MainWindow::CloseIfReady() {
  if (!state_.ReadyToClose()) return;
  state_.KeepOpen();  // until the question about changes is answered
  if (state_.Unattended() || MayLeaveDocument()) CloseWindow();
}

void MainWindow::CloseWindow() {
  if (state_.Unattended() && session_.Changed()) {
    leftOver_ = true;
    Try([this] {
      std::cerr << "orvik-bench: "
                << Tr("the changes of %%1 were not saved; they are kept in %%2",
                      {session_.TheDocument().Path().string(), session_.KeepUnsaved().string()})
                << std::endl;
    });
  }
  state_.Closed();
  hide();
  quit_();
}

}  // namespace host::gui
