#pragma once

/// The library's version. The build reads it from these lines; it is written nowhere else.
namespace keld::Version {

inline constexpr int kMajor = 2;
inline constexpr int kMinor = 2;
inline constexpr int kBuild = 0;
inline constexpr int kRevision = 2;

}  // namespace keld::Version
