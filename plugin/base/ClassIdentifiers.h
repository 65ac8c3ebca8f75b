#pragma once

/// Identifiers under which the plug-in's classes are registered.
namespace keld::ClassIdentifiers {

inline constexpr char kPlugin[] = "orvikKELD.CKELDPlugin";
inline constexpr char kTestElement[] = "orvikKELD.CKELDTestElement";
inline constexpr char kSequence[] = "orvikKELD.CKELDSequence";
inline constexpr char kTestConfiguration[] = "orvikKELD.CKELDTestConfiguration";
inline constexpr char kLimitData[] = "orvikKELD.CKELDLimitData";
inline constexpr char kResultData[] = "orvikKELD.CKELDResultData";
inline constexpr char kMeasurement[] = "orvikKELD.CKELDMeasurement";
inline constexpr char kTestConfigurationControl[] = "orvikKELD.XKELDTestConfiguration";
inline constexpr char kSequenceConfigurationControl[] = "orvikKELD.XKELDSeqConfiguration";
inline constexpr char kDataControl[] = "orvikKELD.XKELDData";
inline constexpr char kResultView[] = "orvikKELD.XKELDResultView";
inline constexpr char kDetailedResult[] = "orvikKELD.XDetailedResult";
inline constexpr char kElementSetup[] = "orvikKELD.FElementSetup";
inline constexpr char kCalibrateLeads[] = "orvikKELD.FCalibrateLeads";

}  // namespace keld::ClassIdentifiers
