#include "results/ElementName.h"

#include <vector>

#include "OrvikTypeLib/ITestElement.h"
#include "plugin/base/MKELDGlobalVars.h"

namespace keld::results {

std::string ElementName(const orvik::ITestElement& iteElement) {
  const orvik::Variant vInfo = iteElement.Info();
  const auto* pasInfo = std::get_if<std::vector<std::string>>(&vInfo);
  if (!pasInfo) return {};
  std::string sName;
  for (const std::string& sPart : *pasInfo) {
    const std::string sText = MKELDGlobalVars::Shown(sPart);
    if (!sName.empty() && !sText.empty()) sName += ' ';
    sName += sText;
  }
  return sName;
}

}  // namespace keld::results
