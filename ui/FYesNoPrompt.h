#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/Event.h"

namespace orvik::platform {
class IButton;
class IForm;
class ILabel;
}  // namespace orvik::platform

namespace keld::ui {

/// Asks the operator a yes/no question, above all other windows.
///
/// An event handler may hide, unload or release the prompt. Closing the window answers no. Destroying the
/// prompt unloads its window without an event. Errors of the platform pass to the caller.
class FYesNoPrompt final : public std::enable_shared_from_this<FYesNoPrompt> {
 public:
  static constexpr std::int32_t kYes = 1;
  static constexpr std::int32_t kNo = 2;
  static constexpr std::int32_t kStatusLoaded = 1;
  static constexpr std::int32_t kStatusActivated = 2;
  static constexpr std::int32_t kStatusUnloading = 3;

  static std::shared_ptr<FYesNoPrompt> Create();
  ~FYesNoPrompt();

  /// Loads the prompt with its default captions and question, if it is not loaded yet.
  void Load();
  /// Loads the prompt if needed and sets the question, a language string. Does not show the window.
  void SetPrompt(const std::string& sText);
  /// Shows the window without waiting.
  void Show();
  /// Shows the window and processes messages until it is hidden or unloaded.
  void ShowModal();
  void Hide();
  void Unload();
  /// Whether the window has been active since it was loaded.
  bool Activated() const { return fActivated; }

  /// The operator has answered: 1 yes, 2 no. The window is hidden afterwards and stays loaded.
  orvik::platform::Event<std::int32_t>& YesNoOption() { return mYesNoOption; }
  /// 1 loaded, 2 became the active window (each time), 3 is being unloaded; and the prompt itself.
  orvik::platform::Event<std::int32_t, const std::shared_ptr<FYesNoPrompt>&>& YesNoStatusChanged() {
    return mYesNoStatusChanged;
  }

  std::shared_ptr<orvik::platform::IForm> Form() const { return mForm; }

 private:
  void BuildWindow();
  void Listen();
  void Accept() { Answer(kYes); }
  void Decline() { Answer(kNo); }
  void Answer(std::int32_t lOption);
  void OnActivated();
  void OnKeyDown(int iKey, int iShift);
  void OnCloseRequested(bool& fKeepOpen);
  void OnUnloading();

  bool fActivated = false;
  std::shared_ptr<orvik::platform::IForm> mForm;
  std::shared_ptr<orvik::platform::ILabel> lblPrompt;
  std::shared_ptr<orvik::platform::IButton> cmdAccept;
  std::shared_ptr<orvik::platform::IButton> cmdDecline;
  orvik::platform::Event<std::int32_t> mYesNoOption;
  orvik::platform::Event<std::int32_t, const std::shared_ptr<FYesNoPrompt>&> mYesNoStatusChanged;
  orvik::platform::Subscription mSubscriptions[6];
};

}  // namespace keld::ui
