#pragma once

#include <memory>
#include <string>

#include "tests/checker-plugin/IHostChecker.h"

namespace check {

class CHostChecker final : public IHostChecker {
 public:
  static std::shared_ptr<CHostChecker> Create();

 private:
  CHostChecker() = default;

  std::string IObject_ClassID() const override { return kClassId; }

  Texts IHostChecker_Classes() override;
  Texts IHostChecker_Elements() override;
  Texts IHostChecker_Container() override;
  Texts IHostChecker_Standards() override;
  Texts IHostChecker_Language() override;
  Texts IHostChecker_ErrorLog() override;
  Texts IHostChecker_Xml() override;
  Texts IHostChecker_Registry() override;
  Texts IHostChecker_Records() override;
  Texts IHostChecker_SerialPort(const std::string& device) override;
  Texts IHostChecker_Report(std::shared_ptr<orvik::IReport> report) override;
  Texts IHostChecker_RunController(std::shared_ptr<orvik::IRunController> controller) override;
  Texts IHostChecker_Forms() override;
  Texts IHostChecker_Controls() override;
  Texts IHostChecker_Timers() override;
  Texts IHostChecker_Modality() override;
  Texts IHostChecker_UserControls() override;
  Texts IHostChecker_CompositeControls() override;
  Texts IHostChecker_LimitView() override;
};

}  // namespace check
