#pragma once

#include <initializer_list>
#include <string>
#include <utility>

#include "platform/IForm.h"
#include "tests/contract/checker-plugin/IHostChecker.h"
#include "tests/contract/checker-plugin/checker/Findings.h"

// One function for each subject, in a file of its name.
namespace check {

void CheckClasses(Findings& findings, const HostParts&);
void CheckElements(Findings& findings, const HostParts&);
void CheckContainer(Findings& findings, const HostParts&);
void CheckStandards(Findings& findings, const HostParts&);
void CheckLanguage(Findings& findings, const HostParts&);
void CheckErrorLog(Findings& findings, const HostParts&);
void CheckXml(Findings& findings, const HostParts&);
void CheckRegistry(Findings& findings, const HostParts&);
void CheckRecords(Findings& findings, const HostParts&);
void CheckSerialPort(Findings& findings, const HostParts& parts);
void CheckReport(Findings& findings, const HostParts& parts);
void CheckRunController(Findings& findings, const HostParts& parts);
void CheckForms(Findings& findings, const HostParts&);
void CheckControls(Findings& findings, const HostParts&);
void CheckTimers(Findings& findings, const HostParts&);
void CheckModality(Findings& findings, const HostParts&);
void CheckUserControls(Findings& findings, const HostParts&);
void CheckCompositeControls(Findings& findings, const HostParts&);
void CheckLimitView(Findings& findings, const HostParts&);

/// Runs the steps one by one; each error is noted under the step's name and the next one runs.
using Steps = std::initializer_list<std::pair<const char*, void (*)(Findings&)>>;
void RunSteps(Findings& findings, Steps steps);
/// The same with a form of its own, shown, for each step.
using FormSteps = std::initializer_list<std::pair<const char*, void (*)(Findings&, orvik::platform::IForm&)>>;
void RunStepsOnForms(Findings& findings, FormSteps steps);

}  // namespace check
