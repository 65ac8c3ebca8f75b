#include "benchmarks/OwnProcess.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <exception>
#include <stdexcept>

namespace benchmarks {

namespace {

/// Goes on in the child; never returns. What the parent has opened stays untouched.
[[noreturn]] void Tell(const std::function<double()>& act, int to) {
  int status = 1;
  try {
    const double seconds = act();
    if (write(to, &seconds, sizeof seconds) == sizeof seconds) status = 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
  }
  _exit(status);
}

double Told(int from) {
  double seconds = 0;
  ssize_t count = 0;
  do {
    count = read(from, &seconds, sizeof seconds);
  } while (count < 0 && errno == EINTR);
  return count == sizeof seconds ? seconds : -1;
}

}  // namespace

double InOwnProcess(const std::function<double()>& act) {
  int ends[2];
  if (pipe(ends) != 0) throw std::runtime_error("no pipe can be made");
  std::fflush(nullptr);
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("no process can be made");
  if (child == 0) Tell(act, ends[1]);
  close(ends[1]);
  const double seconds = Told(ends[0]);
  close(ends[0]);
  while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) continue;
  if (seconds < 0) throw std::runtime_error("what was to be measured did not end well");
  return seconds;
}

}  // namespace benchmarks
