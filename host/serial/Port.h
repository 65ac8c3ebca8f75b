#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>

#include "OrvikTypeLib/IPort.h"
#include "host/serial/ITransport.h"
#include "host/serial/LineReader.h"
#include "host/serial/Wire.h"
#include "toolkit/loop/ILoop.h"

namespace host::serial {

class Message;

/// An open serial port: messages out, messages in, in order.
class Port final : public orvik::IPort {
 public:
  /// At most this many received messages wait; later ones are discarded like invalid lines.
  static constexpr std::size_t kMaxWaiting = 1000;

  /// @param name device and settings, for the wire log
  static std::shared_ptr<Port> Create(std::unique_ptr<ITransport> transport,
                                      std::shared_ptr<toolkit::loop::ILoop> loop, std::shared_ptr<Wire> wire,
                                      const std::string& name);
  ~Port() override;

  /// Lines discarded so far: too long, with a control byte, or not a message.
  std::uint64_t LinesDropped() const { return discarded_; }

 private:
  Port(std::unique_ptr<ITransport> transport, std::shared_ptr<toolkit::loop::ILoop> loop,
       std::shared_ptr<Wire> wire);

  std::shared_ptr<orvik::IMessage> IPort_CreateMessage(const std::string& sMnemonic,
                                                       const orvik::Variant& vParameters) override;
  void IPort_Send(std::shared_ptr<orvik::IMessage> Message) override;
  std::int32_t IPort_ReceivedCount() const override;
  bool IPort_IsOpen() const override { return transport_->IsOpen(); }
  std::shared_ptr<orvik::IMessage> IPort_TakeMessage() override;
  void IPort_Close() override;

  void OnLine(std::string_view line, bool valid);
  void Record(WireRecord::Kind kind, std::string_view text, const Message* message = nullptr,
              bool replyWaiting = false) const;

  const std::unique_ptr<ITransport> transport_;
  const std::shared_ptr<toolkit::loop::ILoop> loop_;
  const std::shared_ptr<Wire> wire_;
  LineReader reader_;
  std::deque<std::shared_ptr<Message>> received_;
  std::uint64_t discarded_ = 0;
  bool closed_ = false;
};

}  // namespace host::serial
