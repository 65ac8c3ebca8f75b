#pragma once

#include <string>

#include "tester/UniqueFd.h"

namespace sim {

/// A pair of pseudo-terminals in raw mode. The far end stays open here as well, so that clients can come and
/// go.
class PseudoTerminal {
 public:
  /// Throws SystemFailure when the system has none to give.
  PseudoTerminal();

  /// Our own end, non-blocking.
  int Fd() const { return near_.Get(); }

  /// The device that a client opens, such as "/dev/pts/7".
  const std::string& DevicePath() const { return devicePath_; }

 private:
  UniqueFd near_;
  UniqueFd far_;
  std::string devicePath_;
};

/// A symbolic link to a device, removed with this object.
class DeviceLink {
 public:
  /// Makes `path` a link to `target`. A link that leads to a pseudo-terminal, left by an earlier tester, is
  /// replaced; anything else is kept, and InputError thrown. Whether that tester has
  /// ended is for the caller to know: `LinkClaim`.
  DeviceLink(std::string path, std::string target);
  DeviceLink(const DeviceLink&) = delete;
  DeviceLink& operator=(const DeviceLink&) = delete;
  /// Removes the link unless it has been replaced.
  ~DeviceLink();

 private:
  const std::string path_;
  const std::string target_;
};

}  // namespace sim
