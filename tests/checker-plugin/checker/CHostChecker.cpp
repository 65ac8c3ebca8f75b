#include "tests/checker-plugin/checker/CHostChecker.h"

#include "OrvikTypeLib/IReport.h"
#include "OrvikTypeLib/IRunController.h"
#include "tests/checker-plugin/checker/Checks.h"

namespace check {
namespace {

template <class Check, class... Args>
IHostChecker::Texts FindingsOf(const std::string& subject, Check check, const Args&... args) {
  Findings findings;
  findings.Try(subject, [&] { check(findings, args...); });
  return findings.Take();
}

}  // namespace

std::shared_ptr<CHostChecker> CHostChecker::Create() {
  return std::shared_ptr<CHostChecker>(new CHostChecker);
}

IHostChecker::Texts CHostChecker::IHostChecker_Classes() { return FindingsOf("classes", CheckClasses); }
IHostChecker::Texts CHostChecker::IHostChecker_Elements() { return FindingsOf("elements", CheckElements); }
IHostChecker::Texts CHostChecker::IHostChecker_Container() { return FindingsOf("container", CheckContainer); }
IHostChecker::Texts CHostChecker::IHostChecker_Standards() { return FindingsOf("standards", CheckStandards); }
IHostChecker::Texts CHostChecker::IHostChecker_Language() { return FindingsOf("language", CheckLanguage); }
IHostChecker::Texts CHostChecker::IHostChecker_ErrorLog() { return FindingsOf("error log", CheckErrorLog); }
IHostChecker::Texts CHostChecker::IHostChecker_Xml() { return FindingsOf("XML", CheckXml); }
IHostChecker::Texts CHostChecker::IHostChecker_Registry() { return FindingsOf("registry", CheckRegistry); }
IHostChecker::Texts CHostChecker::IHostChecker_Records() { return FindingsOf("records", CheckRecords); }
IHostChecker::Texts CHostChecker::IHostChecker_SerialPort(const std::string& device) {
  return FindingsOf("serial port", CheckSerialPort, device);
}
IHostChecker::Texts CHostChecker::IHostChecker_Report(std::shared_ptr<orvik::IReport> report) {
  return FindingsOf("report", CheckReport, report);
}
IHostChecker::Texts CHostChecker::IHostChecker_RunController(
    std::shared_ptr<orvik::IRunController> controller) {
  return FindingsOf("run controller", CheckRunController, controller);
}
IHostChecker::Texts CHostChecker::IHostChecker_Forms() { return FindingsOf("forms", CheckForms); }
IHostChecker::Texts CHostChecker::IHostChecker_Controls() { return FindingsOf("controls", CheckControls); }
IHostChecker::Texts CHostChecker::IHostChecker_Timers() { return FindingsOf("timers", CheckTimers); }
IHostChecker::Texts CHostChecker::IHostChecker_Modality() { return FindingsOf("modality", CheckModality); }
IHostChecker::Texts CHostChecker::IHostChecker_UserControls() {
  return FindingsOf("user controls", CheckUserControls);
}
IHostChecker::Texts CHostChecker::IHostChecker_CompositeControls() {
  return FindingsOf("composite controls", CheckCompositeControls);
}
IHostChecker::Texts CHostChecker::IHostChecker_LimitView() {
  return FindingsOf("limit view", CheckLimitView);
}

}  // namespace check
