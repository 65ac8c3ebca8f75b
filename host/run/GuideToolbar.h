#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/ITgToolbar.h"
#include "host/plugins/keld/KeldWindows.h"
#include "platform/IApplication.h"
#include "platform/IForm.h"

namespace host::run {

/// The toolbar of a test guide's window; empty when it has none.
std::shared_ptr<orvik::ITgToolbar> GuideToolbar(const orvik::platform::IForm& form);

/// Shows the judge's verdict below the buttons of the visible guide; an empty text hides it.
void ShowJudgement(const orvik::platform::IApplication& application, const std::string& text);

/// The caption of the form's control; empty when there is none.
std::string CaptionOf(const orvik::platform::IForm& form, const std::string& control);

/// Clicks the form's button, as the operator does.
void ClickButton(const orvik::platform::IForm& form, const std::string& button);

/// Leaves the visible prompt and guide: answers the prompt, stops the running test, and presses next in a
/// guide without one. A prompt or guide that appears later needs another call.
void LeaveGuide(const orvik::platform::IApplication& application);

}  // namespace host::run
