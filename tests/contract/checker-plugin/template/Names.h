#pragma once

#include <cstdint>

/// The plug-in's names. Change all of them first when you copy the template: documents and settings of two
/// they distinguish plug-ins.
namespace check::names {

/// The plug-in's identifier, saved with every element.
inline constexpr char kPlugInId[] = "CHECK";
/// The module under which the language service keeps the plug-in's texts.
inline constexpr char kModule[] = "CHECK";
/// The one test of the catalogue.
inline constexpr std::int32_t kInspectionTest = 10;

/// Class identifiers: a prefix of the plug-in's own, a dot, the class.
inline constexpr char kPlugInClass[] = "orvikCheck.CPlugin";
inline constexpr char kInspectionClass[] = "orvikCheck.CInspection";
inline constexpr char kResultClass[] = "orvikCheck.CInspectionResult";

}  // namespace check::names
