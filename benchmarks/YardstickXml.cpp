#include "benchmarks/YardstickXml.h"

#include <cstring>
#include <stdexcept>

namespace benchmarks {

namespace {

/// The length of all attributes.
struct AttributeVisitor : pugi::xml_tree_walker {
  std::size_t length = 0;
  bool for_each(pugi::xml_node& node) override {
    for (auto attribute = node.first_attribute(); attribute; attribute = attribute.next_attribute())
      length += std::strlen(attribute.name()) + std::strlen(attribute.value());
    return true;
  }
};

void Visit(pugi::xml_document& document) {
  AttributeVisitor visitor;
  document.traverse(visitor);
  if (visitor.length == 0) throw std::runtime_error("the text has no attributes");
}

struct MemoryWriter : pugi::xml_writer {
  std::string text;
  void write(const void* data, std::size_t size) override {
    text.append(static_cast<const char*>(data), size);
  }
};

}  // namespace

std::unique_ptr<pugi::xml_document> Parsed(const std::string& text) {
  auto document = std::make_unique<pugi::xml_document>();
  const auto result =
      document->load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8);
  if (!result) throw std::runtime_error(std::string("the text is no XML: ") + result.description());
  return document;
}

std::unique_ptr<pugi::xml_document> ParsedAndVisited(const std::string& text) {
  auto document = Parsed(text);
  Visit(*document);
  return document;
}

std::unique_ptr<pugi::xml_document> ReadAndVisited(const std::filesystem::path& file) {
  auto document = std::make_unique<pugi::xml_document>();
  const auto result = document->load_file(file.c_str(), pugi::parse_default, pugi::encoding_utf8);
  if (!result) throw std::runtime_error(file.string() + ": " + result.description());
  Visit(*document);
  return document;
}

std::string Written(const pugi::xml_document& document) {
  MemoryWriter writer;
  document.save(writer, "  ", pugi::format_indent, pugi::encoding_utf8);
  return std::move(writer.text);
}

}  // namespace benchmarks
