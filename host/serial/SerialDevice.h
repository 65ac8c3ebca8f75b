#pragma once

#include <string>
#include <string_view>

#include "host/serial/LineSettings.h"
#include "host/serial/UniqueFd.h"

namespace bench {

/// A serial device that is open for this program alone, in raw mode. Its descriptor does not block.
class SerialDevice {
 public:
  /// Opens the device and throws away what had come in before. `HostError` naming the device and what to do:
  /// 75 when it does not exist or is no serial device, 57 when it may not be used, does not take the
  /// settings, or, as `BusyError`, is held by another program.
  ///
  /// A pseudo-terminal has no parity: that it drops the parity bit is no failure.
  SerialDevice(std::string path, const LineSettings& settings);
  SerialDevice(const SerialDevice&) = delete;
  SerialDevice& operator=(const SerialDevice&) = delete;
  ~SerialDevice() { Close(); }

  int Descriptor() const { return descriptor_.Get(); }
  bool IsOpen() const { return static_cast<bool>(descriptor_); }
  const std::string& Path() const { return path_; }
  /// Whether there is a program at the other end instead of a cable.
  bool IsPseudoTerminal() const { return pseudo_; }

  /// Sends all the bytes; false when the device has failed or takes nothing for half a second.
  bool Write(std::string_view bytes);

  enum class ReadOutcome { kBytes, kNothing, kFailed };
  /// Reads what has come in, at most `room` bytes of it; `count` tells how many. A hang-up is a failure.
  ReadOutcome Read(char* buffer, std::size_t room, std::size_t& count);

  /// Gives what was written a tenth of a second to go out, and discards the rest.
  void Close();

 private:
  const std::string path_;
  UniqueFd descriptor_;
  bool pseudo_ = false;
  bool exclusive_ = false;
};

}  // namespace bench
