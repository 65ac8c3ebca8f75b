#include "tests/system/kill/Orphans.h"

#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <system_error>

namespace kill_test {
namespace {

constexpr std::chrono::seconds kOrphanPatience{20};

std::string NameOf(pid_t process) {
  std::ifstream file("/proc/" + std::to_string(process) + "/comm");
  std::string name;
  std::getline(file, name);
  return name;
}

/// The children of this process.
std::vector<pid_t> Children() {
  std::vector<pid_t> children;
  for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
    const auto name = entry.path().filename().string();
    if (name.find_first_not_of("0123456789") != std::string::npos) continue;
    std::ifstream file(entry.path() / "stat");
    std::string text;
    std::getline(file, text);
    // "PID (name) state parent": the name may contain blanks and parentheses.
    const auto end = text.rfind(") ");
    if (end != std::string::npos && std::stoi(text.substr(end + 4)) == getpid())
      children.push_back(std::stoi(name));
  }
  return children;
}

}  // namespace

Orphans::Orphans() {
  if (prctl(PR_SET_CHILD_SUBREAPER, 1) != 0)
    throw std::system_error(errno, std::generic_category(), "PR_SET_CHILD_SUBREAPER");
}

std::vector<std::string> Orphans::AwaitEnd() const {
  std::vector<std::string> names;
  const auto deadline = std::chrono::steady_clock::now() + kOrphanPatience;
  while (true) {
    siginfo_t ended{};
    if (waitid(P_ALL, 0, &ended, WEXITED | WNOHANG | WNOWAIT) != 0) {
      if (errno == ECHILD) return names;
      if (errno == EINTR) continue;
      throw std::system_error(errno, std::generic_category(), "waitid");
    }
    if (ended.si_pid != 0) {
      names.push_back(NameOf(ended.si_pid));
      waitpid(ended.si_pid, nullptr, 0);
    } else if (std::chrono::steady_clock::now() < deadline) {
      poll(nullptr, 0, 1);
    } else {
      std::string left;
      for (const auto child : Children()) {
        left += " " + NameOf(child) + " (" + std::to_string(child) + ")";
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
      }
      throw std::runtime_error("left behind by a killed program:" + left);
    }
  }
}

}  // namespace kill_test
