#include "host/serial/Port.h"

#include <utility>
#include <variant>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostError.h"
#include "host/base/Tr.h"
#include "host/serial/Message.h"

namespace host::serial {

using orvik::HostError;

std::shared_ptr<Port> Port::Create(std::unique_ptr<ITransport> transport,
                                   std::shared_ptr<toolkit::loop::ILoop> loop, std::shared_ptr<Wire> wire,
                                   const std::string& name) {
  auto port = std::shared_ptr<Port>(new Port(std::move(transport), std::move(loop), std::move(wire)));
  const std::weak_ptr<Port> weak = port;
  port->transport_->SetReceiver([weak](std::string_view bytes) {
    if (const auto self = weak.lock())
      self->reader_.Feed(bytes, [&](std::string_view line, bool valid) { self->OnLine(line, valid); });
  });
  port->transport_->SetFailureListener([weak] {
    if (const auto self = weak.lock()) self->Record(WireRecord::Kind::kFailed, "the line has failed");
  });
  port->Record(WireRecord::Kind::kOpened, name);
  return port;
}

Port::Port(std::unique_ptr<ITransport> transport, std::shared_ptr<toolkit::loop::ILoop> loop,
           std::shared_ptr<Wire> wire)
    : transport_(std::move(transport)), loop_(std::move(loop)), wire_(std::move(wire)) {}

Port::~Port() { IPort_Close(); }

std::shared_ptr<orvik::IMessage> Port::IPort_CreateMessage(const std::string& sMnemonic,
                                                           const orvik::Variant& vParameters) {
  if (orvik::IsEmpty(vParameters)) return ComposeMessage(sMnemonic, {});
  const auto* parameters = std::get_if<std::vector<std::string>>(&vParameters);
  if (!parameters)
    throw HostError(HostError::kTypeMismatch, "OrvikComm.Port",
                    Tr("the parameters of command \"%%1\" are not a list of strings", {sMnemonic}));
  return ComposeMessage(sMnemonic, *parameters);
}

void Port::IPort_Send(std::shared_ptr<orvik::IMessage> Message) {
  const auto self = shared_from_this();
  const auto message = orvik::As<serial::Message>(Message);
  if (!message)
    throw HostError(HostError::kInvalidArgument, "OrvikComm.Port",
                    Tr("the message was not created by this port"));
  if (!transport_->IsOpen())
    throw HostError(HostError::kDeviceError, "OrvikComm.Port",
                    Tr("command \"%%1\" cannot be sent: the port is closed", {message->MnemonicText()}));
  const bool replyWaiting = !received_.empty() || reader_.InLine();
  // Recorded first: the answer may come in while the command is being written.
  Record(WireRecord::Kind::kSent, message->Line(), message.get(), replyWaiting);
  transport_->Write(message->Line() + "\r\n");
}

std::int32_t Port::IPort_ReceivedCount() const { return static_cast<std::int32_t>(received_.size()); }

std::shared_ptr<orvik::IMessage> Port::IPort_TakeMessage() {
  if (received_.empty())
    throw HostError(HostError::kSubscriptOutOfRange, "OrvikComm.Port", Tr("no received message is waiting"));
  auto message = std::move(received_.front());
  received_.pop_front();
  return message;
}

void Port::IPort_Close() {
  if (std::exchange(closed_, true)) return;
  transport_->Close();
  received_.clear();
  Record(WireRecord::Kind::kClosed, "closed");
}

void Port::OnLine(std::string_view line, bool valid) {
  if (closed_) return;
  auto message = valid && received_.size() < kMaxWaiting ? ParseMessage(line) : nullptr;
  if (!message) {
    ++discarded_;
    Record(WireRecord::Kind::kDropped, line);
    return;
  }
  received_.push_back(message);
  Record(WireRecord::Kind::kReceived, line, message.get());
}

void Port::Record(WireRecord::Kind kind, std::string_view text, const Message* message,
                  bool replyWaiting) const {
  wire_->Raise({kind, loop_->Now(), text, message, replyWaiting});
}

}  // namespace host::serial
