#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tests/system/history/Decimal.h"

/// The plan of a document, derived from the commands of the history, never from a file.
namespace history {

/// Asset, serial, maker, model.
using Equipment = std::array<std::string, 4>;

struct Limit {
  std::string standard, description;
  std::optional<Decimal> low, high;  ///< inclusive
  std::string unit;
  bool foreign = false;  ///< another program has changed its unit or key: the plug-in compares differently

  /// Whether the amount exceeds it; none if the two cannot be compared.
  std::optional<bool> BrokenBy(const Amount& amount) const;
};

struct Element {
  int id = 0;
  int testId = 0;
  bool group = false;
  int options = 0;
  std::string filter = "No values";
  bool recordOnly = false;
  std::vector<Limit> limits;  ///< at most one of a standard and description
  std::vector<Element> children;

  /// Adds the limit, or replaces the one of the same standard and description.
  void SetLimit(const Limit& limit);
};

struct Plan {
  Equipment equipment;
  std::vector<Element> elements;

  Element* Find(int id);
  const Element* Find(int id) const { return const_cast<Plan*>(this)->Find(id); }
  /// The parent of the element; null at the top.
  const Element* ParentOf(int id) const;
  /// All elements in document order, parents before children.
  std::vector<const Element*> All() const;
  std::vector<Element*> All();
  int HighestId() const;

  /// A new element of the catalogue with all below it; identifiers from `next` on in document order.
  static Element Made(int testId, int& next);
  /// The list in which the element is, and its place there.
  std::pair<std::vector<Element>*, std::size_t> PlaceOf(int id);
};

/// The element and all below it, parents before children.
std::vector<const Element*> Below(const Element& top);

}  // namespace history
