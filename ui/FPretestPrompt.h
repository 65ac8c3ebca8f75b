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

/// Shows an instruction that the operator acknowledges with OK, above all other windows.
///
/// An event handler may unload or release the prompt. Closing the window acknowledges too. Destroying the
/// prompt unloads its window without an event. Errors of the platform pass to the caller.
class FPretestPrompt final : public std::enable_shared_from_this<FPretestPrompt> {
 public:
  static constexpr std::int32_t kStatusLoaded = 1;
  static constexpr std::int32_t kStatusActivated = 2;
  static constexpr std::int32_t kStatusUnloading = 3;

  static std::shared_ptr<FPretestPrompt> Create();
  ~FPretestPrompt();

  /// Sets the text, untranslated, and the tag, and loads the prompt. Does not show the window.
  void SetPrompt(const std::string& sText, const std::string& sTag);
  std::string Tag() const { return sTag; }
  void Load();
  /// Shows the window without waiting.
  void Show();
  /// Shows the window and processes messages until the operator has acknowledged or the prompt is unloaded.
  void ShowModal();
  void Unload();
  /// Whether the window has been active since it was loaded.
  bool Activated() const { return fActivated; }

  /// 1 loaded, 2 became the active window (each time), 3 is being unloaded.
  orvik::platform::Event<std::int32_t>& PromptStatus() { return mPromptStatus; }

  std::shared_ptr<orvik::platform::IForm> Form() const { return mForm; }

 private:
  void BuildWindow();
  void Listen();
  void OnActivated();
  void OnUnloading();

  bool fActivated = false;
  std::string sTag;
  std::shared_ptr<orvik::platform::IForm> mForm;
  std::shared_ptr<orvik::platform::ILabel> lblPrompt;
  std::shared_ptr<orvik::platform::IButton> cmdOK;
  orvik::platform::Event<std::int32_t> mPromptStatus;
  orvik::platform::Subscription mSubscriptions[3];
};

}  // namespace keld::ui
