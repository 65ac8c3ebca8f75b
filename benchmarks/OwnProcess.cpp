#include "benchmarks/OwnProcess.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string_view>

namespace benchmarks {

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;

/// Goes on in the child; never returns.
[[noreturn]] void Tell(const std::function<std::string()>& act, int to) {
  try {
    const auto text = act();
    std::string_view rest = text;
    while (!rest.empty()) {
      const auto count = write(to, rest.data(), rest.size());
      if (count < 0 && errno != EINTR) _exit(kFailed);
      if (count > 0) rest.remove_prefix(static_cast<std::size_t>(count));
    }
    _exit(kDone);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    _exit(kFailed);
  }
}

std::string Told(int from) {
  std::string text;
  std::array<char, 4096> block{};
  while (true) {
    const auto count = read(from, block.data(), block.size());
    if (count > 0) text.append(block.data(), static_cast<std::size_t>(count));
    if (count == 0 || (count < 0 && errno != EINTR)) return text;
  }
}

bool EndedWell(pid_t child) {
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) return false;
  }
  return WIFEXITED(status) && WEXITSTATUS(status) == kDone;
}

}  // namespace

std::string InOwnProcess(const std::function<std::string()>& act) {
  int ends[2];
  if (pipe(ends) != 0) throw std::runtime_error("no pipe can be made");
  std::fflush(nullptr);
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("no process can be made");
  if (child == 0) Tell(act, ends[1]);
  close(ends[1]);
  auto text = Told(ends[0]);
  close(ends[0]);
  if (!EndedWell(child)) throw std::runtime_error("what was to be measured did not end well");
  return text;
}

double SecondsInOwnProcess(const std::function<double()>& act) {
  return std::stod(InOwnProcess([&] { return std::to_string(act()); }));
}

}  // namespace benchmarks
