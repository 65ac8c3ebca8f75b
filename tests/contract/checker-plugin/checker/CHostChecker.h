#pragma once

#include <memory>
#include <string>

#include "tests/contract/checker-plugin/IHostChecker.h"

namespace check {

class CHostChecker final : public IHostChecker {
 public:
  static std::shared_ptr<CHostChecker> Create();

 private:
  CHostChecker() = default;

  std::string IObject_ClassID() const override { return kClassId; }
  Texts IHostChecker_Check(const std::string& subject, const HostParts& parts) override;
};

}  // namespace check
