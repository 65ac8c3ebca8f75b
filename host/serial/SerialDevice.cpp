#include "host/serial/SerialDevice.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <termios.h>

#include <cerrno>

#include "OrvikTypeLib/HostError.h"
#include "host/base/FileErrors.h"
#include "host/base/SystemError.h"
#include "host/base/Tr.h"
#include "host/serial/LineMode.h"
#include "host/serial/OutputQueue.h"

namespace host::serial {

namespace {

constexpr char kSerialSource[] = "OrvikComm.PortManager";
constexpr int kWriteTimeoutMs = 500;

/// `number` 75: not a serial device; 57: a serial device that cannot be used now.
[[noreturn]] void Fail(std::int32_t number, const std::string& path, const std::string& reason) {
  throw orvik::HostError(number, kSerialSource, Tr("serial device %%1: %%2", {path, reason}));
}

[[noreturn]] void FailToOpen(const std::string& path, int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
    case ENXIO:
    case ENODEV:
      Fail(orvik::HostError::kPathError, path,
           Tr("does not exist; connect the tester and name its device, such as /dev/ttyUSB0"));
    case EISDIR:
      Fail(orvik::HostError::kPathError, path, Tr("is a folder, not a serial device"));
    case EACCES:
    case EPERM:
      Fail(orvik::HostError::kDeviceError, path,
           Tr("permission denied; add your account to the device's group (often \"dialout\") and log in "
              "again"));
    case EBUSY:
      throw BusyError(orvik::HostError::kDeviceError, kSerialSource,
                      Tr("serial device %%1: %%2",
                         {path, Tr("is held by another program; close that program and try again")}));
    default:
      Fail(orvik::HostError::kDeviceError, path, Tr("cannot be opened: %%1", {SystemError(error)}));
  }
}

bool IsPseudoTerminalAt(int descriptor) {
  constexpr unsigned kFirstMajor = 136;
  constexpr unsigned kLastMajor = 143;
  struct stat status {};
  if (fstat(descriptor, &status) != 0 || !S_ISCHR(status.st_mode)) return false;
  return major(status.st_rdev) >= kFirstMajor && major(status.st_rdev) <= kLastMajor;
}

}  // namespace

SerialDevice::SerialDevice(std::string path, const LineSettings& settings) : path_(std::move(path)) {
  UniqueFd opened(open(path_.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
  if (!opened) FailToOpen(path_, errno);
  if (!isatty(opened.Get()))
    Fail(orvik::HostError::kPathError, path_, Tr("is not a serial device; name one, such as /dev/ttyUSB0"));
  if (flock(opened.Get(), LOCK_EX | LOCK_NB) != 0) {
    if (errno == EWOULDBLOCK) FailToOpen(path_, EBUSY);
    Fail(orvik::HostError::kDeviceError, path_, Tr("cannot be locked: %%1", {SystemError(errno)}));
  }
  pseudo_ = IsPseudoTerminalAt(opened.Get());
  const auto reason = SetLineMode(opened.Get(), settings, pseudo_);
  if (!reason.empty()) Fail(orvik::HostError::kDeviceError, path_, reason);
  // Not for a pseudo-terminal: its other holder keeps it open and exclusive after this program was killed.
  exclusive_ = !pseudo_ && ioctl(opened.Get(), TIOCEXCL) == 0;
  tcflush(opened.Get(), TCIOFLUSH);
  descriptor_ = std::move(opened);
}

bool SerialDevice::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(descriptor_.Get(), bytes.data(), bytes.size());
    if (count > 0) {
      bytes.remove_prefix(static_cast<std::size_t>(count));
      continue;
    }
    if (count < 0 && errno == EINTR) continue;
    if (count < 0 && errno != EAGAIN) return false;
    pollfd writable{descriptor_.Get(), POLLOUT, 0};
    if (poll(&writable, 1, kWriteTimeoutMs) <= 0 || (writable.revents & POLLOUT) == 0) return false;
  }
  return true;
}

SerialDevice::ReadOutcome SerialDevice::Read(char* buffer, std::size_t capacity, std::size_t& count) {
  while (true) {
    const ssize_t got = read(descriptor_.Get(), buffer, capacity);
    count = got > 0 ? static_cast<std::size_t>(got) : 0;
    if (got > 0) return ReadOutcome::kBytes;
    if (got < 0 && errno == EINTR) continue;
    if (got < 0 && errno == EAGAIN) return ReadOutcome::kNothing;
    return ReadOutcome::kFailed;  // end of file is a hang-up
  }
}

void SerialDevice::Close() {
  if (!descriptor_) return;
  const int descriptor = descriptor_.Get();
  const auto unsent = [descriptor] {
    int bytes = 0;
    return ioctl(descriptor, TIOCOUTQ, &bytes) == 0 ? bytes : 0;
  };
  // Closing would wait forever for bytes that a blocked line does not send.
  if (!AwaitEmptyQueue(unsent, [] { poll(nullptr, 0, 1); })) tcflush(descriptor, TCOFLUSH);
  if (exclusive_) ioctl(descriptor_.Get(), TIOCNXCL);
  descriptor_.Reset();
}

}  // namespace host::serial
