#include "tests/system/history/TrueTester.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "host/serial/Latin1.h"
#include "tester/FaultScript.h"
#include "tester/SeededFaults.h"
#include "tests/system/history/Tests.h"

namespace history {
namespace {

constexpr char kLineEnd[] = "\r\n";

}  // namespace

std::string UsualUnit(int testId) {
  const auto& kind = KindOf(testId);
  return kind.lessLeads ? "Ohm" : kind.unit;
}

TrueTester::TrueTester(const World& world, Equipment equipment, const TesterSetup& setup)
    : world_(world), equipment_(std::move(equipment)), setup_(setup) {
  if (!setup.faults.empty()) script_ = std::make_unique<sim::FaultScript>(setup.faults, "faults");
  if (setup.faultPercent > 0)
    random_ = std::make_unique<sim::SeededFaults>(setup.faultSeed, setup.faultPercent / 100.0,
                                                  sim::SeededFaults::Listener());
}

std::string TrueTester::TrueReplyTo(const std::string& command) const {
  const auto found = replies_.find(command);
  return found == replies_.end() ? std::string() : found->second;
}

const TrueTester::Reading* TrueTester::ReadingIn(const std::string& command) const {
  const auto found = readings_.find(command);
  return found == readings_.end() ? nullptr : &found->second;
}

void TrueTester::OnReply(const sim::Exchange& exchange, sim::Reply& reply) {
  const std::string command(exchange.line);
  auto& bytes = reply.lines.front().bytes;
  const auto line = TrueLine(command, bytes.substr(0, bytes.find('\r')));
  replies_[command] = line;
  bytes = line + kLineEnd;
  // Counted from the beginning of the run, so that a repeated run has the same faults.
  const sim::Exchange counted{exchange.command, ++commands_, exchange.line};
  if (script_) script_->OnReply(counted, reply);
  if (random_) random_->OnReply(counted, reply);
}

std::string TrueTester::TrueLine(const std::string& command, const std::string& said) {
  readings_.erase(command);
  if (said.starts_with("irem")) {
    const bool later = ++sessions_ > 1 && !setup_.laterSerial.empty();
    return "irem," + setup_.type + "," + (later ? setup_.laterSerial : setup_.serial) + ",3.10";
  }
  int testId = 0, setting = 0;
  if (std::sscanf(command.c_str() + 4, ",%d,%d", &testId, &setting) != 2) return said;
  if (said.starts_with("stst")) {
    if (BehaviourIn(testId, Behaviour::Kind::kLacks)) return "ERRM,6002";
    if (BehaviourIn(testId, Behaviour::Kind::kRefusesNow)) return "ERRM,1003";
  }
  return said.starts_with("gres") ? Result(command, testId, setting) : said;
}

std::string TrueTester::Result(const std::string& command, int testId, int setting) {
  Reading reading{world_.True(equipment_, testId, setting), false};
  auto unit = UsualUnit(testId);
  if (const auto* other = BehaviourIn(testId, Behaviour::Kind::kInUnit)) unit = other->unit;
  // A unit of another quantity keeps the figure.
  reading.amount = {reading.amount.In(unit).value_or(reading.amount.number), unit};
  reading.overload = BehaviourIn(testId, Behaviour::Kind::kOverload) != nullptr;
  readings_[command] = reading;
  return "gres," + std::to_string(testId) + "," + std::to_string(setting) + "," +
         reading.amount.number.Text() + (reading.overload ? ",1," : ",0,") +
         *host::serial::Latin1FromUtf8(unit);
}

const Behaviour* TrueTester::BehaviourIn(int testId, Behaviour::Kind kind) const {
  const auto found = std::find_if(
      setup_.behaviours.begin(), setup_.behaviours.end(),
      [&](const Behaviour& behaviour) { return behaviour.testId == testId && behaviour.kind == kind; });
  return found == setup_.behaviours.end() ? nullptr : &*found;
}

}  // namespace history
