#include "host/report/HtmlText.h"

#include <array>

namespace host::report::html {

std::string Escaped(std::string_view text) {
  std::string escaped;
  escaped.reserve(text.size() + text.size() / 8);
  for (const char letter : text) {
    switch (letter) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      case '\'':
        escaped += "&#39;";
        break;
      default:
        escaped += letter;
    }
  }
  return escaped;
}

std::string Isolated(std::string_view text) {
  std::string isolated = "<bdi>";
  while (true) {
    const auto end = text.find('\n');
    isolated += Escaped(text.substr(0, end));
    if (end == std::string_view::npos) return isolated + "</bdi>";
    isolated += "<br/>";
    text.remove_prefix(end + 1);
  }
}

const char* ClassOf(report::Standing standing) {
  constexpr std::array kClasses{"passed", "failed", "open", "na"};  // in the order of `Tone`
  return kClasses.at(static_cast<std::size_t>(report::ToneOf(standing)));
}

const char* PlainSignOf(report::Standing standing) {
  // In the order of `Standing`.
  constexpr std::array kSigns{"\u2713", "\u2717", "!", "?", "\u25A0", "\u25CB", "~", "=", "\u2013"};
  return kSigns.at(static_cast<std::size_t>(standing));
}

std::string SignOf(report::Standing standing) {
  return std::string("<span class=\"sign\" aria-hidden=\"true\">") + PlainSignOf(standing) + "</span>";
}

}  // namespace host::report::html
