#pragma once

#include <string>

#include "host/serial/PortManager.h"

namespace host::run {

/// Reports whether the tester can be reached, from what happened on the wire.
class LinkWatch {
 public:
  explicit LinkWatch(serial::PortManager& ports);

  /// Why the tester cannot be reached: the port could not be opened, it failed, or there was no answer at the
  /// start of the last session. Empty otherwise.
  std::string Loss() const;

 private:
  void Watch(const serial::WireRecord& record);

  serial::PortManager& ports_;
  bool failed_ = false;
  bool sessionRequested_ = false;  ///< no answer to IREM yet
  orvik::platform::Subscription watch_;
};

}  // namespace host::run
