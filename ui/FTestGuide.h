#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "OrvikTypeLib/ITgToolbarEvents.h"
#include "platform/Event.h"
#include "platform/Types.h"
#include "ui/TestGuideWindow.h"

namespace keld::model {
class IKELDTest;
}

namespace orvik {
class IRunController;
class IStandardColl;
class ITestElement;
}  // namespace orvik

namespace keld::ui {

/// The window in which the operator steps through one element's run. Every button becomes a call to the
/// element's `IKELDTest`; the window holds no test logic.
///
/// While a test runs, only stop, play (which then stops) and abort act. Closing the window aborts, after its
/// question. The element may hide, unload and release the guide from inside any of these calls. The guide
/// keeps neither the element nor the run controller alive. The operations pass the platform's errors to the
/// caller; the buttons ignore errors step by step.
class FTestGuide final : public virtual orvik::ITgToolbarEvents {
 public:
  static std::shared_ptr<FTestGuide> Create();
  ~FTestGuide() override;

  /// Builds the window; loading twice changes nothing.
  void Load();
  /// Opens the guide for an element: loads it if needed, and shows the run controller's first standard.
  /// @param RunController may be empty: then no standard is shown
  void Initialize(std::shared_ptr<orvik::ITestElement> iteElement,
                  std::shared_ptr<orvik::IRunController> RunController);
  /// Shows the guide and processes messages until it is hidden or unloaded.
  void ShowModal();
  void Hide();
  void Unload();
  /// Repaints the window and shows the current instrument data.
  void Refresh();
  /// Shows the element's result in the result view.
  void ShowResult(std::shared_ptr<orvik::ITestElement> iteElement);

  /// True while a test runs.
  bool Running() const { return fRunning; }
  std::shared_ptr<orvik::platform::IForm> Form() const { return mWindow.Form; }

 private:
  void ITgToolbarEvents_OnCommand(std::int32_t lCommand) override;

  void Listen();
  void OnCloseRequested(bool& fKeepOpen);
  void OnResultsMouseUp(int iButton, int iShift, orvik::platform::Twips lX, orvik::platform::Twips lY);

  void Abort();
  void Play();
  void RunRoutine();
  void StopRoutine();
  void CalibrateRoutine();
  bool FinishedHere() const;

  void SetButtons();
  void SetStatusText(const char* sText);
  void ShowGuidance();
  void RefreshInstrumentData();
  void SelectStandard(std::int32_t lIndex);

  TestGuideWindow mWindow;
  // Weak: the element holds the guide, and the caller of `Perform` holds the controller.
  std::weak_ptr<model::IKELDTest> mTest;
  std::weak_ptr<orvik::ITestElement> mElement;
  std::weak_ptr<orvik::IRunController> mRunController;
  bool fBuilt = false;
  bool fRunning = false;
  /// A run has ended since the guide was opened.
  bool fRanHere = false;
  /// The question whether to end the test is on the screen.
  bool fAborting = false;
  /// The run controller's standard that the result view shows, counted from 1; 0 none.
  std::int32_t lStandard = 0;
  orvik::platform::Subscription mCloseRequested;
  orvik::platform::Subscription mResultsMouseUp;
};

}  // namespace keld::ui
