#pragma once

#include <chrono>
#include <ostream>
#include <string>
#include <vector>

#include "host/serial/Latin1.h"
#include "host/serial/Wire.h"

namespace support {

/// One thing that happened on the wire, as text: "sent STST,410,0".
struct WireLine {
  orvik::platform::Time time;
  host::serial::WireRecord::Kind kind;
  std::string text;
  bool replyWaiting;
};

/// Records everything on a wire.
class WireLines {
 public:
  explicit WireLines(host::serial::Wire& wire)
      : watch_(wire.Subscribe([this](const host::serial::WireRecord& record) {
          lines_.push_back(
              {record.time, record.kind, host::serial::VisibleLatin1(record.text), record.replyWaiting});
        })) {}

  const std::vector<WireLine>& All() const { return lines_; }
  /// The texts of the commands sent.
  std::vector<std::string> Sent() const { return Texts(host::serial::WireRecord::Kind::kSent); }
  /// The texts of the messages received.
  std::vector<std::string> Received() const { return Texts(host::serial::WireRecord::Kind::kReceived); }
  /// How often that happened.
  std::size_t Count(host::serial::WireRecord::Kind kind) const { return Texts(kind).size(); }
  void Clear() { lines_.clear(); }

 private:
  std::vector<std::string> Texts(host::serial::WireRecord::Kind kind) const {
    std::vector<std::string> texts;
    for (const auto& line : lines_) {
      if (line.kind == kind) texts.push_back(line.text);
    }
    return texts;
  }

  std::vector<WireLine> lines_;
  orvik::platform::Subscription watch_;
};

}  // namespace support
