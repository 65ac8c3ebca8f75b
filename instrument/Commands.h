#pragma once

#include <cstdint>

/// The tester's commands, the replies that mean success, and the message codes. The tester also has an
/// identity query and power commands, which are not used.
namespace keld::instrument::Commands {

/// Enter remote mode; the reply identifies the tester.
inline constexpr char kEnterRemote[] = "IREM";
inline constexpr char kRemoteEntered[] = "irem";
inline constexpr std::int16_t kEnterRemoteCode = 1;

/// Get the result of a test: test number, setting.
inline constexpr char kGetResult[] = "GRES";
inline constexpr char kResult[] = "gres";
inline constexpr std::int16_t kGetResultCode = 2;

/// End remote mode.
inline constexpr char kEndRemote[] = "EREM";
inline constexpr char kRemoteEnded[] = "erem";
inline constexpr std::int16_t kEndRemoteCode = 3;

/// Start a test: test number, setting.
inline constexpr char kStartTest[] = "STST";
inline constexpr char kTestStarted[] = "stst";
inline constexpr std::int16_t kStartTestCode = 5;

/// The tester's error reply, with the error number among its parameters.
inline constexpr char kError[] = "ERRM";

/// The test that is started to end a session: it ends any test in progress.
inline constexpr std::int16_t kClosingTest = 210;

}  // namespace keld::instrument::Commands
