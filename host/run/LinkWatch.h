#pragma once

#include <string>

#include "host/serial/PortManager.h"

namespace bench {

/// Tells whether the tester can be reached at all, from what happened on the wire.
class LinkWatch {
 public:
  explicit LinkWatch(PortManager& ports);

  /// Why the tester cannot be reached: the port could not be opened or has failed, or nobody answered when
  /// the last session was to begin. Empty while all is well.
  std::string Loss() const;

 private:
  void Watch(const WireRecord& record);

  PortManager& ports_;
  bool failed_ = false;
  bool sessionAsked_ = false;  ///< a session was asked for, and nothing has come in since
  orvik::platform::Subscription watch_;
};

}  // namespace bench
