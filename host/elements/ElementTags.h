#pragma once

/// Tags and attributes of saved elements.
namespace host::elements::tags {

inline constexpr char kTestElement[] = "TestElement";
inline constexpr char kID[] = "ID";
inline constexpr char kTestID[] = "TestID";
inline constexpr char kPlugInID[] = "PlugInID";
inline constexpr char kClass[] = "Class";

inline constexpr char kInformation[] = "Information";
inline constexpr char kFirstText[] = "FirstText";
inline constexpr char kSecondText[] = "SecondText";
inline constexpr char kDisplayName[] = "DisplayName";

inline constexpr char kAuxiliary[] = "Auxiliary";
inline constexpr char kPrint[] = "Print";
inline constexpr char kRecordOnly[] = "RecordOnly";

inline constexpr char kConfiguration[] = "Configuration";
inline constexpr char kPlugInData[] = "PlugInData";
inline constexpr char kExpectedResult[] = "ExpectedResult";

inline constexpr char kResultItem[] = "ResultItem";
inline constexpr char kMTI[] = "MTI";
inline constexpr char kStatus[] = "Status";
inline constexpr char kServiceRecord[] = "ServiceRecord";
inline constexpr char kComment[] = "Comment";
inline constexpr char kMeasurement[] = "Measurement";
inline constexpr char kValue[] = "Value";
inline constexpr char kUnit[] = "Unit";

}  // namespace host::elements::tags
