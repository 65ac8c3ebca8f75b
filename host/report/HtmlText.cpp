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
  switch (report::ToneOf(standing)) {
    case report::Tone::kGood:
      return "passed";
    case report::Tone::kBad:
      return "failed";
    case report::Tone::kQuiet:
      return "na";
    case report::Tone::kOpen:
      break;
  }
  return "open";
}

const char* PlainSignOf(report::Standing standing) {
  switch (standing) {
    case report::Standing::kPassed:
      return "\u2713";
    case report::Standing::kFailed:
      return "\u2717";
    case report::Standing::kDoubtful:
      return "?";
    case report::Standing::kAborted:
      return "\u25A0";
    case report::Standing::kNotTested:
      return "\u25CB";
    case report::Standing::kNotJudged:
      return "~";
    case report::Standing::kRecorded:
      return "=";
    case report::Standing::kNotApplicable:
      return "\u2013";
    case report::Standing::kOpen:
      break;
  }
  return "!";
}

std::string SignOf(report::Standing standing) {
  return std::string("<span class=\"sign\" aria-hidden=\"true\">") + PlainSignOf(standing) + "</span>";
}

}  // namespace bench::html
