#pragma once

#include <cstdint>

/// Constants that several classes of the plug-in share.
namespace keld::MKELDConstants {

/// Plug-in identifier: also the source of every error-log entry and the device name of the tester's serial
/// port.
inline constexpr char kPlugInID[] = "KELD(IN)";
/// Module name of every language-string look-up.
inline constexpr char kModule[] = "KELD";
/// Place of error-log entries of the plug-in object.
inline constexpr char kPlugInClass[] = "CKELDPlugin";

/// HKEY_LOCAL_MACHINE.
inline constexpr std::int32_t kHive = static_cast<std::int32_t>(0x80000002U);
inline constexpr char kSettingsKey[] = "Software\\Telvane\\orvik\\KELD(IN)";
inline constexpr char kInstrumentsKey[] = "Software\\Telvane\\orvik\\KELD(IN)\\MTI";
inline constexpr char kConfigurationValue[] = "Configuration";
inline constexpr char kLastInstrumentValue[] = "LastMTI";

/// The catalogue XML has no "TemplateData", could not be loaded, or an entry has an empty "ID".
inline constexpr std::int32_t kErrorCatalogue = static_cast<std::int32_t>(0x8004A22CU);
/// The settings key could not be opened.
inline constexpr std::int32_t kErrorSettingsKey = static_cast<std::int32_t>(0x8004A28EU);
/// Level of error-log entries about faults in the configuration.
inline constexpr std::int32_t kLevelConfiguration = 3;

/// Every limit that the plug-in creates carries this key: an element has a single measured value.
inline constexpr char kLimitKey[] = "NO LIMIT KEY";

/// Value of an element of the MTI data for which the reply had no parameter.
inline constexpr char kNoValue[] = "NO VALUE";

}  // namespace keld::MKELDConstants
