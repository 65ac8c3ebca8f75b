#pragma once

#include <optional>
#include <string>
#include <vector>

namespace bench {

class Message;

/// What is wrong with a reply, seen from the command that it stands as the answer to: sentences for people,
/// none when the reply is in order.
///
/// A reading is in order when the reply names the test and setting that were asked for, is complete, holds a
/// number and a unit that a safety tester measures in, and reports no overload. The plug-in takes other
/// readings as they come (a text that is no number counts as 0), so nobody else would notice.
std::vector<std::string> ReplyDoubts(const Message& command, const Message& reply);

/// The reading in ohms that the reply tells; none when it tells another, or none.
std::optional<double> OhmsIn(const Message& reply);

}  // namespace bench
