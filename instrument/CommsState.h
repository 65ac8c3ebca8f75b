#pragma once

#include <cstdint>

/// How an exchange with the tester ended: the status that `CKELDInstrument::ResultReceived` carries.
namespace keld::instrument::CommsState {

/// The tester reported an error other than 1003 and 6002.
inline constexpr std::int32_t kInstrumentError = 0;
/// The reply belongs to another command.
inline constexpr std::int32_t kUnexpectedReply = 1;
/// The tester has left remote mode.
inline constexpr std::int32_t kRemoteEnded = 2;
/// The tester is in remote mode.
inline constexpr std::int32_t kRemoteOpen = 3;
/// The test has been started.
inline constexpr std::int32_t kTestStarted = 4;
/// The result is in the MTI data.
inline constexpr std::int32_t kResultReceived = 5;
/// There was no session to end; used by `MessageSent` only.
inline constexpr std::int32_t kNoSession = 6;
/// No reply after three attempts, or the port is closed.
inline constexpr std::int32_t kNoAnswer = 7;
/// The tester refused the command.
inline constexpr std::int32_t kRefused = 8;
/// The tester lacks the test.
inline constexpr std::int32_t kTestNotSupported = 6002;

}  // namespace keld::instrument::CommsState
