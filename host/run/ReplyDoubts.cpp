#include "host/run/ReplyDoubts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

#include "host/serial/Latin1.h"
#include "host/serial/Message.h"
#include "host/services/Tr.h"

namespace bench {

namespace {

constexpr std::size_t kReadingFields = 5;  // test, setting, value, overload, unit
constexpr std::size_t kIdentityFields = 3;
constexpr int kNotAllowedNow = 1003;
constexpr int kNoSuchTest = 6002;
constexpr double kBeyondErrors = 1e6;

constexpr std::array<std::string_view, 20> kUnits{"V",  "mV",  "kV",   "A",    "mA",   "µA",   "uA",
                                                  "nA", "Ohm", "mOhm", "kOhm", "MOhm", "GOhm", "W",
                                                  "kW", "VA",  "kVA",  "Hz",   "s",    "%"};

std::string_view Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// None when the text is something else than a finite number.
std::optional<double> NumberOf(std::string_view text) {
  text = Trimmed(text);
  if (text.starts_with('+')) text.remove_prefix(1);
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(number)) return {};
  return number;
}

/// Whether the reply repeats the command's parameter, where it has one.
bool Repeats(const Message& command, const Message& reply, std::size_t index) {
  if (command.Parameters().size() <= index) return true;
  if (reply.Parameters().size() <= index) return false;
  return Trimmed(command.Parameters()[index]) == Trimmed(reply.Parameters()[index]);
}

std::string Quoted(const Message& message) { return "\"" + VisibleLatin1(message.Line()) + "\""; }

void CheckReading(const Message& reply, std::vector<std::string>& doubts) {
  const auto& fields = reply.Parameters();
  if (fields.size() != kReadingFields) {
    doubts.push_back(Tr("the reading %%1 has %%2 fields instead of %%3",
                        {Quoted(reply), std::to_string(fields.size()), std::to_string(kReadingFields)}));
    return;
  }
  const auto value = NumberOf(fields[2]);
  if (!value) doubts.push_back(Tr("the reading \"%%1\" is no number", {fields[2]}));
  if (value && *value < 0)
    doubts.push_back(
        Tr("the reading \"%%1\" is negative; an upper limit would take it for a small one", {fields[2]}));
  if (Trimmed(fields[3]) != "0" && Trimmed(fields[3]) != "1")
    doubts.push_back(Tr("the reading's overload mark \"%%1\" is neither 0 nor 1", {fields[3]}));
  if (Trimmed(fields[3]) == "1")
    doubts.push_back(Tr("overload (OL): the reading is beyond the tester's range"));
  if (std::find(kUnits.begin(), kUnits.end(), fields[4]) == kUnits.end())
    doubts.push_back(Tr("the reading's unit \"%%1\" is none that the tester measures in", {fields[4]}));
}

/// The number of an error reply, read as generously as by whoever acts on it; 0 when there is none.
int ErrorNumber(const Message& reply) {
  const auto& fields = reply.Parameters();
  if (fields.empty()) return 0;
  std::string_view text = Trimmed(fields[fields.size() == 1 ? 0 : 1]);
  if (text.starts_with('+')) text.remove_prefix(1);
  double number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return std::abs(number) < kBeyondErrors ? static_cast<int>(std::nearbyint(number)) : 0;
}

/// A test is recorded as not applicable on the tester's word. It counts only when the word is the right one.
void CheckRefusal(const Message& command, int error, std::vector<std::string>& doubts) {
  const bool startsTest = command.MnemonicText() == "STST";
  if (error == kNotAllowedNow && startsTest)
    doubts.push_back(
        Tr("the tester refused the test as not allowed now (1003); it was not found to lack it"));
  if (error == kNoSuchTest && !startsTest)
    doubts.push_back(Tr("the tester answered %%1 with 6002, as if it lacked the test; only STST asks for one",
                        {Quoted(command)}));
}

}  // namespace

std::optional<double> OhmsIn(const Message& reply) {
  const auto& fields = reply.Parameters();
  if (reply.MnemonicText() != "gres" || fields.size() != kReadingFields) return {};
  if (fields[4] != "Ohm" && fields[4] != "mOhm") return {};
  const auto value = NumberOf(fields[2]);
  return value && fields[4] == "mOhm" ? *value / 1000 : value;
}

std::vector<std::string> ReplyDoubts(const Message& command, const Message& reply) {
  std::vector<std::string> doubts;
  const auto& mnemonic = reply.MnemonicText();
  if (mnemonic == "stst" || mnemonic == "gres") {
    if (!Repeats(command, reply, 0) || !Repeats(command, reply, 1))
      doubts.push_back(
          Tr("the reply %%1 names another test than the command %%2", {Quoted(reply), Quoted(command)}));
  }
  if (mnemonic == "gres") CheckReading(reply, doubts);
  if (mnemonic == "irem" && reply.Parameters().size() < kIdentityFields)
    doubts.push_back(Tr("the tester's identity %%1 is incomplete", {Quoted(reply)}));
  if (mnemonic == "ERRM") CheckRefusal(command, ErrorNumber(reply), doubts);
  return doubts;
}

}  // namespace bench
