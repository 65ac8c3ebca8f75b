#include "benchmarks/Report.h"

#include <stdlib.h>

#include <cstdio>
#include <nlohmann/json.hpp>
#include <thread>

namespace benchmarks {

namespace {

std::string Number(double value) {
  char text[40];
  std::snprintf(text, sizeof text, value >= 1000 ? "%.0f" : "%.4g", value);
  return text;
}

std::string LimitText(const Figure& figure) {
  if (!figure.limit) return "-";
  return (figure.bound == Bound::kAtMost ? "at most " : "at least ") + Number(*figure.limit);
}

std::string Row(const std::string& name, const std::string& figure, const std::string& limit,
                const std::string& verdict, const std::string& yardstick) {
  char text[400];
  std::snprintf(text, sizeof text, "%-16s %-22s %-18s %-7s %s\n", name.c_str(), figure.c_str(), limit.c_str(),
                verdict.c_str(), yardstick.c_str());
  return text;
}

nlohmann::ordered_json JsonOf(const Outcome& outcome) {
  nlohmann::ordered_json json;
  if (!outcome.figure) {
    json["ok"] = false;
    json["failure"] = outcome.failure;
    return json;
  }
  const auto& figure = *outcome.figure;
  json["figure"] = figure.value;
  json["unit"] = figure.unit;
  json["yardstick"] = figure.yardstick ? nlohmann::ordered_json(*figure.yardstick) : nullptr;
  json["yardstickIs"] = figure.yardstickIs;
  json["limit"] = figure.limit ? nlohmann::ordered_json(*figure.limit) : nullptr;
  json["bound"] = figure.bound == Bound::kAtMost ? "at most" : "at least";
  json["ok"] = figure.Ok();
  return json;
}

}  // namespace

std::string TableHead() { return Row("benchmark", "figure", "bound", "", "yardstick"); }

std::string TableRow(const Outcome& outcome) {
  if (!outcome.figure) return Row(outcome.name, "-", "-", "FAILED", outcome.failure);
  const auto& figure = *outcome.figure;
  return Row(outcome.name, Number(figure.value) + " " + figure.unit, LimitText(figure),
             !figure.limit ? ""
             : figure.Ok() ? "ok"
                           : "MISSED",
             figure.yardstick ? Number(*figure.yardstick) + ": " + figure.yardstickIs : "");
}

std::string JsonOf(const std::vector<Outcome>& outcomes) {
  auto json = nlohmann::ordered_json::object();
  for (const auto& outcome : outcomes) json[outcome.name] = JsonOf(outcome);
  return json.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

std::string TextOf(const Outcome& outcome) { return JsonOf(outcome).dump(); }

Outcome OutcomeOf(const std::string& name, const std::string& text) {
  const auto json = nlohmann::json::parse(text);
  if (json.contains("failure")) return {name, {}, json["failure"]};
  Figure figure;
  figure.value = json["figure"];
  figure.unit = json["unit"];
  if (!json["yardstick"].is_null()) figure.yardstick = json["yardstick"];
  figure.yardstickIs = json["yardstickIs"];
  if (!json["limit"].is_null()) figure.limit = json["limit"];
  figure.bound = json["bound"] == "at most" ? Bound::kAtMost : Bound::kAtLeast;
  return {name, figure, ""};
}

std::string LoadRemark() {
  double load = 0;
  if (getloadavg(&load, 1) != 1 || load <= std::thread::hardware_concurrency()) return {};
  return "The machine is loaded (load " + Number(load) + " on " +
         std::to_string(std::thread::hardware_concurrency()) +
         " processors): figures of time are worse than they would be on an idle one.\n";
}

}  // namespace benchmarks
