#pragma once

#include <string>
#include <string_view>

#include "host/base/UniqueFd.h"
#include "host/serial/LineSettings.h"

namespace host::serial {

/// A serial device that is open for this program alone, in raw mode. Its descriptor does not block.
class SerialDevice {
 public:
  /// Opens the device and discards what it has received before. `HostError` names the device and what to do:
  /// 75 if it does not exist or is not a serial device, 57 if it may not be used, does not support the
  /// settings, or, as `BusyError`, is held by another program.
  ///
  /// A pseudo-terminal may drop the parity bit.
  SerialDevice(std::string path, const LineSettings& settings);
  SerialDevice(const SerialDevice&) = delete;
  SerialDevice& operator=(const SerialDevice&) = delete;
  ~SerialDevice() { Close(); }

  int Descriptor() const { return descriptor_.Get(); }
  bool IsOpen() const { return static_cast<bool>(descriptor_); }
  const std::string& Path() const { return path_; }
  /// Whether a program is at the other end instead of a cable.
  bool IsPseudoTerminal() const { return pseudo_; }

  /// Sends all the bytes; false if the device fails or accepts nothing for half a second.
  bool Write(std::string_view bytes);

  enum class ReadOutcome { kBytes, kNothing, kFailed };
  /// Reads at most `capacity` received bytes; `count` returns how many. A hang-up is a failure.
  ReadOutcome Read(char* buffer, std::size_t capacity, std::size_t& count);

  /// Waits up to 100 ms until all written bytes are sent, and discards the rest.
  void Close();

 private:
  const std::string path_;
  UniqueFd descriptor_;
  bool pseudo_ = false;
  bool exclusive_ = false;
};

}  // namespace host::serial
