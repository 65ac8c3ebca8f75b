#pragma once

#include <cstdint>

/// Names of the windows of this one plug-in and of their controls, and the commands of the guide's buttons.
namespace host::plugins::keld::guide {

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

}  // namespace host::plugins::keld::guide
