#pragma once

#include <cstddef>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace host::document {

/// Something that was found in a file, and where: line and column count from 1, the column in letters.
struct Finding {
  bool wrong = true;  ///< otherwise something to know that does no harm
  std::size_t line = 1;
  std::size_t column = 1;
  std::string text;
};

/// Gathers what is found in a text.
class Findings {
 public:
  explicit Findings(std::string_view text) : text_(text) {}

  void Wrong(pugi::xml_node where, std::string text) { Add(true, PlaceOf(where), std::move(text)); }
  void Wrong(std::size_t offset, std::string text) { Add(true, offset, std::move(text)); }
  void Note(pugi::xml_node where, std::string text) { Add(false, PlaceOf(where), std::move(text)); }
  void Note(std::size_t offset, std::string text) { Add(false, offset, std::move(text)); }

  /// All of them, in the order of the text.
  std::vector<Finding> InOrder() const;

  /// The line of the node.
  std::string LineOf(pugi::xml_node node) const;

 private:
  struct Place {
    std::size_t offset;
    bool wrong;
    std::string text;
  };

  void Add(bool wrong, std::size_t offset, std::string text);
  /// The byte at which the node's tag begins.
  static std::size_t PlaceOf(pugi::xml_node node);

  std::string_view text_;
  std::vector<Place> places_;
};

}  // namespace host::document
