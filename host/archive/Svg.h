#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace host::archive {

/// Writes an SVG picture. Texts are data: nothing in them is ever markup.
class Svg {
 public:
  using Attribute = std::pair<std::string_view, std::variant<double, std::string>>;
  using Attributes = std::initializer_list<Attribute>;

  /// An element without content.
  void Add(std::string_view name, Attributes attributes);
  /// An element with a text.
  void AddText(std::string_view name, Attributes attributes, std::string_view text);
  /// Opens an element; `Close` with its name ends it.
  void Open(std::string_view name, Attributes attributes = {});
  void Close(std::string_view name);

  const std::string& Text() const { return text_; }

 private:
  void Begin(std::string_view name, Attributes attributes);

  std::string text_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
};

/// The text escaped for XML; control characters, which XML cannot contain, become their pictures.
std::string XmlEscaped(std::string_view text);

/// The text, shortened to that many letters.
std::string Shortened(const std::string& text, std::size_t letters);

}  // namespace host::archive
