#pragma once

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <stdexcept>
#include <string>

#include "host/base/UniqueFd.h"

namespace support {

/// A pair of pseudo-terminals: the test holds the near end, and the program opens the device.
class PseudoTerminal {
 public:
  PseudoTerminal() : near_(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
    char name[64];
    if (!near_ || grantpt(near_.Get()) != 0 || unlockpt(near_.Get()) != 0 ||
        ptsname_r(near_.Get(), name, sizeof name) != 0)
      throw std::runtime_error("no pseudo-terminal to be had");
    path_ = name;
    far_ = host::UniqueFd(open(name, O_RDWR | O_NOCTTY | O_CLOEXEC));
    termios mode{};
    tcgetattr(far_.Get(), &mode);
    cfmakeraw(&mode);
    tcsetattr(far_.Get(), TCSANOW, &mode);
  }

  const std::string& Path() const { return path_; }
  int Near() const { return near_.Get(); }

  void Send(const std::string& bytes) {
    if (write(near_.Get(), bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
      throw std::runtime_error("the pseudo-terminal took not all bytes");
  }

  /// Waits for exactly that many bytes; fewer when none come for ten seconds.
  std::string Receive(std::size_t size) {
    std::string bytes;
    while (bytes.size() < size) {
      pollfd readable{near_.Get(), POLLIN, 0};
      if (poll(&readable, 1, 10'000) <= 0) break;
      char buffer[256];
      const auto count = read(near_.Get(), buffer, std::min(sizeof buffer, size - bytes.size()));
      if (count <= 0) break;
      bytes.append(buffer, static_cast<std::size_t>(count));
    }
    return bytes;
  }

  /// Pulls the cable.
  void HangUp() {
    far_.Reset();
    near_.Reset();
  }

 private:
  host::UniqueFd near_;
  host::UniqueFd far_;
  std::string path_;
};

}  // namespace support
