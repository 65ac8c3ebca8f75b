#pragma once

#include <cstdint>
#include <pugixml.hpp>
#include <unordered_set>

namespace host::document {

/// Checks the saved elements of a document before they are created.
class SavedElements {
 public:
  /// Checks a saved element and all below it. `XmlError` for an identifier that is missing, below 1 or used
  /// before, and for elements nested too deeply.
  void Check(pugi::xml_node top);

  /// The highest identifier so far; 0 without elements.
  std::int32_t HighestId() const { return highestId_; }

 private:
  std::unordered_set<std::int32_t> ids_;
  std::int32_t highestId_ = 0;
};

}  // namespace host::document
