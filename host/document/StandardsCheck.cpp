#include "host/document/StandardsCheck.h"

#include <map>
#include <utility>

#include "host/base/Text.h"
#include "host/base/Tr.h"
#include "host/document/Findings.h"
#include "host/document/KnownParts.h"
#include "host/plugins/keld/KeldTests.h"
#include "host/standards/Limit.h"
#include "host/standards/Units.h"
#include "host/xml/XmlNode.h"

namespace host::document {
namespace {

void CheckLimit(pugi::xml_node node, const std::optional<std::string>& unit, Findings& findings) {
  NoteUnknown(node, {"Key", "Unit", "Low", "High", "Nominal"}, {}, findings);
  try {
    standards::Limit().Load(node);
  } catch (const xml::XmlError& error) {
    findings.Wrong(node, error.Description());
  }
  const std::string given = node.attribute("Unit").value();
  const std::string key = node.attribute("Key").value();
  if (unit && key != plugins::keld::kLimitKey)
    findings.Wrong(node, Tr("the limit has the key \"%%1\"; the plug-in judges by limits with the key "
                            "\"%%2\" alone",
                            {key, std::string(plugins::keld::kLimitKey)}));
  const bool bounded = *node.attribute("Low").value() || *node.attribute("High").value();
  if (unit && !unit->empty() && bounded && given.empty())
    findings.Wrong(node, Tr("the limit names no unit; readings of the element are recorded in %%1", {*unit}));
  if (unit && !given.empty() && !standards::SameUnit(given, *unit))
    findings.Wrong(node, Tr("the bounds are in %%1, but the element is recorded in %%2, and a reading is "
                            "compared with the bare number",
                            {given, unit->empty() ? Tr("no unit") : *unit}));
}

}  // namespace

void CheckStandards(pugi::xml_node standards, const std::optional<std::string>& unit, Findings& findings) {
  NoteUnknown(standards, {}, {"Standard"}, findings);
  std::map<std::pair<std::string, std::string>, pugi::xml_node> known;
  for (const auto node : standards.children("Standard")) {
    NoteUnknown(node, {"Name", "Description", "Number"}, {"Limit"}, findings);
    const std::string name = node.attribute("Name").value();
    const auto [first, added] = known.try_emplace({name, node.attribute("Description").value()}, node);
    if (!added)
      findings.Wrong(node, Tr("the standard \"%%1\" is there already, in line %%2; only that one judges",
                              {name, findings.LineOf(first->second)}));
    if (node.attribute("Number") && !WholeNumber(node.attribute("Number").value()))
      findings.Wrong(node, Tr("the standard's \"Number\" is no whole number"));
    for (const auto limit : node.children("Limit")) CheckLimit(limit, unit, findings);
  }
}

}  // namespace host::document
