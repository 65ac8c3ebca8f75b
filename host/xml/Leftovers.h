#pragma once

#include <initializer_list>
#include <memory>
#include <pugixml.hpp>

namespace host::xml {

/// What a loader found in a node and does not know: attributes, elements, comments. Kept, and written back,
/// so that a file which another version or another program has added to loses nothing.
class Leftovers {
 public:
  /// An attribute that its reader knows, and where its value goes, as long as the node lives; where there is
  /// no such attribute, nothing goes there.
  struct Attribute {
    // Not explicit, so that lists of attributes are lists of names.
    // NOLINTNEXTLINE(google-explicit-constructor)
    Attribute(const char* known) : name(known) {}
    Attribute(const char* known, const char*& goesTo) : name(known), value(&goesTo) {}

    const char* name;
    const char** value = nullptr;
  };

  Leftovers() = default;
  Leftovers(const Leftovers& other);
  Leftovers& operator=(const Leftovers& other);
  Leftovers(Leftovers&&) noexcept = default;
  Leftovers& operator=(Leftovers&&) noexcept = default;
  ~Leftovers() = default;

  /// Replaces what is kept by all of the node that is not named here. `XmlError` when a known attribute
  /// stands there twice.
  void Take(pugi::xml_node node, std::initializer_list<Attribute> knownAttributes,
            std::initializer_list<const char*> knownElements);

  /// The same for the attributes alone; a reader that goes through the children itself adds what it does not
  /// know.
  void TakeAttributes(pugi::xml_node node, std::initializer_list<Attribute> known);

  /// Keeps one more child.
  void Add(pugi::xml_node child);

  /// Adds to the node what is kept; an attribute that the node has by now stays as it is.
  void Restore(pugi::xml_node node) const;

  bool Empty() const { return !kept_; }

 private:
  pugi::xml_node Holder();

  std::unique_ptr<pugi::xml_document> kept_;
};

}  // namespace host::xml
