#pragma once

#include <cstdint>
#include <map>
#include <pugixml.hpp>
#include <set>
#include <string>

#include "host/elements/TestKinds.h"

namespace host::document {

class Findings;

/// Looks through the saved elements of a document.
class ElementsCheck {
 public:
  /// @param testers the numbers of the testers that the document names
  ElementsCheck(const elements::ElementFactory& factory, std::set<std::int32_t> testers, Findings& findings)
      : kinds_(factory), testers_(std::move(testers)), findings_(findings) {}

  /// @param cut the text ends within the last element, which may lack anything
  void Look(pugi::xml_node elements, bool cut);

 private:
  void LookAt(pugi::xml_node element, pugi::xml_node top);
  void CheckIdentifier(pugi::xml_node element);
  void CheckPlace(pugi::xml_node element, pugi::xml_node top);
  void CheckParts(pugi::xml_node element);
  void CheckResult(pugi::xml_node result, bool sequence);
  void CheckMeasurement(pugi::xml_node measurement, bool sequence);
  void CheckStatus(pugi::xml_node holder);
  elements::TestKind KindOf(pugi::xml_node element);

  elements::TestKinds kinds_;
  std::set<std::int32_t> testers_;
  Findings& findings_;
  std::map<std::int32_t, pugi::xml_node> identifiers_;
};

}  // namespace host::document
