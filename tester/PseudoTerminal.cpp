#include "tester/PseudoTerminal.h"

#include <fcntl.h>
#include <limits.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <optional>
#include <system_error>
#include <utility>

#include "tester/Errors.h"

namespace sim {

namespace {

/// Where the link at `path` leads; empty when there is no link.
std::optional<std::string> ReadLink(const std::string& path) {
  std::string target(PATH_MAX, '\0');
  const ssize_t size = readlink(path.c_str(), target.data(), target.size());
  if (size < 0) return std::nullopt;
  target.resize(static_cast<std::size_t>(size));
  return target;
}

bool IsPseudoTerminal(const std::string& target) { return target.rfind("/dev/pts/", 0) == 0; }

}  // namespace

PseudoTerminal::PseudoTerminal() : near_(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK)) {
  if (!near_) throw SystemFailure("no pseudo-terminal could be opened", errno);
  if (grantpt(near_.Get()) != 0 || unlockpt(near_.Get()) != 0) {
    throw SystemFailure("the pseudo-terminal could not be unlocked", errno);
  }
  char name[PATH_MAX];
  if (const int error = ptsname_r(near_.Get(), name, sizeof name); error != 0) {
    throw SystemFailure("the pseudo-terminal has no name", error);
  }
  devicePath_ = name;
  far_ = UniqueFd(open(name, O_RDWR | O_NOCTTY | O_CLOEXEC));
  if (!far_) throw SystemFailure(devicePath_ + " could not be opened", errno);

  termios mode{};
  if (tcgetattr(far_.Get(), &mode) != 0) throw SystemFailure(devicePath_ + " does not tell its mode", errno);
  cfmakeraw(&mode);
  if (tcsetattr(far_.Get(), TCSANOW, &mode) != 0)
    throw SystemFailure(devicePath_ + " could not be made raw", errno);
}

DeviceLink::DeviceLink(std::string path, std::string target)
    : path_(std::move(path)), target_(std::move(target)) {
  struct stat status {};
  if (lstat(path_.c_str(), &status) == 0) {
    const auto old = ReadLink(path_);
    if (!old || !IsPseudoTerminal(*old)) {
      throw InputError("--link " + path_ + ": something else is there; remove it or choose another path");
    }
    if (unlink(path_.c_str()) != 0) {
      throw InputError("--link " + path_ + ": the old link cannot be removed: " +
                       std::generic_category().message(errno) + "; choose another path");
    }
  }
  if (symlink(target_.c_str(), path_.c_str()) != 0) {
    throw InputError("--link " + path_ +
                     ": the link cannot be made: " + std::generic_category().message(errno) +
                     "; choose a path in a folder that exists and that you may write to");
  }
}

DeviceLink::~DeviceLink() {
  if (ReadLink(path_) == target_) unlink(path_.c_str());
}

}  // namespace sim
