#include "tests/contract/checker-plugin/checker/Checks.h"

#include "platform/IApplication.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {

void RunSteps(Findings& findings, Steps steps) {
  for (const auto& [name, check] : steps) findings.Try(name, [&, check = check] { check(findings); });
}

void RunStepsOnForms(Findings& findings, FormSteps steps) {
  for (const auto& [name, check] : steps) {
    const auto form = TheHost().Application()->CreateForm("FChecked");
    form->Show();
    findings.Try(name, [&, check = check] { check(findings, *form); });
    form->Unload();
  }
}

}  // namespace check
