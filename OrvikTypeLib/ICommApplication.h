#pragma once

#include <memory>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

class IPortManager;

/// The serial communication library (class "OrvikComm.Application").
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class ICommApplication : public virtual IObject {
 public:
  /// The port manager.
  std::shared_ptr<IPortManager> PortManager() const { return ICommApplication_PortManager(); }

 private:
  virtual std::shared_ptr<IPortManager> ICommApplication_PortManager() const = 0;
};

}  // namespace orvik
