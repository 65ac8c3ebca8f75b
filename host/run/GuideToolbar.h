#pragma once

#include <cstdint>
#include <memory>

#include "OrvikTypeLib/ITgToolbar.h"
#include "platform/IApplication.h"
#include "platform/IForm.h"

namespace bench {

/// Names of the plug-in's windows and of their controls, and the guide's buttons.
namespace guide {

inline constexpr char kGuideForm[] = "FTestGuide";
inline constexpr char kToolbar[] = "xtbToolbar";
inline constexpr char kJudgement[] = "lblJudgement";
inline constexpr std::int32_t kAbort = 101;
inline constexpr std::int32_t kPrevious = 102;
inline constexpr std::int32_t kNext = 103;
inline constexpr std::int32_t kStop = 201;
inline constexpr std::int32_t kPlay = 202;
inline constexpr std::int32_t kNotApplicable = 301;
inline constexpr std::int32_t kSkip = 302;

inline constexpr char kPretestForm[] = "FPretestPrompt";
inline constexpr char kPretestOk[] = "cmdOK";
inline constexpr char kYesNoForm[] = "FYesNoPrompt";
inline constexpr char kYes[] = "cmdAccept";
inline constexpr char kNo[] = "cmdDecline";
inline constexpr char kPromptText[] = "lblPrompt";

inline constexpr std::int32_t kCalibrate = 900;
inline constexpr char kLeadsForm[] = "FCalibrateLeads";
inline constexpr char kLeadsMeasure[] = "cmdCalibrate";
inline constexpr char kLeadsSave[] = "cmdSave";
inline constexpr char kLeadsCancel[] = "cmdCancel";
inline constexpr char kLeadsSerial[] = "txtSerial";
inline constexpr char kLeadsType[] = "txtMTIType";

}  // namespace guide

/// The toolbar of a test guide's window; empty when it has none.
std::shared_ptr<orvik::ITgToolbar> GuideToolbar(const orvik::platform::IForm& form);

/// Shows the host's judgement of the readings below the buttons of the guide that is shown; empty for none.
void ShowJudgement(const orvik::platform::IApplication& application, const std::string& text);

/// The caption of the form's control; empty when there is none.
std::string CaptionOf(const orvik::platform::IForm& form, const std::string& control);

/// Clicks the form's button, as the operator does.
void ClickButton(const orvik::platform::IForm& form, const std::string& button);

/// Leaves the guide in good order where a person operates it: answers the prompt that is shown, drops the
/// running test, and goes on from an element that does not run. A prompt or guide that is shown later needs
/// another call.
void LeaveGuide(const orvik::platform::IApplication& application);

}  // namespace bench
