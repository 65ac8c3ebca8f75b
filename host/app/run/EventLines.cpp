#include "host/app/run/EventLines.h"

#include <ostream>

#include "host/app/DocumentJson.h"
#include "host/judge/ReasonText.h"
#include "host/serial/Latin1.h"

namespace bench {

using Json = nlohmann::ordered_json;

void EventLines::Planned(const std::vector<std::size_t>& tests) {
  auto line = Line("planned");
  line["tests"] = tests;
  Print(line);
}

void EventLines::Reached(std::size_t place, std::size_t count) {
  auto line = Line("reached");
  line["place"] = place;
  line["count"] = count;
  Print(line);
}

void EventLines::Started(const judge::JudgedElement& element) {
  auto line = Line("started");
  line["element"] = element.id;
  line["testId"] = element.testId;
  line["name"] = element.name;
  Print(line);
}

void EventLines::Finished(const judge::JudgedElement& element) {
  auto line = Line("finished");
  line["element"] = element.id;
  line["testId"] = element.testId;
  line["name"] = element.name;
  line["status"] = element.status;
  line["statusText"] = judge::StatusText(element.status);
  line["verdict"] = judge::VerdictText(element.verdict);
  line["value"] =
      element.measurement && element.measurement->value ? Json(*element.measurement->value) : Json(nullptr);
  line["unit"] = element.measurement ? element.measurement->unit : std::string();
  line["reasons"] = JsonOf(element.reasons);
  Print(line);
}

void EventLines::Wire(const WireRecord& record) {
  exchange_.Take(record);
  switch (record.kind) {
    case WireRecord::Kind::kSent: {
      auto line = Line("command");
      line["text"] = VisibleLatin1(record.text);
      line["attempt"] = exchange_.Attempt();
      return Print(line);
    }
    case WireRecord::Kind::kReceived:
    case WireRecord::Kind::kDropped: {
      auto line = Line(record.kind == WireRecord::Kind::kReceived ? "reply" : "dropped");
      line["text"] = VisibleLatin1(record.text);
      return Print(line);
    }
    case WireRecord::Kind::kOpened:
      return Print(Line("port-opened"));
    case WireRecord::Kind::kFailed:
      return Print(Line("port-failed"));
    case WireRecord::Kind::kClosed:
      return Print(Line("port-closed"));
  }
}

void EventLines::Prompted(const std::string& text) {
  auto line = Line("prompt");
  line["text"] = text;
  Print(line);
}

void EventLines::Doubted(std::int32_t element, const Reason& doubt) {
  auto line = Line("doubt");
  line["element"] = element;
  line["code"] = doubt.code;
  line["arguments"] = doubt.arguments;
  line["text"] = judge::ReasonText(doubt);
  Print(line);
}

void EventLines::Remark(const std::string& text) {
  auto line = Line("remark");
  line["text"] = text;
  Print(line);
}

void EventLines::Ended(const std::string& outcome, int exitStatus) {
  auto line = Line("ended");
  line["outcome"] = outcome;
  line["exitStatus"] = exitStatus;
  Print(line);
}

Json EventLines::Line(const char* event) const {
  Json line;
  line["event"] = event;
  line["time"] = static_cast<double>(loop_.Now().count()) / 1e6;
  return line;
}

void EventLines::Print(const Json& line) { out_ << OneLine(line) << std::endl; }

}  // namespace bench
