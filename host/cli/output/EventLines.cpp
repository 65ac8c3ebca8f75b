#include "host/cli/output/EventLines.h"

#include <nlohmann/json.hpp>
#include <ostream>

#include "host/cli/output/DocumentJson.h"
#include "host/judge/ReasonText.h"
#include "host/serial/Latin1.h"

namespace host::cli {

using Json = nlohmann::ordered_json;

void EventLines::Planned(const std::vector<std::size_t>& tests) { Print("planned", {{"tests", tests}}); }

void EventLines::Reached(std::size_t place, std::size_t count) {
  Print("reached", {{"place", place}, {"count", count}});
}

void EventLines::Started(const judge::JudgedElement& element) {
  Print("started", {{"element", element.id}, {"testId", element.testId}, {"name", element.name}});
}

void EventLines::Finished(const judge::JudgedElement& element) {
  const auto& measurement = element.measurement;
  Print("finished", {{"element", element.id},
                     {"testId", element.testId},
                     {"name", element.name},
                     {"status", element.status},
                     {"statusText", judge::StatusText(element.status)},
                     {"verdict", judge::VerdictText(element.verdict)},
                     {"value", measurement ? NumberOrNull(measurement->value) : Json(nullptr)},
                     {"unit", measurement ? measurement->unit : std::string()},
                     {"reasons", JsonOf(element.reasons)}});
}

void EventLines::Wire(const serial::WireRecord& record) {
  exchange_.Take(record);
  const auto text = serial::VisibleLatin1(record.text);
  switch (record.kind) {
    case serial::WireRecord::Kind::kSent:
      return Print("command", {{"text", text}, {"attempt", exchange_.Attempt()}});
    case serial::WireRecord::Kind::kReceived:
      return Print("reply", {{"text", text}});
    case serial::WireRecord::Kind::kDropped:
      return Print("dropped", {{"text", text}});
    case serial::WireRecord::Kind::kOpened:
      return Print("port-opened", Json::object());
    case serial::WireRecord::Kind::kFailed:
      return Print("port-failed", Json::object());
    case serial::WireRecord::Kind::kClosed:
      return Print("port-closed", Json::object());
  }
}

void EventLines::Prompted(const std::string& text) { Print("prompt", {{"text", text}}); }

void EventLines::Doubted(std::int32_t element, const document::Reason& doubt) {
  Print("doubt", {{"element", element},
                  {"code", doubt.code},
                  {"arguments", doubt.arguments},
                  {"text", judge::ReasonText(doubt)}});
}

void EventLines::Remark(const std::string& text) { Print("remark", {{"text", text}}); }

void EventLines::Ended(judge::Outcome outcome, int exitStatus) {
  Print("ended", {{"outcome", judge::OutcomeText(outcome)}, {"exitStatus", exitStatus}});
}

void EventLines::Print(const char* event, const Json& fields) {
  Json line{{"event", event}, {"time", static_cast<double>(loop_.Now().count()) / 1e6}};
  line.update(fields);
  out_ << OneLine(line) << std::endl;
}

}  // namespace host::cli
