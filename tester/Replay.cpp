#include "tester/Replay.h"

#include <utility>

#include "tester/Message.h"
#include "tester/Text.h"

namespace sim {

namespace {

constexpr std::string_view kNewSession = "IREM";
/// How long an unplugged cable stays so, when the log goes on later.
constexpr std::chrono::seconds kUnplugged{1};

}  // namespace

Replay::Replay(RecordedWire wire, Listener listener)
    : wire_(std::move(wire)), listener_(std::move(listener)) {}

void Replay::OnReply(const Exchange& exchange, Reply& reply) {
  if (!FindPlace(exchange)) return Say(exchange);
  const auto& recorded = wire_.commands[next_++];
  reply.notes.push_back("replay: line " + std::to_string(recorded.number));
  reply.takes = {};  // the log's times hold the measuring time
  reply.lines.clear();
  for (const auto& line : recorded.replies)
    reply.lines.push_back({line.bytes + std::string(kLineEnd), line.after, false, {}});
  if (!recorded.failed) return;
  Outgoing pulled{{}, recorded.failedAfter, true, {}};
  if (next_ < wire_.commands.size()) pulled.backAfter = kUnplugged;
  reply.lines.push_back(pulled);
}

bool Replay::FindPlace(const Exchange& exchange) {
  const auto fits = [&](std::size_t place) { return wire_.commands[place].bytes == exchange.line; };
  if (next_ < wire_.commands.size() && fits(next_)) return true;
  if (exchange.command != kNewSession) return false;
  for (std::size_t place = next_; place < wire_.commands.size(); ++place) {
    if (!fits(place)) continue;
    next_ = place;
    return true;
  }
  return false;
}

void Replay::Say(const Exchange& exchange) const {
  if (!listener_) return;
  std::string remark = ShowBytes(exchange.line) + " is not in " + wire_.name + " at this point (";
  if (next_ == wire_.commands.size()) {
    remark += "the log has ended";
  } else {
    const auto& expected = wire_.commands[next_];
    remark += "line " + std::to_string(expected.number) + " has " + ShowBytes(expected.bytes) + " next";
  }
  listener_(remark + "); answered as the simulated tester does");
}

}  // namespace sim
