#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IBaseElement.h"
#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/IInstrumentRecord.h"
#include "OrvikTypeLib/IPersistence.h"
#include "OrvikTypeLib/IServiceRecord.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "tests/contract/checker-plugin/checker/Checks.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {
namespace {

std::shared_ptr<orvik::IXmlNode> NewRoot() {
  return NewHostObject<orvik::IXmlDocument>(orvik::HostClasses::kXmlDocument)->CreateRoot("Checked");
}

void ValuesAndStates(Findings& findings) {
  const auto persistence = NewHostObject<orvik::IPersistence>(orvik::HostClasses::kPersistence);
  const auto root = NewRoot();
  const auto value = persistence->WriteValue(root, "12.5 <");
  findings.Equal("Value", value->Name(), "node of a value");
  findings.Equal("12.5 <", persistence->ReadValue(root->FindChild("Value")), "value read back");
  const auto status = persistence->WriteStatus(root, "", 2);
  findings.Equal("Status", status->Name(), "node of a status");
  findings.Expect(!status->HasAttribute("Name"), "an empty name adds no attribute");
  findings.Equal(2, persistence->ReadStatus(status), "status read back");
  findings.Equal("name", persistence->WriteStatus(root, "name", -1)->Attribute("Name"), "name of a status");
  for (const auto* text : {"", "passed", "1.5", "99999999999"}) {
    status->SetText(text);
    findings.Refused(std::string("the status \"") + text + "\"", [&] { persistence->ReadStatus(status); });
  }
  findings.Refused("an empty value", [&] { persistence->ReadValue(persistence->WriteValue(root, "")); });
  findings.Refused("a value below an empty node", [&] { persistence->WriteValue(nullptr, ""); });
  findings.Refused("a status below an empty node", [&] { persistence->WriteStatus(nullptr, "", 0); });
  findings.Refused("the value of an empty node", [&] { persistence->ReadValue(nullptr); });
  findings.Refused("the status of an empty node", [&] { persistence->ReadStatus(nullptr); });
}

void ServiceRecords(Findings& findings) {
  const auto element = NewHostObject<orvik::IBaseElement>(orvik::HostClasses::kTestElement);
  element->Information()->SetDisplayName("Protective earth");
  const auto create = [] { return NewHostObject<orvik::IServiceRecord>(orvik::HostClasses::kServiceRecord); };
  const auto record = create();
  record->Initialize(element->Information(), "P", "/5.3/4.1");
  element->Information()->SetDisplayName("another");
  const auto root = NewRoot();
  const auto node = record->Save(root);
  findings.Equal("ServiceRecord", node->Name(), "node of a service record");
  const auto loaded = create();
  loaded->Load(node, nullptr);
  findings.Equal("Protective earth", loaded->Name(), "name of a loaded service record");
  findings.Equal("P", loaded->Code(), "code of a loaded service record");
  findings.Equal("/5.3/4.1", loaded->Value(), "value of a loaded service record");
  findings.Refused("a service record about nothing", [&] { create()->Initialize(nullptr, "P", ""); });
  findings.Refused("loading from an empty node", [&] { create()->Load(nullptr, nullptr); });
  findings.Refused("saving below an empty node", [&] { record->Save(nullptr); });
}

void InstrumentRecords(Findings& findings) {
  const auto record = NewHostObject<orvik::IInstrumentRecord>(orvik::HostClasses::kInstrumentRecord);
  record->SetTypeName("type");
  record->SetMTIType("reported");
  record->SetSerialNumber("0815");
  record->SetFirmwareVersion("3.10");
  record->SetIndex(4);
  record->SetProperty("calib", "35");
  record->SetProperty("calib", "36");
  findings.Equal("type", record->TypeName(), "type name");
  findings.Equal("reported", record->MTIType(), "reported type");
  findings.Equal("0815", record->SerialNumber(), "serial number");
  findings.Equal("3.10", record->FirmwareVersion(), "firmware");
  findings.Equal(4, record->Index(), "index");
  findings.Equal("36", record->Property("calib"), "property");
  findings.Equal("", record->Property("never set"), "property that was never set");
}

}  // namespace

void CheckRecords(Findings& findings, const HostParts&) {
  RunSteps(findings, {{"values and states", ValuesAndStates},
                      {"service records", ServiceRecords},
                      {"instrument records", InstrumentRecords}});
}

}  // namespace check
