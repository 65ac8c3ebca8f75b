#pragma once

#include <QMainWindow>
#include <functional>
#include <string>
#include <vector>

#include "host/bench/RunSelection.h"
#include "host/bench/TesterConnection.h"
#include "host/gui/DocumentSession.h"
#include "host/gui/WindowState.h"
#include "host/run/DocumentRunner.h"

class QLabel;
class QLineEdit;
class QProgressBar;
class QTimer;
class QToolBar;

namespace host::serial {
class WireLog;
}

namespace host::gui {

class DetailsView;
class ElementTree;
class EquipmentBar;
class RunProgress;
class TesterBox;
class VerdictBar;

/// The window: a document, its elements, the details of the selected one, the verdict, and all commands that
/// a technician gives.
///
/// Commands run from the application's message queue, never inside Qt's own calls, so that a run can wait and
/// be stopped. Error messages are those of the command line.
class MainWindow : public QMainWindow {
 public:
  /// @param quit called after the window has closed
  MainWindow(bench::Workbench& workbench, const bench::GlobalOptions& options, std::function<void()> quit);
  ~MainWindow() override;

  /// Opens a document. Throws on errors.
  void Open(const std::filesystem::path& file);
  /// Ends the program without questions: stops a run, closes the session with the tester, and keeps unsaved
  /// changes beside the document.
  void EndByRequest();
  /// Whether `EndByRequest` stopped a run or left changes unsaved.
  bool LeftOver() const { return leftOver_; }
  /// Shows an error in the line for remarks at once, and in a message box as soon as no session with the
  /// tester is open. The same error is shown once.
  void ShowErrorLater(const std::string& error);

 private:
  struct Actions {
    QAction *create, *newFrom, *open, *save, *saveAs, *runs, *report, *archive;
    QAction *add, *remove, *limits, *removeLimits, *recordOnly, *setUp;
    QAction *calibrate, *run, *resume, *runSelected, *stop, *quit;
  };

  /// Shows the progress of a run while it lasts.
  class ProgressDisplay {
   public:
    ProgressDisplay(MainWindow& window, RunProgress& progress);
    ProgressDisplay(const ProgressDisplay&) = delete;
    ProgressDisplay& operator=(const ProgressDisplay&) = delete;
    ~ProgressDisplay();

   private:
    MainWindow& window_;
  };

  /// Whether a command may begin while another is carried out.
  enum class When { kIdle, kAlways };

  void FitToScreen();
  void MakeActions();
  QAction* NewAction(const char* name, const std::string& text, const QKeySequence& keys,
                     void (MainWindow::*work)(), When when = When::kIdle);
  void MakeMenus();
  void MakeToolbars();
  void MakeBody();

  void Later(std::function<void()> work, When when = When::kIdle);
  void Try(const std::function<void()>& work);
  void ReportError(const std::string& error);
  void ReportPendingErrors();

  /// Shows the document that was opened, or that none is open.
  void ShowOpened();
  /// Moves the focus to the asset number while that is empty, otherwise to the list, where a scan changes
  /// nothing.
  void FocusForScan();
  void Refresh();
  void ShowVerdict();
  void ShowDetails();
  void ShowDocument();
  /// Selects no element, so that the details are those of the document.
  void ShowRuns();
  void ShowProgress();
  void UpdateActions();
  void UpdateTitle();
  void Remark(const std::string& text);
  /// Makes a change and remarks which results it affects.
  void Change(const std::function<void()>& change);
  void EquipmentEdited();

  // Document commands, in MainWindowDocument.cpp.
  void New();
  void NewFromThis();
  void OpenOther();
  void Save();
  void SaveAs();
  void ShowSaved();
  void AddTests();
  void Remove();
  void SetLimits();
  void RemoveLimits();
  void SetRecordOnly();
  void SetUp();
  void Report();
  void AddToArchive();
  /// Asks what to do with unsaved changes; false if the user wants to keep the document open.
  bool MayLeaveDocument();
  /// The file that the user chose for a new document; empty if none.
  std::optional<std::filesystem::path> AskForNewDocument(const std::string& title);
  std::filesystem::path Folder() const;

  // Commands that use the tester, in MainWindowRun.cpp.
  void RunAll() { Run({}); }
  void Resume();
  void RunSelected();
  void Run(bench::RunSelection selection);
  bool MayReplaceResults(const std::vector<std::shared_ptr<orvik::ITestElement>>& elements);
  void PerformRun(const std::vector<std::shared_ptr<orvik::ITestElement>>& elements, serial::WireLog& log,
                  const bench::TesterConnection& tester);
  /// Shows the run now, or a little later if it was shown just before: judging a large document takes time,
  /// and the window must respond.
  void RunChanged();
  void ShowRun();
  /// Shows how each standard judged the readings in the guide, whose own list shows the limits of one
  /// standard.
  void ShowJudgementInGuide();
  void ShowEnd(run::DocumentRunner::End end, const std::string& reason);
  void Stop() { state_.Stop(); }
  void Calibrate();
  void SubscribeToCalibrations();

  void closeEvent(QCloseEvent* event) override;
  void CloseIfReady();
  void CloseWindow();

  DocumentSession session_;
  const std::function<void()> quit_;
  Actions actions_{};
  EquipmentBar* equipment_ = nullptr;
  TesterBox* tester_ = nullptr;
  QLineEdit* operator_ = nullptr;
  ElementTree* tree_ = nullptr;
  DetailsView* details_ = nullptr;
  VerdictBar* verdict_ = nullptr;
  QLabel* remark_ = nullptr;
  QLabel* progressText_ = nullptr;
  QProgressBar* progressBar_ = nullptr;
  QTimer* progressTimer_ = nullptr;

  WindowState state_;
  report::DocumentView view_;                      ///< the document as it is shown
  std::optional<bench::Consequences> beforeEdit_;  ///< before the first letter was typed into the equipment
  RunProgress* progress_ = nullptr;                ///< during a run
  bool runChanged_ = false;                        ///< since it was shown
  orvik::platform::Time runShown_{};
  std::vector<std::string> pendingErrors_;  ///< of `ShowErrorLater`
  bool reportingErrors_ = false;
  bool leftOver_ = false;
  orvik::platform::Subscription leadsStored_, leadsRefused_;
};

}  // namespace host::gui
