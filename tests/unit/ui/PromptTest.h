#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "host/base/LanguageService.h"
#include "platform/Controls.h"
#include "platform/IForm.h"
#include "tests/support/HostOnly.h"
#include "tests/support/TemporaryFolder.h"
#include "ui/FPretestPrompt.h"
#include "ui/FYesNoPrompt.h"

namespace support {

using Numbers = std::vector<std::int32_t>;

/// Subscribes to the status notices of either prompt.
template <class Told>
orvik::platform::Subscription OnStatus(keld::ui::FYesNoPrompt& prompt, Told told) {
  return prompt.YesNoStatusChanged().Subscribe([told](std::int32_t status, const auto&) { told(status); });
}
template <class Told>
orvik::platform::Subscription OnStatus(keld::ui::FPretestPrompt& prompt, Told told) {
  return prompt.PromptStatus().Subscribe([told](std::int32_t status) { told(status); });
}

/// Sets the text as a caller does.
inline void SetText(keld::ui::FYesNoPrompt& prompt) { prompt.SetPrompt("20999::Go on?"); }
inline void SetText(keld::ui::FPretestPrompt& prompt) { prompt.SetPrompt("Connect the lead.", ""); }

/// The affirmative button.
inline const char* FirstButton(const keld::ui::FYesNoPrompt&) { return "cmdAccept"; }
inline const char* FirstButton(const keld::ui::FPretestPrompt&) { return "cmdOK"; }

inline void ClickOn(const orvik::platform::IForm& form, const std::string& button) {
  orvik::Required(orvik::As<orvik::platform::IButton>(form.Find(button))).Click();
}

/// From now on the host translates text 3 to "KELD 3" for the plug-in and to "orvik 3" for itself. Call it
/// before the plug-in translates a text.
inline void SpeakByModule(host::document::Host& host, const std::filesystem::path& folder) {
  for (const std::string module : {"KELD", "orvik"}) {
    std::ofstream file(folder / (module + ".xx.po"));
    file << "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n\n";
    for (const std::string number : {"1", "3", "4", "202", "20001", "20450", "20999"})
      file << "msgctxt \"" << number << "\"\nmsgid \"x\"\nmsgstr \"" << module << " " << number << "\"\n\n";
  }
  host.Register(orvik::HostClasses::kLanguageService, [folder] {
    return std::make_shared<host::LanguageService>("xx", std::vector<std::filesystem::path>{folder});
  });
}

/// A prompt on the real host; records its status notices.
template <class Prompt>
class PromptTest : public testing::Test {
 protected:
  PromptTest()
      : prompt_(Prompt::Create()),
        listening_(OnStatus(*prompt_, [this](std::int32_t status) { statuses_.push_back(status); })) {}

  std::shared_ptr<orvik::platform::IForm> Form() const { return prompt_->Form(); }
  std::string Caption(const std::string& control) const { return Form()->Find(control)->Caption(); }
  void Click(const std::string& button) const { ClickOn(*Form(), button); }

  HostOnly host_;
  std::shared_ptr<Prompt> prompt_;
  Numbers statuses_;

 private:
  orvik::platform::Subscription listening_;
};

}  // namespace support
