#include "host/serial/WireLog.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <utility>

#include "OrvikTypeLib/HostError.h"
#include "host/base/FileErrors.h"
#include "host/base/SystemError.h"
#include "host/base/Tr.h"
#include "host/serial/Latin1.h"

namespace host::serial {

namespace {

constexpr char kWireLogSource[] = "orvik";

/// The start of each line; 9 is any digit.
constexpr std::string_view kLineStart = "9999-99-99T99:99:99.999999Z ";

bool HasLineStart(std::string_view text) {
  return std::equal(
      text.begin(), text.end(), kLineStart.begin(), kLineStart.end(),
      [](char c, char expected) { return expected == '9' ? c >= '0' && c <= '9' : c == expected; });
}

std::string_view DirectionOf(WireRecord::Kind kind) {
  switch (kind) {
    case WireRecord::Kind::kSent:
      return "sent";
    case WireRecord::Kind::kReceived:
      return "recv";
    case WireRecord::Kind::kDropped:
      return "lost";
    default:
      return "note";
  }
}

/// Whether the file has content that is not a wire log. Pipes and devices have none.
bool HasForeignContent(const std::string& path) {
  const UniqueFd file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  struct stat status {};
  if (!file || fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode) || status.st_size == 0)
    return false;
  char begin[kLineStart.size() + 1]{};
  const ssize_t count = read(file.Get(), begin, kLineStart.size());
  return !HasLineStart({begin, count > 0 ? static_cast<std::size_t>(count) : 0});
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
  if (HasForeignContent(path_))
    throw orvik::HostError(
        orvik::HostError::kPathError, kWireLogSource,
        Tr("wire log %%1: the file has other content and was not changed; name a new file or "
           "an earlier wire log with --wire-log",
           {path_}));
  const int error = Open();
  if (error == 0) return;
  const auto text =
      Tr("wire log %%1: cannot be written: %%2; name a writable file with --wire-log", {path_, failure_});
  if (IsErrorOfMachine(error)) throw StorageError(orvik::HostError::kPathError, kWireLogSource, text);
  throw orvik::HostError(orvik::HostError::kPathError, kWireLogSource, text);
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
      // The next run would take a partial line for other content.
      [[maybe_unused]] const int cut = ftruncate(file_.Get(), static_cast<off_t>(size_));
      file_.Reset();
      return;
    }
    rest.remove_prefix(static_cast<std::size_t>(count));
  }
  size_ += line.size();
}

int WireLog::Open() {
  // Not blocking: the name may be that of a pipe without a reader.
  file_ =
      UniqueFd(open(path_.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0644));
  if (!file_) {
    const int error = errno;
    failure_ = SystemError(error);
    return error;
  }
  struct stat status {};
  size_ = fstat(file_.Get(), &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
  return 0;
}

void WireLog::Rotate() {
  file_.Reset();
  const auto older = path_ + ".1";
  if (HasForeignContent(older)) {
    failure_ = Tr("%%1 exists and is not a wire log", {older});
    return;
  }
  if (std::rename(path_.c_str(), older.c_str()) != 0) {
    failure_ = SystemError(errno);
    return;
  }
  Open();
}

}  // namespace host::serial
