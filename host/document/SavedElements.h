#pragma once

#include <cstdint>
#include <pugixml.hpp>
#include <unordered_set>
#include <vector>

namespace bench {

/// Looks through the saved elements of a document before any of them is created.
class SavedElements {
 public:
  /// Those below the node; may be called again for further ones. `XmlError` for an identifier that is
  /// missing, below 1 or used twice, and for elements nested too deeply.
  void Check(pugi::xml_node elements);

  /// The highest identifier so far; 0 without elements.
  std::int32_t HighestId() const { return ascending_.empty() ? 0 : ascending_.back(); }

 private:
  bool IsNew(std::int32_t id);

  /// Each is higher than those before it, as nearly all are.
  std::vector<std::int32_t> ascending_;
  std::unordered_set<std::int32_t> others_;
};

}  // namespace bench
