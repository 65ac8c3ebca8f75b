#pragma once

#include <filesystem>
#include <memory>
#include <pugixml.hpp>
#include <string>

// What the XML library does alone, as the yardstick for those who do more with the same text.
namespace benchmarks {

/// Parses the text. Throws std::runtime_error when it is no XML.
std::unique_ptr<pugi::xml_document> Parsed(const std::string& text);

/// Parses the text and visits every attribute.
std::unique_ptr<pugi::xml_document> ParsedAndVisited(const std::string& text);

/// The same from the file; std::runtime_error also when it cannot be read.
std::unique_ptr<pugi::xml_document> ReadAndVisited(const std::filesystem::path& file);

/// Writes the document into memory.
std::string Written(const pugi::xml_document& document);

}  // namespace benchmarks
