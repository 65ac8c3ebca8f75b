#pragma once

#include <QMainWindow>
#include <functional>
#include <string>
#include <vector>

#include "host/app/TesterConnection.h"
#include "host/app/run/RunSelection.h"
#include "host/desktop/Desk.h"
#include "host/run/DocumentRunner.h"

class QLabel;
class QLineEdit;
class QProgressBar;
class QTimer;
class QToolBar;

namespace orvik::platform {
class IForm;
}

namespace bench {
class CalibrationWindow;
class RunSession;
class TesterConnection;
class WireLog;
}  // namespace bench

namespace bench::desktop {

class DetailsView;
class ElementTree;
class EquipmentBar;
class RunProgress;
class TesterBox;
class VerdictBar;

/// The window: a document, its elements, what there is to tell of the chosen one, the verdict, and everything
/// that a technician does with them.
///
/// Whatever is asked for runs from the application's message queue, never inside the toolkit's own calls, so
/// that a run can wait and be stopped. Errors are shown in the words of the command line.
class MainWindow : public QMainWindow {
 public:
  /// @param quit called when the window has been closed for good
  MainWindow(Workbench& workbench, const GlobalOptions& options, std::function<void()> quit);
  ~MainWindow() override;

  /// Opens a document; errors are thrown.
  void Open(const std::filesystem::path& file);
  /// The program is told to end: nobody is asked. A run ends in good order first; changes that were not saved
  /// are kept beside the document.
  void EndByRequest();
  /// Whether a run was stopped, or changes were left unsaved, by `EndByRequest`.
  bool LeftOver() const { return leftOver_; }
  /// Shows an error once what goes on now has ended: at once in the line for remarks, and to be closed when
  /// no session with the tester is on.
  void TellLater(const std::string& error);

 private:
  struct Actions {
    QAction *create, *newFrom, *open, *save, *saveAs, *runs, *report, *archive;
    QAction *add, *remove, *limits, *removeLimits, *recordOnly, *setUp;
    QAction *calibrate, *run, *resume, *runSelected, *stop, *quit;
  };

  /// The window's part of a run, for as long as that is on.
  class Part {
   public:
    Part(MainWindow& window, RunSession& session, RunProgress& progress);
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;
    ~Part();

   private:
    MainWindow& window_;
  };

  /// Whether something may begin while something else goes on.
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
  void Tell(const std::string& error);
  void TellWhatWaits();
  bool Busy() const { return session_ || calibration_ || dialog_; }

  /// Shows the document on the desk, or that there is none, from the beginning.
  void Begin();
  /// Moves the keyboard to where a scanned asset number belongs: to its field while that is empty, else to
  /// the list, where a scan changes nothing.
  void FocusForScan();
  void Refresh();
  void ShowVerdict();
  void ShowDetails();
  void ShowDocument();
  /// Chooses no element: the details are those of the document.
  void ShowRuns();
  void ShowProgress();
  void UpdateActions();
  void UpdateTitle();
  void Remark(const std::string& text);
  /// Makes a change and remarks which results count otherwise because of it.
  void Change(const std::function<void()>& change);
  void EquipmentEdited();

  // Of the document.
  void New();
  void NewFromThis();
  void OpenOther();
  void Save();
  void SaveAs();
  void TellSaved();
  void AddTests();
  void Remove();
  void SetLimits();
  void RemoveLimits();
  void SetRecordOnly();
  void SetUp();
  void Report();
  void AddToArchive();
  /// Asks what is to become of unsaved changes; false when the person would rather go on.
  bool MayLeaveDocument();
  std::filesystem::path Folder() const;

  // With the tester.
  void RunAll() { Run({}); }
  void Resume();
  void RunSelected();
  void Run(RunSelection selection);
  bool MayReplaceResults(const std::vector<std::shared_ptr<orvik::ITestElement>>& elements);
  void PerformRun(const std::vector<std::shared_ptr<orvik::ITestElement>>& elements, WireLog& log,
                  const TesterConnection& tester);
  /// Has the run shown: now, or a little later when it was shown just before. To judge a large document takes
  /// time that belongs to the person at the window.
  void RunChanged();
  void ShowRun();
  /// Which standards the readings in the guide fail or keep: its own list shows the limits of one alone.
  void ShowJudgementInGuide();
  void TellEnd(DocumentRunner::End end, const std::string& reason);
  void Stop();
  void Calibrate();
  void ListenToCalibrations();

  void closeEvent(QCloseEvent* event) override;
  void LeaveIfOver();
  void Leave();

  Desk desk_;
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

  DocumentView view_;                       ///< what is shown
  std::optional<Consequences> beforeEdit_;  ///< before the first letter was typed into the equipment
  bool runChanged_ = false;                 ///< since it was shown
  orvik::platform::Time runShown_{};

  RunSession* session_ = nullptr;  ///< while a run is on
  RunProgress* progress_ = nullptr;
  CalibrationWindow* calibration_ = nullptr;  ///< while it is shown
  orvik::platform::IForm* dialog_ = nullptr;  ///< the plug-in's for settings, while it is shown
  std::vector<std::string> untold_;           ///< errors that `TellLater` has been given
  bool telling_ = false;
  orvik::platform::Subscription leadsStored_, leadsRefused_;
  bool working_ = false;
  bool leaveWhenOver_ = false;  ///< once nothing is open any more
  bool byRequest_ = false;
  bool left_ = false;
  bool leftOver_ = false;
};

}  // namespace bench::desktop
