#pragma once

#include <memory>

#include "OrvikTypeLib/ICommApplication.h"
#include "host/serial/PortManager.h"

namespace host::serial {

/// The serial communication library.
class CommApplication final : public orvik::ICommApplication {
 public:
  explicit CommApplication(std::shared_ptr<serial::PortManager> manager) : manager_(std::move(manager)) {}

  const std::shared_ptr<serial::PortManager>& Manager() const { return manager_; }

 private:
  std::shared_ptr<orvik::IPortManager> ICommApplication_PortManager() const override { return manager_; }

  const std::shared_ptr<serial::PortManager> manager_;
};

}  // namespace host::serial
