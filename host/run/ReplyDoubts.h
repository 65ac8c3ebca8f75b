#pragma once

#include <vector>

#include "host/document/Reason.h"

namespace host::serial {
class Message;
}

namespace host::run {

/// Checks a reply to that command; empty when it is in order.
///
/// A reading is in order when it names the test and setting of the command, is complete, holds a number and a
/// unit of electrical safety tests, and reports no overload. The plug-in itself accepts any reading: a text
/// that is not a number counts as 0.
std::vector<document::Reason> ReplyDoubts(const serial::Message& command, const serial::Message& reply);

}  // namespace host::run
