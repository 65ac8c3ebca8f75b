#pragma once

#include <chrono>
#include <string_view>

/// How this one plug-in talks with its tester, for the host to follow on the wire.
namespace host::plugins::keld {

/// The pause before each command.
inline constexpr std::chrono::milliseconds kPause{3500};
/// How long the plug-in waits for a reply.
inline constexpr std::chrono::milliseconds kReplyTime{2000};
/// How often it sends a command at most.
inline constexpr int kMaxAttempts = 3;

/// Commands in the order of a test, and replies.
inline constexpr std::string_view kBeginSession = "IREM";
inline constexpr std::string_view kStartTest = "STST";
inline constexpr std::string_view kGetReading = "GRES";
inline constexpr std::string_view kEndSession = "EREM";
inline constexpr std::string_view kIdentity = "irem";
inline constexpr std::string_view kStarted = "stst";
inline constexpr std::string_view kReading = "gres";
inline constexpr std::string_view kError = "ERRM";

/// The fields of `kReading`: test, setting, value, overload ("1" or "0"), unit.
inline constexpr std::size_t kValueField = 2, kOverloadField = 3, kUnitField = 4, kReadingFields = 5;

/// Numbers of `kError`: the tester is not in remote mode; it lacks the test.
inline constexpr int kNotAllowedNow = 1003;
inline constexpr int kNoSuchTest = 6002;

}  // namespace host::plugins::keld
