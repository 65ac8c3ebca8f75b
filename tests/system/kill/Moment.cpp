#include "tests/system/kill/Moment.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <algorithm>
#include <sstream>

namespace kill_test {
namespace {

using support::Process;

/// A program that does not reach its moment in this time hangs; `Wait` reports it.
constexpr std::chrono::minutes kPatience{2};

Process Started(std::vector<std::string> words) {
  const auto program = words.front();
  words.erase(words.begin());
  return Process(program, std::move(words));
}

/// Counts changes to the files of some folders.
class Watch {
 public:
  explicit Watch(const std::vector<std::string>& folders) : events_(inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
    for (const auto& folder : folders)
      inotify_add_watch(events_.Get(), folder.c_str(), IN_CREATE | IN_MODIFY | IN_MOVED_TO | IN_CLOSE_WRITE);
  }

  int Descriptor() const { return events_.Get(); }
  int Count() {
    alignas(inotify_event) char buffer[4096];
    const auto size = read(events_.Get(), buffer, sizeof buffer);
    for (ssize_t at = 0; at < size; ++count_)
      at += static_cast<ssize_t>(sizeof(inotify_event)) +
            static_cast<ssize_t>(reinterpret_cast<const inotify_event*>(buffer + at)->len);
    return count_;
  }

 private:
  host::UniqueFd events_;
  int count_ = 0;
};

}  // namespace

Finished RunUntil(const Moment& moment, std::vector<std::string> words) {
  auto program = Started(std::move(words));
  const auto now = [] { return Process::Clock::now(); };
  if (moment.lines >= 0)
    program.ReadUntil(
        [&] { return std::count(program.Output().begin(), program.Output().end(), '\n') >= moment.lines; },
        now() + kPatience);
  if (moment.touches >= 0) {
    Watch watch(moment.folders);
    program.ReadUntil([&] { return watch.Count() >= moment.touches; }, now() + kPatience, watch.Descriptor());
  }
  // A program that has ended is a zombie until `Wait`, so the signal cannot hit another one.
  if (program.ReadUntil([] { return false; }, now() + moment.delay) == Process::ReadEnd::kTimeout)
    program.Signal(moment.signal);
  return program.Wait();
}

Finished Run(std::vector<std::string> words) { return Started(std::move(words)).Wait(); }

std::vector<std::string> Lines(const Finished& ended) {
  std::vector<std::string> lines;
  std::istringstream text(ended.out);
  for (std::string line; std::getline(text, line) && !text.eof();) lines.push_back(line);
  return lines;
}

}  // namespace kill_test
