#include "tester/FaultScript.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <utility>

#include "tester/LineReader.h"
#include "tester/Message.h"
#include "tester/Text.h"
#include "tester/TextFile.h"

namespace sim {

namespace {

constexpr std::string_view kAny = "ANY";
constexpr int kLongestDelay = 600000;  // ms
constexpr int kHighestError = 32767;   // error numbers are 16-bit at the receiver

/// Cuts the first word off `text`.
std::string_view TakeWord(std::string_view& text) {
  text = Trim(text);
  const std::size_t end = std::min(text.find_first_of(" \t"), text.size());
  const std::string_view word = text.substr(0, end);
  text = Trim(text.substr(end));
  return word;
}

bool IsCommand(std::string_view word) {
  return !word.empty() && word.find(',') == std::string_view::npos && IsSendable(word);
}

std::string WithoutLineEnd(const std::string& bytes) {
  return bytes.substr(0, bytes.find_first_of(kLineEnd));
}

/// The same line under a mnemonic that no command is answered with.
std::string UnderWrongMnemonic(const std::string& bytes) {
  return "xxxx" + bytes.substr(MnemonicOf(WithoutLineEnd(bytes)).size());
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
    FailAt(name, number, "there is no command after 'at'; name one such as GRES, or ANY");
  rule.command = Latin1ToUtf8(Utf8ToLatin1(command).value());
  if (!rest.empty() && rest.front() >= '0' && rest.front() <= '9') {
    const std::string_view nth = TakeWord(rest);
    const auto count = ParseNumber(nth, std::numeric_limits<int>::max());
    if (!count || *count == 0) {
      FailAt(name, number, Quoted(nth) + " is no count; 1 is the first " + rule.command + " of the session");
    }
    rule.nth = static_cast<std::uint64_t>(*count);
  }
  ParseFault(rest, rule, name, number);
  return rule;
}

void FaultScript::ParseFault(std::string_view fault, Rule& rule, const std::string& name, int number) {
  struct Form {
    std::string_view word;
    Kind kind;
    int highest;  // of its number; -1 when it takes none, -2 when it takes the rest of the line
  };
  static constexpr Form kForms[] = {
      {"delay", Kind::Delay, kLongestDelay},
      {"drop", Kind::Drop, -1},
      {"wrong-mnemonic", Kind::WrongMnemonic, -1},
      {"error", Kind::Error, kHighestError},
      {"hang-up", Kind::HangUp, -1},
      {"double", Kind::Double, -1},
      {"truncate", Kind::Truncate, static_cast<int>(LineReader::kMaxLine)},
      {"garble", Kind::Garble, -1},
      {"reply", Kind::Reply, -2},
  };
  const std::string word(TakeWord(fault));
  const auto form =
      std::find_if(std::begin(kForms), std::end(kForms), [&](const Form& f) { return f.word == word; });
  if (form == std::end(kForms)) {
    FailAt(name, number,
           Quoted(word) +
               " is no fault; use delay MS, drop, wrong-mnemonic, error N, hang-up, double, "
               "truncate N, garble or reply TEXT");
  }
  rule.kind = form->kind;
  if (form->highest == -2) {
    if (fault.empty())
      FailAt(name, number, "'reply' needs the line to send instead, such as: reply gres,410,0,9,0,Ohm");
    rule.text = Utf8ToLatin1(fault).value();
    return;
  }
  if (form->highest >= 0) {
    const std::string text(TakeWord(fault));
    const auto value = ParseNumber(text, form->highest);
    if (!value) {
      FailAt(name, number,
             Quoted(word) + " needs a whole number from 0 to " + std::to_string(form->highest) +
                 " and has '" + text + "'");
    }
    rule.number = *value;
  }
  if (!fault.empty()) FailAt(name, number, Quoted(fault) + " is too much after '" + word + "'; remove it");
}

void FaultScript::OnReply(const Exchange& exchange, std::vector<Outgoing>& replies) {
  for (Rule& rule : rules_) {
    if (rule.command != kAny && rule.command != exchange.command) continue;
    ++rule.seen;
    if (rule.nth == 0 || rule.nth == rule.seen) Apply(rule, replies);
  }
}

void FaultScript::Apply(const Rule& rule, std::vector<Outgoing>& replies) {
  if (rule.kind == Kind::Drop) return replies.clear();
  if (rule.kind == Kind::HangUp) {
    // Also a reply dropped by an earlier rule can still take the line down with it.
    replies.assign(1, Outgoing{{}, {}, true});
    return;
  }
  if (rule.kind == Kind::Double) {
    const std::vector<Outgoing> again = replies;
    replies.insert(replies.end(), again.begin(), again.end());
    return;
  }
  for (Outgoing& reply : replies) {
    switch (rule.kind) {
      case Kind::Delay:
        reply.delay += std::chrono::milliseconds(rule.number);
        break;
      case Kind::WrongMnemonic:
        reply.bytes = UnderWrongMnemonic(reply.bytes);
        break;
      case Kind::Error:
        reply.bytes = "ERRM," + std::to_string(rule.number) + std::string(kLineEnd);
        break;
      case Kind::Truncate:
        // The line end is lost too, so the rest never becomes a message of its own.
        reply.bytes = WithoutLineEnd(reply.bytes).substr(0, static_cast<std::size_t>(rule.number));
        break;
      case Kind::Garble:
        // A control byte: the receiver has to drop the whole line.
        if (const std::size_t middle = WithoutLineEnd(reply.bytes).size() / 2; middle > 0)
          reply.bytes[middle] = '\x1B';
        break;
      case Kind::Reply:
        reply.bytes = rule.text + std::string(kLineEnd);
        break;
      default:
        break;
    }
  }
}

std::shared_ptr<FaultScript> LoadFaultScript(const std::string& path) {
  return std::make_shared<FaultScript>(ReadTextFile(path), path);
}

}  // namespace sim
