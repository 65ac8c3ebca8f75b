#pragma once

#include <string_view>

#include "platform/Event.h"
#include "platform/Types.h"

namespace host::serial {

class Message;

/// Something that happened on the wire.
struct WireRecord {
  enum class Kind {
    kOpened,    ///< a port was opened; `text` has the device and settings
    kSent,      ///< a command was sent
    kReceived,  ///< a message was received
    kDropped,   ///< an invalid line was received and discarded
    kFailed,    ///< the line was unplugged or failed
    kClosed     ///< the port was closed
  };

  Kind kind;
  orvik::platform::Time time;
  /// The bytes of the line, without its end.
  std::string_view text;
  /// The command or reply; null for the other kinds.
  const Message* message = nullptr;
  /// `kSent`: a reply, or the beginning of one, had been received before the command was sent.
  bool replyWaiting = false;
};

/// Raised by ports for what happens on the wire. The views in a record are valid during the call only.
using Wire = orvik::platform::Event<const WireRecord&>;

}  // namespace host::serial
