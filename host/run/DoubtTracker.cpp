#include "host/run/DoubtTracker.h"

#include <algorithm>

#include "host/plugins/keld/KeldProtocol.h"
#include "host/run/ReplyDoubts.h"
#include "host/serial/Latin1.h"

namespace host::run {

namespace {

/// Bounds the document's size when a tester never stops sending.
constexpr std::size_t kMostSaid = 8;
constexpr std::size_t kShownOfLine = 60;

template <class Lists>
const typename Lists::mapped_type& ListIn(const Lists& lists, std::int32_t id) {
  static const typename Lists::mapped_type kNone;
  const auto found = lists.find(id);
  return found == lists.end() ? kNone : found->second;
}

}  // namespace

DoubtTracker::DoubtTracker(serial::Wire& wire)
    : watch_(wire.Subscribe([this](const serial::WireRecord& record) { OnWire(record); })) {}

void DoubtTracker::ElementStarts(std::int32_t id) {
  running_ = id;
  Forget(id);
  for (const auto& doubt : session_) Add(id, doubt);
}

void DoubtTracker::Forget(std::int32_t id) {
  doubts_.erase(id);
  said_.erase(id);
}

void DoubtTracker::Add(std::int32_t id, const document::Reason& doubt) {
  auto& noted = doubts_[id];
  if (std::find(noted.begin(), noted.end(), doubt) != noted.end()) return;
  noted.push_back(doubt);
  noted_.Raise(id, doubt);
}

const std::vector<document::Reason>& DoubtTracker::Of(std::int32_t id) const { return ListIn(doubts_, id); }

const std::vector<std::string>& DoubtTracker::Said(std::int32_t id) const { return ListIn(said_, id); }

void DoubtTracker::OnWire(const serial::WireRecord& record) {
  switch (record.kind) {
    case serial::WireRecord::Kind::kOpened:
      lastCommand_.reset();
      session_.clear();
      break;
    case serial::WireRecord::Kind::kSent:
      OnCommand(record);
      break;
    case serial::WireRecord::Kind::kReceived:
      OnReply(*record.message);
      break;
    case serial::WireRecord::Kind::kDropped:
      Note({"invalid-line", {serial::VisibleLatin1(record.text.substr(0, kShownOfLine))}});
      break;
    case serial::WireRecord::Kind::kFailed:
    case serial::WireRecord::Kind::kClosed:
      // The next element starts before its own session is opened.
      session_.clear();
      break;
  }
}

void DoubtTracker::OnCommand(const serial::WireRecord& command) {
  if (command.replyWaiting) Note({"late-reply", {serial::VisibleLatin1(command.text)}});
  lastCommand_.emplace(command.message->MnemonicText(), command.message->Parameters(),
                       command.message->Line());
}

void DoubtTracker::OnReply(const serial::Message& reply) {
  const auto& mnemonic = reply.MnemonicText();
  if (running_ && (mnemonic == plugins::keld::kReading || mnemonic == plugins::keld::kError)) {
    auto& said = said_[*running_];
    if (said.size() < kMostSaid) said.push_back(serial::Utf8FromLatin1(reply.Line()));
  }
  // Before the first command: the reply stays in the queue, and that command notes it as late.
  if (!lastCommand_) return;
  const auto doubts = ReplyDoubts(*lastCommand_, reply);
  if (mnemonic == plugins::keld::kIdentity) session_.insert(session_.end(), doubts.begin(), doubts.end());
  for (const auto& doubt : doubts) Note(doubt);
}

void DoubtTracker::Note(const document::Reason& doubt) {
  if (running_) Add(*running_, doubt);
}

}  // namespace host::run
