#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <pugixml.hpp>
#include <set>
#include <string>
#include <tuple>

#include "host/elements/ElementFactory.h"

namespace bench {

class Findings;

/// Looks through the saved elements of a document.
class ElementsCheck {
 public:
  /// @param testers the numbers of the testers that the document names
  ElementsCheck(ElementFactory& factory, std::set<std::int32_t> testers, Findings& findings)
      : factory_(factory), testers_(std::move(testers)), findings_(findings) {}

  /// @param cut the text ends within the last element, which may lack anything
  void Look(pugi::xml_node elements, bool cut);

 private:
  /// What is known of the test that an element stands for.
  struct Kind {
    std::string fault;  ///< why it cannot be read as a test of the catalogue; empty when it can
    bool readable = false;
    bool sequence = false;
    std::optional<std::string> unit;  ///< that its readings are recorded in
  };

  void LookAt(pugi::xml_node element, pugi::xml_node top);
  void CheckIdentifier(pugi::xml_node element);
  void CheckPlace(pugi::xml_node element, pugi::xml_node top);
  void CheckParts(pugi::xml_node element);
  void CheckResult(pugi::xml_node result, bool sequence);
  void CheckMeasurement(pugi::xml_node measurement, bool sequence);
  void CheckStatus(pugi::xml_node holder);
  const Kind& KindOf(pugi::xml_node element);
  Kind Learned(const ElementFactory::Identity& identity) const;

  ElementFactory& factory_;
  std::set<std::int32_t> testers_;
  Findings& findings_;
  std::map<std::int32_t, pugi::xml_node> identifiers_;
  std::map<std::tuple<std::string, std::string, std::string>, Kind> kinds_;
};

}  // namespace bench
