#pragma once

#include <string_view>

#include "platform/Event.h"
#include "platform/Types.h"

namespace bench {

class Message;

/// Something that happened on the wire.
struct WireRecord {
  enum class Kind {
    kOpened,    ///< a port was opened; `text` tells the device and settings
    kSent,      ///< a command went out
    kReceived,  ///< a whole message came in
    kDropped,   ///< a line came in that is no message, and was dropped whole
    kFailed,    ///< the line was unplugged or failed
    kClosed     ///< the port was closed
  };

  Kind kind;
  orvik::platform::Time time;
  /// The bytes of the line, without its end.
  std::string_view text;
  /// The command or reply; null for the other kinds.
  const Message* message = nullptr;
  /// `kSent`: a reply, or the beginning of one, was already there when the command went out.
  bool replyWaiting = false;
};

/// Where ports tell what happens on the wire. Views in a record are valid while the handler runs.
using Wire = orvik::platform::Event<const WireRecord&>;

}  // namespace bench
