#include "results/ResultServiceRecord.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Codes.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/IServiceRecord.h"
#include "OrvikTypeLib/ITestElement.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "results/ResultValueText.h"

namespace keld::results {

std::shared_ptr<orvik::IServiceRecord> MakeServiceRecord(
    const std::shared_ptr<orvik::ITestElement>& iteElement, std::int32_t lStatus,
    const orvik::Variant& vOwnValue) {
  const std::string sCode = orvik::ServiceCode::Of(lStatus);
  if (sCode.empty()) return {};
  auto Record = MKELDGlobalVars::CreateHostObject<orvik::IServiceRecord>(orvik::HostClasses::kServiceRecord);
  const auto Information = orvik::Required(iteElement).Information();
  Record->Initialize(Information, sCode, ResultValueText::ValueText(*iteElement, vOwnValue));
  return Record;
}

}  // namespace keld::results
