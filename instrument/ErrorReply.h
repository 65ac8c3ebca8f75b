#pragma once

#include <cstdint>
#include <string>

namespace orvik {
class IMessage;
}

namespace keld::instrument {

/// What the tester's error reply to a command means, as a `CommsState`.
///
/// The error number is the only parameter, or the second of several. One that cannot be read as a 16-bit
/// integer reads as 0, an instrument error.
std::int32_t StateOfErrorReply(const orvik::IMessage& Reply, const std::string& sCommand);

}  // namespace keld::instrument
