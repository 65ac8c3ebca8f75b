#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "OrvikTypeLib/IObject.h"
#include "OrvikTypeLib/Variant.h"

namespace orvik {

class IMessage;

/// An open serial port. A port that fails (unplugged, input or output error) counts as closed.
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class IPort : public virtual IObject {
 public:
  /// A command message; parameters are a list of strings, or empty. `HostError` when one holds a control
  /// character.
  std::shared_ptr<IMessage> CreateMessage(const std::string& sMnemonic, const Variant& vParameters) {
    return IPort_CreateMessage(sMnemonic, vParameters);
  }
  /// Sends a message. `HostError` when the port is closed.
  void Send(std::shared_ptr<IMessage> Message) { IPort_Send(std::move(Message)); }
  /// Number of received messages waiting.
  std::int32_t ReceivedCount() const { return IPort_ReceivedCount(); }
  /// Whether the port is open.
  bool IsOpen() const { return IPort_IsOpen(); }
  /// Takes the oldest received message; `HostError` when none is waiting.
  std::shared_ptr<IMessage> TakeMessage() { return IPort_TakeMessage(); }
  /// Closes the port; closing twice is allowed.
  void Close() { IPort_Close(); }

 private:
  virtual std::shared_ptr<IMessage> IPort_CreateMessage(const std::string& sMnemonic,
                                                        const Variant& vParameters) = 0;
  virtual void IPort_Send(std::shared_ptr<IMessage> Message) = 0;
  virtual std::int32_t IPort_ReceivedCount() const = 0;
  virtual bool IPort_IsOpen() const = 0;
  virtual std::shared_ptr<IMessage> IPort_TakeMessage() = 0;
  virtual void IPort_Close() = 0;
};

}  // namespace orvik
