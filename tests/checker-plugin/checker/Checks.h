#pragma once

#include <memory>
#include <string>

#include "tests/checker-plugin/checker/Findings.h"

namespace orvik {
class IReport;
class IRunController;
}  // namespace orvik

// One function a subject, each in a file of its name.
namespace check {

void CheckClasses(Findings& findings);
void CheckElements(Findings& findings);
void CheckContainer(Findings& findings);
void CheckStandards(Findings& findings);
void CheckLanguage(Findings& findings);
void CheckErrorLog(Findings& findings);
void CheckXml(Findings& findings);
void CheckRegistry(Findings& findings);
void CheckRecords(Findings& findings);
void CheckSerialPort(Findings& findings, const std::string& device);
void CheckReport(Findings& findings, const std::shared_ptr<orvik::IReport>& report);
void CheckRunController(Findings& findings, const std::shared_ptr<orvik::IRunController>& controller);
void CheckForms(Findings& findings);
void CheckControls(Findings& findings);
void CheckTimers(Findings& findings);
void CheckModality(Findings& findings);
void CheckUserControls(Findings& findings);
void CheckCompositeControls(Findings& findings);
void CheckLimitView(Findings& findings);

}  // namespace check
