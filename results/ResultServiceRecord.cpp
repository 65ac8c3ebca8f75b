#include "results/ResultServiceRecord.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/IServiceRecord.h"
#include "OrvikTypeLib/ITestElement.h"
#include "plugin/MKELDConstants.h"
#include "plugin/MKELDGlobalVars.h"
#include "results/ResultValueText.h"

namespace keld {
namespace {

const char* CodeOf(std::int32_t lStatus) {
  switch (lStatus) {
    case MKELDConstants::kPassed:
      return "P";
    case MKELDConstants::kFailed:
      return "F";
    case MKELDConstants::kNotApplicable:
      return "NA";
    default:
      return nullptr;
  }
}

}  // namespace

std::shared_ptr<orvik::IServiceRecord> MakeServiceRecord(
    const std::shared_ptr<orvik::ITestElement>& iteElement, std::int32_t lStatus,
    const orvik::Variant& vOwnValue) {
  const char* sCode = CodeOf(lStatus);
  if (!sCode) return {};
  auto Record = MKELDGlobalVars::CreateHostObject<orvik::IServiceRecord>(orvik::HostClasses::kServiceRecord);
  const auto Information = orvik::Required(iteElement).Information();
  Record->Initialize(Information, sCode, ResultValueText::ValueText(*iteElement, vOwnValue));
  return Record;
}

}  // namespace keld
