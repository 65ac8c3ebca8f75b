#pragma once

/// Identifiers of the host's classes, as given to `IHost::CreateObject` or to a panel's `AddControl`.
namespace orvik::HostClasses {

inline constexpr char kTestElement[] = "OrvikTypeLib.TestElement";
inline constexpr char kTestContainer[] = "OrvikTypeLib.TestContainer";
inline constexpr char kStandardColl[] = "OrvikTypeLib.StandardColl";
inline constexpr char kStandard[] = "OrvikTypeLib.Standard";
inline constexpr char kLimit[] = "OrvikTypeLib.Limit";
inline constexpr char kServiceRecord[] = "OrvikTypeLib.ServiceRecord";
inline constexpr char kInstrumentRecord[] = "OrvikTypeLib.InstrumentRecord";
inline constexpr char kLanguageService[] = "OrvikTypeLib.LanguageService";
inline constexpr char kErrorLog[] = "OrvikTypeLib.ErrorLog";
inline constexpr char kXmlDocument[] = "OrvikTypeLib.XmlDocument";
inline constexpr char kRegistryReader[] = "OrvikTypeLib.RegistryReader";
inline constexpr char kPersistence[] = "OrvikTypeLib.Persistence";
inline constexpr char kCommApplication[] = "OrvikComm.Application";
inline constexpr char kLimitView[] = "orvikView.XLimitView";
inline constexpr char kToolbar[] = "orvikTGCL2.XTgToolbar";
inline constexpr char kContentPane[] = "orvikTGCL2.XTgContentPane";
inline constexpr char kProgressBar[] = "orvikTGCL2.XTgProgressBar";

}  // namespace orvik::HostClasses
