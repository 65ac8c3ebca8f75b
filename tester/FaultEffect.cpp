// What each fault makes of a reply.
#include <chrono>
#include <string>
#include <vector>

#include "tester/Fault.h"
#include "tester/Message.h"

namespace sim {

namespace {

// Control bytes, a delete and letters beyond ASCII: as a loose contact gives them.
constexpr std::string_view kNoise = "\x02\xFF~\x7F\x15\xE4\r\n";

std::chrono::milliseconds TimeOf(const Fault& fault) {
  return std::chrono::milliseconds(fault.ms.value_or(0));
}

std::string WithoutLineEnd(const std::string& bytes) {
  return bytes.substr(0, bytes.find_first_of(kLineEnd));
}

std::string Beginning(const std::string& bytes, int count) {
  return WithoutLineEnd(bytes).substr(0, static_cast<std::size_t>(count));
}

/// The same line under a mnemonic that no command is answered with.
std::string UnderWrongMnemonic(const std::string& bytes) {
  return "xxxx" + bytes.substr(MnemonicOf(WithoutLineEnd(bytes)).size());
}

/// A control byte in the middle: the receiver has to drop the whole line.
std::string Garbled(std::string bytes) {
  if (const std::size_t middle = WithoutLineEnd(bytes).size() / 2; middle > 0) bytes[middle] = '\x1B';
  return bytes;
}

void Stall(const Fault& fault, std::vector<Outgoing>& lines) {
  std::vector<Outgoing> parts;
  for (const Outgoing& line : lines) {
    const std::string beginning = Beginning(line.bytes, fault.number);
    parts.push_back({beginning, line.delay, false, {}});
    if (!fault.ms) continue;
    Outgoing rest = line;
    rest.bytes.erase(0, beginning.size());
    rest.delay += TimeOf(fault);
    parts.push_back(rest);
  }
  lines = parts;
}

void Double(std::vector<Outgoing>& lines) {
  const std::vector<Outgoing> again = lines;
  lines.insert(lines.end(), again.begin(), again.end());
}

/// Rules that double a reply again and again would fill the memory otherwise.
void Bound(std::vector<Outgoing>& lines) {
  if (lines.size() > kMostReplyLines) lines.resize(kMostReplyLines);
}

void AddNoise(const Fault& fault, std::vector<Outgoing>& lines) {
  const Outgoing noise{std::string(kNoise), TimeOf(fault), false, {}};
  lines.insert(fault.ms ? lines.end() : lines.begin(), noise);
}

/// Also a reply dropped by an earlier rule can still take the line down with it.
void PullCable(std::optional<std::chrono::microseconds> backAfter, std::vector<Outgoing>& lines) {
  lines.assign(1, Outgoing{{}, {}, true, backAfter});
}

/// The bytes that come in place of a line.
std::string Spoiled(const Fault& fault, const std::string& bytes) {
  const std::string lineEnd(kLineEnd);
  switch (fault.kind) {
    case FaultKind::Truncate:
      // The line end is lost too, so the rest never becomes a message of its own.
      return Beginning(bytes, fault.number);
    case FaultKind::Shorten:
      return Beginning(bytes, fault.number) + lineEnd;
    case FaultKind::Garble:
      return Garbled(bytes);
    case FaultKind::WrongMnemonic:
      return UnderWrongMnemonic(bytes);
    case FaultKind::Error:
      return "ERRM," + std::to_string(fault.number) + lineEnd;
    case FaultKind::Reply:
      return fault.text + lineEnd;
    default:
      return bytes;
  }
}

void Spoil(const Fault& fault, Reply& reply) {
  switch (fault.kind) {
    case FaultKind::Drop:
      return reply.lines.clear();
    case FaultKind::Double:
      return Double(reply.lines);
    case FaultKind::Stall:
      return Stall(fault, reply.lines);
    case FaultKind::Noise:
      return AddNoise(fault, reply.lines);
    case FaultKind::Forget:
      reply.forget = true;
      return;
    case FaultKind::HangUp:
      return PullCable({}, reply.lines);
    case FaultKind::Unplug:
      return PullCable(TimeOf(fault), reply.lines);
    case FaultKind::Delay:
      for (Outgoing& line : reply.lines) line.delay += TimeOf(fault);
      return;
    default:
      for (Outgoing& line : reply.lines) line.bytes = Spoiled(fault, line.bytes);
  }
}

}  // namespace

void Apply(const Fault& fault, Reply& reply) {
  reply.notes.push_back("fault: " + FaultText(fault));
  Spoil(fault, reply);
  Bound(reply.lines);
}

}  // namespace sim
