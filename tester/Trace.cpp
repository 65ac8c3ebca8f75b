#include "tester/Trace.h"

#include <fcntl.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <system_error>

#include "tester/Errors.h"
#include "tester/Text.h"

namespace sim {

namespace {

std::string UtcNow() {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  tm parts{};
  gmtime_r(&now.tv_sec, &parts);
  char day[32];
  strftime(day, sizeof day, "%Y-%m-%dT%H:%M:%S", &parts);
  char text[64];
  std::snprintf(text, sizeof text, "%s.%06ldZ", day, now.tv_nsec / 1000);
  return text;
}

}  // namespace

Trace::Trace(const std::string& path)
    : path_(path),
      file_(open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0644)) {
  if (!file_) {
    throw InputError("--trace " + path + ": cannot be opened: " + std::generic_category().message(errno) +
                     "; choose a file that you may write to");
  }
}

void Trace::Write(std::string_view direction, std::string_view bytes) {
  const std::string line = UtcNow() + " " + std::string(direction) + " " + ShowBytes(bytes) + "\n";
  std::string_view rest = line;
  while (!rest.empty()) {
    const ssize_t count = write(file_.Get(), rest.data(), rest.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) throw SystemFailure("--trace " + path_ + " could not be written", errno);
    rest.remove_prefix(static_cast<std::size_t>(count));
  }
}

}  // namespace sim
