#include "OrvikTypeLib/HostClasses.h"
#include "tests/contract/checker-plugin/checker/Checks.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {

void CheckClasses(Findings& findings, const HostParts&) {
  namespace classes = orvik::HostClasses;
  for (const auto* id :
       {classes::kTestElement, classes::kTestContainer, classes::kStandardColl, classes::kStandard,
        classes::kLimit, classes::kServiceRecord, classes::kInstrumentRecord, classes::kLanguageService,
        classes::kErrorLog, classes::kXmlDocument, classes::kRegistryReader, classes::kPersistence,
        classes::kCommApplication, classes::kLimitView, classes::kToolbar, classes::kContentPane,
        classes::kProgressBar}) {
    findings.Try(std::string("creating ") + id, [&] {
      const auto object = TheHost().CreateObject(id);
      findings.Expect(object != nullptr, std::string("there is an object of the class ") + id);
    });
  }
  findings.Expect(TheHost().Application() != nullptr, "the host has a platform");
  findings.Expect(TheHost().Application() == TheHost().Application(), "the host has one platform");
  for (const auto* id :
       {"", "OrvikTypeLib", "OrvikTypeLib.", "OrvikTypeLib.NoSuchClass", " OrvikTypeLib.Limit"}) {
    findings.Refused(
        "a class \"" + std::string(id) + "\"", [&] { TheHost().CreateObject(id); },
        orvik::HostError::kClassNotRegistered);
  }
}

}  // namespace check
