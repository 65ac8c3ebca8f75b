#pragma once

#include <optional>
#include <vector>

#include "host/document/Reason.h"

namespace bench {

class Message;

/// What is wrong with a reply to that command; nothing when the reply is in order.
///
/// A reading is in order when what the reply names is the test and setting that were asked for, when it is
/// complete, holds a number and a unit that a safety tester measures in, and reports no overload. The plug-in
/// takes other readings as they come (a text that is not a number counts as 0).
std::vector<Reason> ReplyDoubts(const Message& command, const Message& reply);

/// The reading in ohms that the reply tells; none when it tells another, or none.
std::optional<double> OhmsIn(const Message& reply);

}  // namespace bench
