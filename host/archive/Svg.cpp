#include "host/archive/Svg.h"

#include <cmath>

#include "host/archive/Ticks.h"
#include "host/base/VisibleText.h"
#include "host/report/HtmlText.h"

namespace host::archive {

namespace {

constexpr char kEllipsis[] = "\xE2\x80\xA6";

/// A hundredth of a unit is finer than any printer.
std::string Coordinate(double value) { return NumberText(std::round(value * 100) / 100 + 0.0); }

bool BeginsLetter(char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }

}  // namespace

std::string XmlEscaped(std::string_view text) { return report::html::Escaped(host::VisibleText(text)); }

std::string Shortened(const std::string& text, std::size_t letters) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < text.size(); ++i)
    if (BeginsLetter(text[i]) && ++count == letters + 1) {
      // Room for the sign that something is missing.
      std::size_t end = i;
      do --end;
      while (!BeginsLetter(text[end]));
      return text.substr(0, end) + kEllipsis;
    }
  return text;
}

void Svg::Begin(std::string_view name, Attributes attributes) {
  text_ += "<";
  text_ += name;
  for (const auto& [key, value] : attributes) {
    text_ += " ";
    text_ += key;
    text_ += "=\"";
    const auto* number = std::get_if<double>(&value);
    text_ += number ? Coordinate(*number) : XmlEscaped(std::get<std::string>(value));
    text_ += "\"";
  }
}

void Svg::Add(std::string_view name, Attributes attributes) {
  Begin(name, attributes);
  text_ += "/>\n";
}

void Svg::AddText(std::string_view name, Attributes attributes, std::string_view text) {
  Begin(name, attributes);
  text_ += ">" + XmlEscaped(text) + "</";
  text_ += name;
  text_ += ">\n";
}

void Svg::Open(std::string_view name, Attributes attributes) {
  Begin(name, attributes);
  text_ += ">\n";
}

void Svg::Close(std::string_view name) {
  text_ += "</";
  text_ += name;
  text_ += ">\n";
}

}  // namespace host::archive
