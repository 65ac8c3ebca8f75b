#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>

#include "OrvikTypeLib/IPort.h"
#include "host/loop/ILoop.h"
#include "host/serial/ITransport.h"
#include "host/serial/LineReader.h"
#include "host/serial/Wire.h"

namespace bench {

class Message;

/// An open serial port: messages out, messages in, in order.
class Port final : public orvik::IPort {
 public:
  /// Received messages wait up to this number; later ones are dropped like bad lines.
  static constexpr std::size_t kMaxWaiting = 1000;

  /// @param name device and settings, for the record of the wire
  static std::shared_ptr<Port> Create(std::unique_ptr<ITransport> transport, std::shared_ptr<ILoop> loop,
                                      std::shared_ptr<Wire> wire, const std::string& name);
  ~Port() override;

  /// Lines dropped so far, since they were too long, held a control byte or were no message.
  std::uint64_t LinesDropped() const { return dropped_; }

 private:
  Port(std::unique_ptr<ITransport> transport, std::shared_ptr<ILoop> loop, std::shared_ptr<Wire> wire);

  std::shared_ptr<orvik::IMessage> IPort_CreateMessage(const std::string& sMnemonic,
                                                       const orvik::Variant& vParameters) override;
  void IPort_Send(std::shared_ptr<orvik::IMessage> Message) override;
  std::int32_t IPort_ReceivedCount() const override;
  bool IPort_IsOpen() const override { return transport_->IsOpen(); }
  std::shared_ptr<orvik::IMessage> IPort_TakeMessage() override;
  void IPort_Close() override;

  void TakeLine(std::string_view line, bool good);
  void Record(WireRecord::Kind kind, std::string_view text, const Message* message = nullptr,
              bool replyWaiting = false) const;

  const std::unique_ptr<ITransport> transport_;
  const std::shared_ptr<ILoop> loop_;
  const std::shared_ptr<Wire> wire_;
  LineReader reader_;
  std::deque<std::shared_ptr<Message>> received_;
  std::uint64_t dropped_ = 0;
  bool closed_ = false;
};

}  // namespace bench
