#include "host/serial/WireLog.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>

#include <cerrno>
#include <cstdio>
#include <utility>

#include "OrvikTypeLib/HostError.h"
#include "host/serial/Latin1.h"
#include "host/services/SystemError.h"
#include "host/services/Tr.h"

namespace bench {

namespace {

std::string_view DirectionOf(WireRecord::Kind kind) {
  switch (kind) {
    case WireRecord::Kind::kSent:
      return "sent";
    case WireRecord::Kind::kReceived:
      return "recv";
    case WireRecord::Kind::kDropped:
      return "lost";
    case WireRecord::Kind::kOpened:
    case WireRecord::Kind::kFailed:
    case WireRecord::Kind::kClosed:
      break;
  }
  return "note";
}

std::string UtcNow() {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  tm parts{};
  gmtime_r(&now.tv_sec, &parts);
  char seconds[32];
  strftime(seconds, sizeof seconds, "%Y-%m-%dT%H:%M:%S", &parts);
  char text[64];
  std::snprintf(text, sizeof text, "%s.%06ldZ", seconds, now.tv_nsec / 1000);
  return text;
}

}  // namespace

WireLog::WireLog(std::string path, std::uint64_t maxBytes) : path_(std::move(path)), maxBytes_(maxBytes) {
  Open();
  if (!file_)
    throw orvik::HostError(
        orvik::HostError::kPathError, "orvik",
        Tr("wire log %%1: cannot be written: %%2; name a file that you may write to with --wire-log",
           {path_, failure_}));
}

void WireLog::Write(const WireRecord& record) {
  WriteLine(record.replyWaiting ? "note" : DirectionOf(record.kind),
            record.replyWaiting ? "a reply was already waiting" : record.text);
  if (record.replyWaiting) WriteLine(DirectionOf(record.kind), record.text);
}

void WireLog::Note(std::string_view text) { WriteLine("note", text); }

void WireLog::WriteLine(std::string_view direction, std::string_view bytes) {
  if (!file_) return;
  std::string line = UtcNow();
  line.append(" ").append(direction).append(" ").append(VisibleLatin1(bytes)).append("\n");
  if (size_ > 0 && size_ + line.size() > maxBytes_) Rotate();
  std::string_view rest = line;
  while (file_ && !rest.empty()) {
    const ssize_t count = write(file_.Get(), rest.data(), rest.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) {
      failure_ = SystemError(errno);
      file_.Reset();
      return;
    }
    rest.remove_prefix(static_cast<std::size_t>(count));
    size_ += static_cast<std::uint64_t>(count);
  }
}

void WireLog::Open() {
  // Not blocking: the name may be that of a pipe that nobody reads.
  file_ =
      UniqueFd(open(path_.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0644));
  if (!file_) {
    failure_ = SystemError(errno);
    return;
  }
  struct stat status {};
  size_ = fstat(file_.Get(), &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
}

void WireLog::Rotate() {
  file_.Reset();
  if (std::rename(path_.c_str(), (path_ + ".1").c_str()) != 0) {
    failure_ = SystemError(errno);
    return;
  }
  Open();
}

}  // namespace bench
