#include "tester/FaultScript.h"

#include <limits>

#include "tester/Text.h"
#include "tester/TextFile.h"

namespace sim {

namespace {

constexpr std::string_view kAny = "ANY";

bool IsCommand(std::string_view word) {
  return !word.empty() && word.find(',') == std::string_view::npos && IsSendable(word);
}

}  // namespace

FaultScript::FaultScript(std::string_view content, const std::string& name) {
  for (const TextLine& line : SplitTextLines(content, name))
    rules_.push_back(ParseRule(line.text, name, line.number));
}

FaultScript::Rule FaultScript::ParseRule(const std::string& line, const std::string& name, int number) {
  std::string_view rest = line;
  if (TakeWord(rest) != "at") {
    FailAt(name, number, Quoted(line) + " does not begin with 'at'; write it as: at COMMAND [NTH] FAULT");
  }
  Rule rule;
  const std::string_view command = TakeWord(rest);
  if (!IsCommand(command))
    FailAt(name, number, "a command is missing after 'at'; name one such as GRES, or ANY");
  rule.command = Latin1ToUtf8(Utf8ToLatin1(command).value());
  if (!rest.empty() && rest.front() >= '0' && rest.front() <= '9') {
    const std::string_view nth = TakeWord(rest);
    const auto count = ParseNumber(nth, std::numeric_limits<int>::max());
    if (!count || *count == 0) {
      FailAt(name, number,
             Quoted(nth) + " is not a count; 1 is the first " + rule.command + " of the session");
    }
    rule.nth = static_cast<std::uint64_t>(*count);
  }
  rule.fault = ParseFault(rest, name, number);
  return rule;
}

void FaultScript::OnReply(const Exchange& exchange, Reply& reply) {
  for (Rule& rule : rules_) {
    if (rule.command != kAny && rule.command != exchange.command) continue;
    ++rule.seen;
    if (rule.nth == 0 || rule.nth == rule.seen) Apply(rule.fault, reply);
  }
}

std::shared_ptr<FaultScript> LoadFaultScript(const std::string& path) {
  return std::make_shared<FaultScript>(ReadTextFile(path), path);
}

}  // namespace sim
