#include "tests/contract/checker-plugin/checker/CHostChecker.h"

#include "tests/contract/checker-plugin/checker/Checks.h"

namespace check {
namespace {

struct Subject {
  const char* name;
  void (*check)(Findings& findings, const HostParts& parts);
};

constexpr Subject kSubjects[] = {{"classes", CheckClasses},
                                 {"elements", CheckElements},
                                 {"container", CheckContainer},
                                 {"standards", CheckStandards},
                                 {"language", CheckLanguage},
                                 {"error log", CheckErrorLog},
                                 {"XML", CheckXml},
                                 {"registry", CheckRegistry},
                                 {"records", CheckRecords},
                                 {"serial port", CheckSerialPort},
                                 {"report", CheckReport},
                                 {"run controller", CheckRunController},
                                 {"forms", CheckForms},
                                 {"controls", CheckControls},
                                 {"timers", CheckTimers},
                                 {"modality", CheckModality},
                                 {"user controls", CheckUserControls},
                                 {"composite controls", CheckCompositeControls},
                                 {"limit view", CheckLimitView}};

}  // namespace

std::shared_ptr<CHostChecker> CHostChecker::Create() {
  return std::shared_ptr<CHostChecker>(new CHostChecker);
}

IHostChecker::Texts CHostChecker::IHostChecker_Check(const std::string& subject, const HostParts& parts) {
  Findings findings;
  for (const auto& [name, check] : kSubjects) {
    if (name != subject) continue;
    findings.Try(subject, [&, check = check] { check(findings, parts); });
    return findings.Take();
  }
  return {"unknown subject \"" + subject + "\""};
}

}  // namespace check
