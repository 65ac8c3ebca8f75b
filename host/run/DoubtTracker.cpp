#include "host/run/DoubtTracker.h"

#include <algorithm>

#include "host/run/ReplyDoubts.h"
#include "host/serial/Latin1.h"
#include "host/services/Tr.h"

namespace bench {

DoubtTracker::DoubtTracker(Wire& wire)
    : watch_(wire.Subscribe([this](const WireRecord& record) { Watch(record); })) {}

void DoubtTracker::ElementStarts(std::int32_t id) {
  running_ = id;
  lastOhms_.reset();
  doubts_.erase(id);
}

void DoubtTracker::Add(std::int32_t id, const std::string& doubt) {
  auto& noted = doubts_[id];
  if (std::find(noted.begin(), noted.end(), doubt) != noted.end()) return;
  noted.push_back(doubt);
  noted_.Raise(id, doubt);
}

const std::vector<std::string>& DoubtTracker::Of(std::int32_t id) const {
  static const std::vector<std::string> kNone;
  const auto found = doubts_.find(id);
  return found == doubts_.end() ? kNone : found->second;
}

void DoubtTracker::Watch(const WireRecord& record) {
  switch (record.kind) {
    case WireRecord::Kind::kOpened:
      lastCommand_.reset();
      break;
    case WireRecord::Kind::kSent:
      if (record.replyWaiting)
        Note(Tr("a reply was already waiting when \"%%1\" was sent: a late or a doubled one",
                {VisibleLatin1(record.text)}));
      lastCommand_.emplace(record.message->MnemonicText(), record.message->Parameters(),
                           record.message->Line());
      break;
    case WireRecord::Kind::kReceived:
      if (const auto ohms = OhmsIn(*record.message)) lastOhms_ = ohms;
      if (!lastCommand_) break;  // it waits, and is noted when a command goes out
      for (const auto& doubt : ReplyDoubts(*lastCommand_, *record.message)) Note(doubt);
      break;
    case WireRecord::Kind::kDropped:
      Note(Tr("a line came in that is no message, and was dropped: \"%%1\"",
              {VisibleLatin1(record.text.substr(0, 60))}));
      break;
    case WireRecord::Kind::kFailed:
    case WireRecord::Kind::kClosed:
      break;
  }
}

void DoubtTracker::Note(const std::string& doubt) {
  if (running_) Add(*running_, doubt);
}

}  // namespace bench
