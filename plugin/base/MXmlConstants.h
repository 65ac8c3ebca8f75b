#pragma once

/// Tags and attributes of the XML that the plug-in reads and writes.
namespace keld::MXmlConstants {

// Catalogue.
inline constexpr char kTemplateData[] = "TemplateData";
inline constexpr char kTestElement[] = "TestElement";
inline constexpr char kID[] = "ID";
inline constexpr char kLID[] = "LID";
inline constexpr char kType[] = "Type";
inline constexpr char kName[] = "Name";
inline constexpr char kParameter[] = "Parameter";
inline constexpr char kUnit[] = "Unit";

// Configuration data.
inline constexpr char kKELDConfig[] = "KELDConfig";
inline constexpr char kOptions[] = "Options";
inline constexpr char kValueFilter[] = "ValueFilter";
inline constexpr char kPlugInData[] = "PlugInData";

// Result data.
inline constexpr char kMTI[] = "MTI";
inline constexpr char kStatus[] = "Status";
inline constexpr char kComment[] = "Comment";
inline constexpr char kServiceRecord[] = "ServiceRecord";
inline constexpr char kMeasurement[] = "Measurement";
inline constexpr char kResultItem[] = "ResultItem";

// Limit data.
inline constexpr char kExpectedResult[] = "ExpectedResult";

// Measurement.
inline constexpr char kFlags[] = "Flags";
inline constexpr char kDescription[] = "Description";
inline constexpr char kValue[] = "Value";

}  // namespace keld::MXmlConstants
