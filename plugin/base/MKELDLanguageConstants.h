#pragma once

/// Every text that the operator sees, as number, "::", English text. Numbers below 20000 are shared with the
/// host. The plug-in passes the whole literal to the language service and never stores the translation.
namespace keld::MKELDLanguageConstants {

inline constexpr char kOK[] = "1::&OK";
inline constexpr char kCancel[] = "2::&Cancel";
inline constexpr char kYes[] = "3::&Yes";
inline constexpr char kNo[] = "4::&No";
inline constexpr char kTestGuide[] = "200::TEST GUIDE";
inline constexpr char kEndTest[] = "202::Do you want to end this test and discard all previous test results?";
inline constexpr char kValue[] = "231::Value";
inline constexpr char kHighLimit[] = "232::High limit";
inline constexpr char kLowLimit[] = "233::Low limit";
inline constexpr char kUnit[] = "234::Unit";
inline constexpr char kResult[] = "312::Result:";
inline constexpr char kLimits[] = "320::Limits:";
inline constexpr char kHighValue[] = "321::High value";
inline constexpr char kLowValue[] = "322::Low value";
inline constexpr char kMtiData[] = "462::MTI Data";
inline constexpr char kComment[] = "1708::Comment";
inline constexpr char kPlugInName[] = "20000::KELD Safety Tester";
inline constexpr char kPretestTitle[] = "20001::orvik KELD(IN) plug-in";
inline constexpr char kCalibrateEntry[] = "20301::Calibrate...";
inline constexpr char kStopping[] = "20309::Stopping safety test. Please wait...";
inline constexpr char kPerforming[] = "20310::Performing safety test. Please wait...";
inline constexpr char kMtiType[] = "20312::MTI Type:";
inline constexpr char kSerialNumber[] = "20313::Serial number:";
inline constexpr char kFirmwareVersion[] = "20314::Firmware version:";
inline constexpr char kLeadCalibration[] = "20315::Lead calibration (mOhm):";
inline constexpr char kKELDTest[] = "20340::KELD test";
inline constexpr char kOverload[] = "20343::OL";
inline constexpr char kYesNoTitle[] = "20450::orvik KELD plug-in";
inline constexpr char kCalibrationTitle[] = "20550::KELD Calibration";
inline constexpr char kCalibrationGuidance[] =
    "20551::Connect enclosure clip to ground on KELD's power socket and click Calibrate.";
inline constexpr char kCalibrationSaveGuidance[] =
    "20552::Enter a serial number and click Save & Close to return to the Test Guide. The serial number may "
    "be provided by the test instrument.";
inline constexpr char kCalibrate[] = "20553::Ca&librate";
inline constexpr char kCalibrateToolTip[] = "20554::Start test lead calibration";
inline constexpr char kSaveAndClose[] = "20555::&Save && Close";
inline constexpr char kSaveToolTip[] = "20556::Store calibration value on the given serial number";
inline constexpr char kCancelToolTip[] = "20557::Close window and return to test";
inline constexpr char kCalibrating[] = "20558::Calibrating. Please wait...";
inline constexpr char kCalibrationComplete[] = "20559::Calibration complete.";
inline constexpr char kAssign[] = "20701::Values of the tests in the group:";
inline constexpr char kNoValues[] = "20702::No values";
inline constexpr char kAllValues[] = "20703::All values";
inline constexpr char kMaximumValue[] = "20704::Maximum value";
inline constexpr char kMinimumValue[] = "20705::Minimum value";
inline constexpr char kGeneralSettings[] = "20772::General settings:";
inline constexpr char kEnableSkip[] = "20773::Enable skip button in test guide";
inline constexpr char kLead1[] = "20774::Lead 1";
inline constexpr char kLead2[] = "20775::Lead 2";
inline constexpr char kLead3[] = "20776::Lead 3";
inline constexpr char kLead4[] = "20777::Lead 4";
inline constexpr char kLead5[] = "20778::Lead 5";
inline constexpr char kLead6[] = "20779::Lead 6";
inline constexpr char kLead7[] = "20780::Lead 7";
inline constexpr char kLead8[] = "20781::Lead 8";
inline constexpr char kLead9[] = "20782::Lead 9";
inline constexpr char kLead10[] = "20783::Lead 10";
inline constexpr char kEnableNA[] = "20784::Enable NA button in test guide";
inline constexpr char kAllLeads[] = "20785::All Leads";
inline constexpr char kNoInstrument[] =
    "20803::Can not find a KELD attached to this system. Make sure that the cable is properly connected, and "
    "that the unit is powered on.";
// The two blanks before %%1 are part of the text.
inline constexpr char kTestNotSupported[] =
    "20805::The connected KELD does not support the test  %%1 %%2. The test will be recorded as Not "
    "Applicable.";
inline constexpr char kConfigurationHeading[] = "20900::Configuration:";
inline constexpr char kTestLimits[] = "20901::KELD Test Limits";
inline constexpr char kLead1Tested[] = "20902::Lead number 1 tested.";
inline constexpr char kLead2Tested[] = "20903::Lead number 2 tested.";
inline constexpr char kLead3Tested[] = "20904::Lead number 3 tested.";
inline constexpr char kLead4Tested[] = "20905::Lead number 4 tested.";
inline constexpr char kLead5Tested[] = "20906::Lead number 5 tested.";
inline constexpr char kLead6Tested[] = "20907::Lead number 6 tested.";
inline constexpr char kLead7Tested[] = "20908::Lead number 7 tested.";
inline constexpr char kLead8Tested[] = "20909::Lead number 8 tested.";
inline constexpr char kLead9Tested[] = "20910::Lead number 9 tested.";
inline constexpr char kLead10Tested[] = "20911::Lead number 10 tested.";
inline constexpr char kAllLeadsTested[] = "20912::All leads tested.";
inline constexpr char kSomeLeadsTested[] = "20913::Some leads tested.";
inline constexpr char kNoLeadsTested[] = "20914::No leads tested.";

}  // namespace keld::MKELDLanguageConstants
