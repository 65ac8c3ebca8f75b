#include "host/run/ReplyDoubts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

#include "host/serial/Latin1.h"
#include "host/serial/Message.h"

namespace bench {

namespace {

constexpr std::size_t kReadingFields = 5;  // test, setting, value, overload, unit
constexpr std::size_t kIdentityFields = 3;

constexpr std::array<std::string_view, 20> kUnits{"V",  "mV",  "kV",   "A",    "mA",   "µA",   "uA",
                                                  "nA", "Ohm", "mOhm", "kOhm", "MOhm", "GOhm", "W",
                                                  "kW", "VA",  "kVA",  "Hz",   "s",    "%"};

std::string_view Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool IsNumber(std::string_view text) {
  text = Trimmed(text);
  if (text.starts_with('+')) text.remove_prefix(1);
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() && std::isfinite(number);
}

/// Whether the reply repeats the command's parameter, where it has one.
bool Repeats(const Message& command, const Message& reply, std::size_t index) {
  if (command.Parameters().size() <= index) return true;
  if (reply.Parameters().size() <= index) return false;
  return Trimmed(command.Parameters()[index]) == Trimmed(reply.Parameters()[index]);
}

std::string Quoted(const Message& message) { return "\"" + VisibleText(message.Line()) + "\""; }

void CheckReading(const Message& reply, std::vector<std::string>& doubts) {
  const auto& fields = reply.Parameters();
  if (fields.size() != kReadingFields) {
    doubts.push_back("the reading " + Quoted(reply) + " has " + std::to_string(fields.size()) +
                     " fields instead of " + std::to_string(kReadingFields));
    return;
  }
  if (!IsNumber(fields[2])) doubts.push_back("the reading \"" + fields[2] + "\" is no number");
  if (Trimmed(fields[3]) != "0" && Trimmed(fields[3]) != "1")
    doubts.push_back("the reading's overload mark \"" + fields[3] + "\" is neither 0 nor 1");
  if (Trimmed(fields[3]) == "1")
    doubts.emplace_back("overload (OL): the reading is beyond the tester's range");
  if (std::find(kUnits.begin(), kUnits.end(), fields[4]) == kUnits.end())
    doubts.push_back("the reading's unit \"" + fields[4] + "\" is none that the tester measures in");
}

}  // namespace

std::vector<std::string> ReplyDoubts(const Message& command, const Message& reply) {
  std::vector<std::string> doubts;
  const auto& mnemonic = reply.MnemonicText();
  if (mnemonic == "stst" || mnemonic == "gres") {
    if (!Repeats(command, reply, 0) || !Repeats(command, reply, 1))
      doubts.push_back("the reply " + Quoted(reply) + " names another test than the command " +
                       Quoted(command));
  }
  if (mnemonic == "gres") CheckReading(reply, doubts);
  if (mnemonic == "irem" && reply.Parameters().size() < kIdentityFields)
    doubts.push_back("the tester's identity " + Quoted(reply) + " is incomplete");
  const bool refused = mnemonic == "ERRM" && !reply.Parameters().empty() &&
                       Trimmed(reply.Parameters()[reply.Parameters().size() == 1 ? 0 : 1]) == "1003";
  if (refused && command.MnemonicText() == "STST")
    doubts.emplace_back("the tester refused the test as not allowed now (1003); it was not found to lack it");
  return doubts;
}

}  // namespace bench
