#include "host/run/DoubtTracker.h"

#include <algorithm>

#include "host/plugins/keld/KeldProtocol.h"
#include "host/run/ReplyDoubts.h"
#include "host/serial/Latin1.h"

namespace bench {

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

DoubtTracker::DoubtTracker(Wire& wire)
    : watch_(wire.Subscribe([this](const WireRecord& record) { OnWire(record); })) {}

void DoubtTracker::ElementStarts(std::int32_t id) {
  running_ = id;
  Forget(id);
  for (const auto& doubt : session_) Add(id, doubt);
}

void DoubtTracker::Forget(std::int32_t id) {
  doubts_.erase(id);
  said_.erase(id);
}

void DoubtTracker::Add(std::int32_t id, const Reason& doubt) {
  auto& noted = doubts_[id];
  if (std::find(noted.begin(), noted.end(), doubt) != noted.end()) return;
  noted.push_back(doubt);
  noted_.Raise(id, doubt);
}

const std::vector<Reason>& DoubtTracker::Of(std::int32_t id) const { return ListIn(doubts_, id); }

const std::vector<std::string>& DoubtTracker::Said(std::int32_t id) const { return ListIn(said_, id); }

void DoubtTracker::OnWire(const WireRecord& record) {
  switch (record.kind) {
    case WireRecord::Kind::kOpened:
      lastCommand_.reset();
      session_.clear();
      break;
    case WireRecord::Kind::kSent:
      OnCommand(record);
      break;
    case WireRecord::Kind::kReceived:
      OnReply(*record.message);
      break;
    case WireRecord::Kind::kDropped:
      Note({"invalid-line", {VisibleLatin1(record.text.substr(0, kShownOfLine))}});
      break;
    case WireRecord::Kind::kFailed:
    case WireRecord::Kind::kClosed:
      // The next element starts before its own session is opened.
      session_.clear();
      break;
  }
}

void DoubtTracker::OnCommand(const WireRecord& command) {
  if (command.replyWaiting) Note({"late-reply", {VisibleLatin1(command.text)}});
  lastCommand_.emplace(command.message->MnemonicText(), command.message->Parameters(),
                       command.message->Line());
}

void DoubtTracker::OnReply(const Message& reply) {
  const auto& mnemonic = reply.MnemonicText();
  if (running_ && (mnemonic == keld_facts::kReading || mnemonic == keld_facts::kError)) {
    auto& said = said_[*running_];
    if (said.size() < kMostSaid) said.push_back(Utf8FromLatin1(reply.Line()));
  }
  // Before the first command: the reply stays in the queue, and that command notes it as late.
  if (!lastCommand_) return;
  const auto doubts = ReplyDoubts(*lastCommand_, reply);
  if (mnemonic == keld_facts::kIdentity) session_.insert(session_.end(), doubts.begin(), doubts.end());
  for (const auto& doubt : doubts) Note(doubt);
}

void DoubtTracker::Note(const Reason& doubt) {
  if (running_) Add(*running_, doubt);
}

}  // namespace bench
