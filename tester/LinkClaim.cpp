#include "tester/LinkClaim.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <functional>

#include "tester/Errors.h"

namespace sim {

namespace {

/// The same for every way to write the path; empty when its folder is not there.
std::string NameOfClaim(const std::filesystem::path& path) {
  const auto folder = path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
  struct stat status {};
  if (stat(folder.c_str(), &status) != 0) return {};
  return "keld-sim " + std::to_string(status.st_dev) + " " + std::to_string(status.st_ino) + " " +
         std::to_string(std::hash<std::string>{}(path.filename().string()));
}

}  // namespace

LinkClaim::LinkClaim(const std::string& path) {
  const std::string name = NameOfClaim(path);
  if (name.empty()) return;  // `DeviceLink` reports that no link can be made there

  // A socket of the abstract kind: two processes never have one of the same name, and it needs no file.
  holder_ = UniqueFd(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  std::copy(name.begin(), name.end(), address.sun_path + 1);
  const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
  if (holder_ && bind(holder_.Get(), reinterpret_cast<const sockaddr*>(&address), size) == 0) return;
  if (errno == EADDRINUSE)
    throw InputError("--link " + path + ": another keld-sim is running there; end it or choose another path");
  throw SystemFailure("--link " + path + " could not be claimed", errno);
}

}  // namespace sim
