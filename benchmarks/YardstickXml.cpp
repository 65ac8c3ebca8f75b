#include "benchmarks/YardstickXml.h"

#include <cstring>
#include <memory>
#include <pugixml.hpp>
#include <stdexcept>

#include "benchmarks/Repeat.h"

namespace benchmarks {

namespace {

std::unique_ptr<pugi::xml_document> Parsed(const std::string& text) {
  auto document = std::make_unique<pugi::xml_document>();
  const auto result =
      document->load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8);
  if (!result) throw std::runtime_error(std::string("the text is no XML: ") + result.description());
  return document;
}

/// The length of all attributes.
struct AttributeVisitor : pugi::xml_tree_walker {
  std::size_t length = 0;
  bool for_each(pugi::xml_node& node) override {
    for (const auto attribute : node.attributes())
      length += std::strlen(attribute.name()) + std::strlen(attribute.value());
    return true;
  }
};

struct MemoryWriter : pugi::xml_writer {
  std::string text;
  void write(const void* data, std::size_t size) override {
    text.append(static_cast<const char*>(data), size);
  }
};

}  // namespace

double ParseAndVisitSeconds(const std::string& text) {
  return LeastSeconds([&] {
    auto document = Parsed(text);
    AttributeVisitor visitor;
    document->traverse(visitor);
    if (visitor.length == 0) throw std::runtime_error("the text has no attributes");
    return document;
  });
}

double WriteSeconds(const std::string& text) {
  const auto document = Parsed(text);
  return LeastSeconds([&] {
    MemoryWriter writer;
    document->save(writer, "  ", pugi::format_indent, pugi::encoding_utf8);
    return writer.text;
  });
}

}  // namespace benchmarks
