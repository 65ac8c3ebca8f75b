#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IInstrumentColl.h"
#include "OrvikTypeLib/IInstrumentRecord.h"
#include "OrvikTypeLib/IRunController.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "tests/contract/checker-plugin/checker/Checks.h"
#include "tests/contract/checker-plugin/template/CInspection.h"
#include "tests/contract/checker-plugin/template/Names.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {
namespace {

void Standards(Findings& findings, orvik::IRunController& controller) {
  const auto standards = controller.Standards();
  if (!standards) return findings.Expect(false, "a run has standards to judge by, if only none");
  findings.Expect(controller.Standards() == standards, "a run has the same standards all the time");
  for (std::int32_t index = 1; index <= standards->Count(); ++index) {
    const auto standard = standards->item(index);
    findings.Expect(standards->Find(standard->Name(), standard->Description()) != nullptr,
                    "a standard of the run is found");
  }
}

void Instruments(Findings& findings, orvik::IRunController& controller) {
  const auto instruments = controller.Instruments();
  if (!instruments) return findings.Expect(false, "a run has records of its instruments, if only none");
  const auto before = instruments->Count();
  const auto record = NewHostObject<orvik::IInstrumentRecord>(orvik::HostClasses::kInstrumentRecord);
  record->SetSerialNumber("0815");
  instruments->Add(record);
  findings.Equal(before + 1, controller.Instruments()->Count(), "instrument records after one was added");
  findings.Expect(controller.Instruments()->item(before + 1) == record, "a record is added at the end");
  for (const std::int32_t index : {0, -1, before + 2})
    findings.Refused(
        "instrument record number " + std::to_string(index), [&] { instruments->item(index); },
        orvik::HostError::kSubscriptOutOfRange);
  findings.Refused("an empty instrument record", [&] { instruments->Add(nullptr); });
  findings.Equal(before + 1, instruments->Count(), "instrument records after a refused one");
}

void Notices(Findings& findings, orvik::IRunController& controller) {
  const std::shared_ptr<orvik::ITestElement> element = CInspection::Create();
  element->Initialize(names::kPlugInId, 5, names::kInspectionTest);
  findings.Expect(controller.StartQuery(element), "an element may start");
  for (std::int32_t code = 0; code <= 4; ++code) controller.NavigationRequest(code);
  controller.FinishedNotice(element);
  findings.Expect(controller.StartQuery(element), "an element may start again");
  controller.FinishedNotice(element);
  findings.Refused("starting nothing", [&] { controller.StartQuery(nullptr); });
  findings.Refused("finishing nothing", [&] { controller.FinishedNotice(nullptr); });
}

}  // namespace

void CheckRunController(Findings& findings, const HostParts& parts) {
  if (!parts.controller) return findings.Expect(false, "there is a run controller");
  findings.Try("standards of a run", [&] { Standards(findings, *parts.controller); });
  findings.Try("instruments of a run", [&] { Instruments(findings, *parts.controller); });
  findings.Try("notices of a run", [&] { Notices(findings, *parts.controller); });
}

}  // namespace check
