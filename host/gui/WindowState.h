#pragma once

#include <functional>

namespace host::gui {

/// What the window is doing, and whether it is about to close. Every change of either is one of the
/// operations below.
class WindowState {
 public:
  enum class Activity {
    kIdle,
    kWorking,      ///< carries out a command, which may have a dialog open
    kSettingUp,    ///< shows the plug-in's settings dialog
    kCalibrating,  ///< measures the test leads
    kRunning,      ///< runs the document; a session with the tester is open
  };
  enum class Closing {
    kNo,
    kWanted,    ///< the user closed the window; it closes after the activity, unless a question keeps it open
    kRequired,  ///< the program has to end; the window closes after the activity, without questions
    kDone,
  };

  /// Keeps an activity on until it is destroyed, then restores the activity before it.
  class [[nodiscard]] Scope {
   public:
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;
    ~Scope();

   private:
    friend class WindowState;
    Scope(WindowState& state, Activity before) : state_(state), before_(before) {}

    WindowState& state_;
    const Activity before_;
  };

  Activity Current() const { return activity_; }
  /// Whether something is on that only `Stop` ends: a run, a calibration or the settings dialog.
  bool Busy() const { return activity_ > Activity::kWorking; }
  /// Whether a port may be open, so that no message may wait for the user.
  bool UsesTester() const { return activity_ > Activity::kSettingUp; }
  bool Running() const { return activity_ == Activity::kRunning; }
  /// Whether a command may begin. One that is asked for twice, as by a double click, is carried out once.
  bool AcceptsCommand() const { return activity_ == Activity::kIdle && closing_ != Closing::kDone; }

  /// A command begins; inside a longer activity that one stays the current one.
  Scope Work();
  /// An activity begins that `stop` ends. `std::logic_error` while another is on.
  Scope Begin(Activity activity, std::function<void()> stop);
  /// Asks what is on to end; does nothing when `Busy` is false.
  void Stop();

  Closing CloseStatus() const { return closing_; }
  /// Whether errors go to the standard error, because the user may not be there to close a message.
  bool Unattended() const { return closing_ >= Closing::kRequired; }
  /// Whether the window is to close now.
  bool ReadyToClose() const;
  /// The user wants to close the window.
  void Close();
  /// The program has to end.
  void RequireClose();
  /// The user decided to keep the window open after all.
  void KeepOpen();
  void Closed() { closing_ = Closing::kDone; }

 private:
  Activity activity_ = Activity::kIdle;
  Closing closing_ = Closing::kNo;
  std::function<void()> stop_;
};

}  // namespace host::gui
