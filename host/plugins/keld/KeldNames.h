#pragma once

#include <cstdint>

/// The names under which the host finds this one plug-in, its classes and its saved settings.
namespace host::plugins::keld {

inline constexpr char kLibraryFile[] = "orvikKELD.so";
/// The class of the dialog that measures the test leads.
inline constexpr char kLeadsDialogClass[] = "orvikKELD.FCalibrateLeads";

/// The instrument for which the plug-in opens a port, with these line settings. The tester reports the same
/// name as its type.
inline constexpr char kInstrument[] = "KELD(IN)";
inline constexpr char kLineSettings[] = "9600,O,8,1";

/// The catalogue of tests in the registry.
inline constexpr std::int32_t kRegistryHive = static_cast<std::int32_t>(0x80000002U);
inline constexpr char kCatalogueKey[] = "Software\\Telvane\\orvik\\KELD(IN)";
inline constexpr char kCatalogueValue[] = "Configuration";
/// Where the plug-in stores the resistances of test leads, as 32-bit integers in mOhm under the testers'
/// serial numbers.
inline constexpr char kLeadsKey[] = "Software\\Telvane\\orvik\\KELD(IN)\\MTI";

/// The node in which an element saves its settings, and its attributes.
inline constexpr char kSettingsNode[] = "KELDConfig";
inline constexpr char kOptionsAttribute[] = "Options";
inline constexpr char kFilterAttribute[] = "ValueFilter";

}  // namespace host::plugins::keld
