#pragma once

/// Texts of the composite controls: number, "::", English text; module "orvik".
namespace toolkit::controls::ControlTexts {

inline constexpr char kAbort[] = "1101::Abort";
inline constexpr char kAbortToolTip[] = "1102::End this test and discard all previous test results";
inline constexpr char kPrevious[] = "1103::Previous";
inline constexpr char kPreviousToolTip[] = "1104::Go to the previous test";
inline constexpr char kNext[] = "1105::Next";
inline constexpr char kNextToolTip[] = "1106::Go to the next test";
inline constexpr char kStop[] = "1107::Stop";
inline constexpr char kStopToolTip[] = "1108::Stop the running test";
inline constexpr char kPlay[] = "1109::Play";
inline constexpr char kPlayToolTip[] = "1110::Perform the test";
inline constexpr char kNotApplicable[] = "1111::Not applicable";
inline constexpr char kNotApplicableToolTip[] = "1112::Record the test as not applicable";
inline constexpr char kSkip[] = "1113::Skip";
inline constexpr char kSkipToolTip[] = "1114::Leave the test out";
inline constexpr char kTools[] = "1115::Tools";
inline constexpr char kToolsToolTip[] = "1116::More things to do with the tester";

inline constexpr char kStandard[] = "1201::Standard";
inline constexpr char kDescription[] = "1202::Description";
inline constexpr char kLowLimit[] = "233::Low limit";
inline constexpr char kHighLimit[] = "232::High limit";
inline constexpr char kNominal[] = "1203::Nominal value";
inline constexpr char kAdd[] = "1204::&Add";
inline constexpr char kAddToolTip[] = "1205::Add the standard with these two names";
inline constexpr char kRemove[] = "1206::&Remove";
inline constexpr char kRemoveToolTip[] = "1207::Remove the selected standard and its limits";
inline constexpr char kApply[] = "1208::A&pply";
inline constexpr char kApplyToolTip[] = "1209::Store these limits for the selected standard";
inline constexpr char kNotStored[] = "1210::These limits are not stored until you press Apply.";
inline constexpr char kNameMissing[] = "1211::Enter the name of the standard to add.";
inline constexpr char kNameTaken[] = "1212::A standard of this name and description is already there.";
inline constexpr char kNominalWrong[] = "1213::The nominal value must be a number, such as 0.5.";
inline constexpr char kNothingSelected[] = "1214::Select a standard first.";
inline constexpr char kNoLimit[] = "1215::This standard has no limit for the measured value.";

}  // namespace toolkit::controls::ControlTexts
