#include <string>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IPersistence.h"
#include "OrvikTypeLib/IServiceRecord.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "instrument/CKELDMeasurement.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MXmlConstants.h"
#include "results/CKELDResultData.h"

// How a result is written to and read from the host's documents.
namespace keld::results {

using orvik::Required;

std::shared_ptr<orvik::IXmlNode> CKELDResultData::IResultData_Save(
    std::shared_ptr<orvik::IXmlNode> Parent) const {
  const auto Item = Required(Parent).AddChild(MXmlConstants::kResultItem);
  auto& Node = Required(Item);
  if (lMTIIdentifier > 0) Node.SetAttribute(MXmlConstants::kMTI, std::to_string(lMTIIdentifier));
  Node.Append(MKELDGlobalVars::Persistence()->WriteStatus(Item, "", lStatus));
  if (mServiceRecord) Node.Append(mServiceRecord->Save(Item));
  if (!sComment.empty()) Required(Node.AddChild(MXmlConstants::kComment)).SetText(sComment);
  if (mMeasurement) Node.Append(mMeasurement->Save(Item));
  return Item;
}

void CKELDResultData::IResultData_Load(std::shared_ptr<orvik::IXmlNode> Node,
                                       std::shared_ptr<orvik::IObject> Context) {
  const std::string sIdentifier = Required(Node).Attribute(MXmlConstants::kMTI);
  if (!sIdentifier.empty()) lMTIIdentifier = orvik::RoundToInteger(orvik::LeadingNumber(sIdentifier));
  Node->ForEachChild([&](const std::string& sName, const auto& Child) { LoadChild(sName, Child, Context); });
}

void CKELDResultData::LoadChild(const std::string& sName, const std::shared_ptr<orvik::IXmlNode>& Child,
                                const std::shared_ptr<orvik::IObject>& Context) {
  if (sName == MXmlConstants::kStatus) {
    lStatus = MKELDGlobalVars::Persistence()->ReadStatus(Child);
  } else if (sName == MXmlConstants::kComment) {
    sComment = Child->Text();
  } else if (sName == MXmlConstants::kServiceRecord) {
    const auto Record =
        MKELDGlobalVars::CreateHostObject<orvik::IServiceRecord>(orvik::HostClasses::kServiceRecord);
    Record->Load(Child, Context);
    mServiceRecord = Record;
  } else if (sName == MXmlConstants::kMeasurement) {
    const std::shared_ptr<orvik::IMeasurement> Measurement = instrument::CKELDMeasurement::Create();
    Measurement->Load(Child);
    mMeasurement = Measurement;
  }
}

}  // namespace keld::results
