#include "host/document/Findings.h"

#include <algorithm>

#include "host/xml/XmlDocument.h"

namespace host::document {

void Findings::Add(bool wrong, std::size_t offset, std::string text) {
  places_.push_back({std::min(offset, text_.size()), wrong, std::move(text)});
}

std::size_t Findings::PlaceOf(pugi::xml_node node) {
  const auto offset = node.offset_debug();
  // The offset is that of the name; the tag begins with the bracket before it.
  return offset <= 0 ? 0 : static_cast<std::size_t>(offset) - (node.type() == pugi::node_element ? 1 : 0);
}

std::string Findings::LineOf(pugi::xml_node node) const {
  return std::to_string(xml::LineOf(text_, PlaceOf(node)));
}

std::vector<Finding> Findings::InOrder() const {
  auto places = places_;
  std::stable_sort(places.begin(), places.end(),
                   [](const Place& one, const Place& other) { return one.offset < other.offset; });
  std::vector<Finding> found;
  std::size_t at = 0, line = 1, column = 1;
  for (auto& place : places) {
    for (; at < place.offset; ++at) {
      if (text_[at] == '\n') {
        ++line;
        column = 1;
      } else if ((static_cast<unsigned char>(text_[at]) & 0xC0) != 0x80) {
        ++column;
      }
    }
    found.push_back({place.wrong, line, column, std::move(place.text)});
  }
  return found;
}

}  // namespace host::document
