#pragma once

#include <initializer_list>
#include <memory>
#include <pugixml.hpp>

namespace host::xml {

/// The attributes, elements and comments of a node that its loader does not know. They are written back, so
/// that additions of another version or program are never lost.
class UnknownXml {
 public:
  /// An attribute that its reader knows, and the pointer that receives its value, which is valid as long as
  /// the node. The pointer does not change if the attribute is missing.
  struct Attribute {
    // Not explicit, so that lists of attributes are lists of names.
    // NOLINTNEXTLINE(google-explicit-constructor)
    Attribute(const char* known) : name(known) {}
    Attribute(const char* known, const char*& goesTo) : name(known), value(&goesTo) {}

    const char* name;
    const char** value = nullptr;
  };

  UnknownXml() = default;
  UnknownXml(const UnknownXml& other);
  UnknownXml& operator=(const UnknownXml& other);
  UnknownXml(UnknownXml&&) noexcept = default;
  UnknownXml& operator=(UnknownXml&&) noexcept = default;
  ~UnknownXml() = default;

  /// Replaces what is kept by all of the node that is not named here. `XmlError` when a known attribute
  /// occurs twice.
  void Take(pugi::xml_node node, std::initializer_list<Attribute> knownAttributes,
            std::initializer_list<const char*> knownElements);

  /// The same for the attributes alone; a reader that visits the children itself calls `Add` for those
  /// that it does not know.
  void TakeAttributes(pugi::xml_node node, std::initializer_list<Attribute> known);

  /// Keeps one more child.
  void Add(pugi::xml_node child);

  /// Adds the kept XML to the node; attributes that the node already has are not overwritten.
  void Restore(pugi::xml_node node) const;

  bool Empty() const { return !kept_; }

 private:
  pugi::xml_node Holder();

  std::unique_ptr<pugi::xml_document> kept_;
};

}  // namespace host::xml
