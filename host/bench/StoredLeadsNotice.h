#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/ITestElement.h"
#include "host/run/LeadCalibrations.h"
#include "host/serial/Wire.h"

namespace host::bench {

/// Warns at the start of a run when protective-earth readings are going to be corrected by a value that test
/// leads cannot have. Such a value was stored by another program; this one refuses it.
class StoredLeadsNotice {
 public:
  /// @param registry must outlive the notice
  /// @param warn called once for each tester that reports itself on the wire
  StoredLeadsNotice(serial::Wire& wire, const RegistryStore& registry,
                    const std::vector<std::shared_ptr<orvik::ITestElement>>& elements,
                    std::function<void(const std::string& text)> warn);

 private:
  void Watch(const serial::WireRecord& record);

  const RegistryStore& registry_;
  const std::function<void(const std::string&)> warn_;
  std::string known_;  ///< serial number that was looked up last
  orvik::platform::Subscription watch_;
};

}  // namespace host::bench
