#include "host/report/HtmlText.h"

namespace bench::html {

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
  switch (standing) {
    case report::Standing::kPassed:
      return "passed";
    case report::Standing::kFailed:
      return "failed";
    case report::Standing::kNotApplicable:
      return "na";
    case report::Standing::kOpen:
      break;
  }
  return "open";
}

std::string SignOf(report::Standing standing) {
  const char* sign = "!";
  if (standing == report::Standing::kPassed) sign = "\u2713";
  if (standing == report::Standing::kFailed) sign = "\u2717";
  if (standing == report::Standing::kNotApplicable) sign = "\u2013";
  return std::string("<span class=\"sign\" aria-hidden=\"true\">") + sign + "</span>";
}

}  // namespace bench::html
