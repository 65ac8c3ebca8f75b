// Bytes from a tester, at the host's port.
#include <algorithm>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IMessage.h"
#include "OrvikTypeLib/IPort.h"
#include "fuzz/Promise.h"
#include "host/serial/Latin1.h"
#include "host/serial/MemoryTransport.h"
#include "host/serial/Message.h"
#include "host/serial/Port.h"
#include "toolkit/headless/Application.h"

namespace {

using fuzz::Require;

/// A port with a line in memory at it.
struct PortInMemory {
  PortInMemory() {
    static const auto application =
        std::make_shared<toolkit::headless::Application>(toolkit::loop::ClockKind::kVirtual);
    port = host::serial::Port::Create(std::make_unique<host::serial::MemoryTransport>(line), application,
                                      std::make_shared<host::serial::Wire>(), "memory");
  }

  std::shared_ptr<host::serial::MemoryLine> line = std::make_shared<host::serial::MemoryLine>();
  std::shared_ptr<host::serial::Port> port;
};

/// The messages that wait at the port, as lines.
std::vector<std::string> TakenFrom(orvik::IPort& port) {
  std::vector<std::string> lines;
  while (port.ReceivedCount() > 0)
    lines.push_back(orvik::As<host::serial::Message>(port.TakeMessage())->Line());
  return lines;
}

bool HasControlCharacter(const std::string& text) {
  return std::any_of(text.begin(), text.end(), [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F;
  });
}

void CheckMessage(const std::string& line) {
  Require(!line.empty() && line.size() <= host::serial::LineReader::kMaxLine,
          "a message has 1 to 1,024 bytes");
  Require(!HasControlCharacter(line), "a message has no control character");
  const auto message = host::serial::ParseMessage(line);
  Require(message != nullptr, "what was delivered is a message");
  // An empty mnemonic can come, but never be sent; the quotation marks of a sent one may take more room.
  if (message->MnemonicText().empty() || line.find('"') != std::string::npos) return;
  const auto sent = host::serial::ComposeMessage(message->MnemonicText(), message->Parameters());
  Require(sent->Line() == line, "a message that came can be sent as the same bytes");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto bytes = fuzz::TextOf(data, size);
  const PortInMemory whole;
  whole.line->Deliver(bytes);
  const auto ends = static_cast<std::size_t>(
      std::count_if(bytes.begin(), bytes.end(), [](char c) { return c == '\r' || c == '\n'; }));
  const auto waiting = static_cast<std::size_t>(static_cast<orvik::IPort&>(*whole.port).ReceivedCount());
  Require(waiting + whole.port->LinesDropped() <= ends, "nothing is delivered before its end has come");
  Require(waiting <= host::serial::Port::kMaxWaiting, "what waits is bounded");

  const PortInMemory piecewise;
  for (const char byte : bytes) piecewise.line->Deliver(std::string_view(&byte, 1));
  const auto lines = TakenFrom(*whole.port);
  Require(TakenFrom(*piecewise.port) == lines, "messages do not depend on how their bytes are split");
  Require(piecewise.port->LinesDropped() == whole.port->LinesDropped(), "and so are the dropped lines");
  for (const auto& line : lines) CheckMessage(line);
  return 0;
}
