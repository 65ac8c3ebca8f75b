#include "host/run/ReplyDoubts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

#include "host/plugins/keld/KeldTests.h"
#include "host/serial/Latin1.h"
#include "host/serial/Message.h"

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

/// Whether the reply names another parameter than the command; one that names none says nothing wrong.
bool NamesAnother(const Message& command, const Message& reply, std::size_t index) {
  if (command.Parameters().size() <= index || reply.Parameters().size() <= index) return false;
  return Trimmed(command.Parameters()[index]) != Trimmed(reply.Parameters()[index]);
}

std::string Shown(const Message& message) { return VisibleLatin1(message.Line()); }

void CheckReading(const Message& reply, std::vector<Reason>& doubts) {
  const auto& fields = reply.Parameters();
  if (fields.size() != kReadingFields) {
    doubts.push_back(
        {"reading-fields", {Shown(reply), std::to_string(fields.size()), std::to_string(kReadingFields)}});
    return;
  }
  const auto value = NumberOf(fields[2]);
  if (!value) doubts.push_back({"not-a-number", {fields[2]}});
  if (value && *value < 0) doubts.push_back({"negative-reading", {fields[2]}});
  if (Trimmed(fields[3]) != "0" && Trimmed(fields[3]) != "1")
    doubts.push_back({"overload-mark", {fields[3]}});
  if (Trimmed(fields[3]) == "1") doubts.push_back({"overload", {}});
  if (std::find(kUnits.begin(), kUnits.end(), fields[4]) == kUnits.end())
    doubts.push_back({"unknown-unit", {fields[4]}});
}

void CheckIdentity(const Message& reply, std::vector<Reason>& doubts) {
  const auto& fields = reply.Parameters();
  if (fields.size() < kIdentityFields) {
    doubts.push_back({"identity-incomplete", {Shown(reply)}});
    return;
  }
  if (Trimmed(fields[1]).empty()) doubts.push_back({"no-serial-number", {}});
  if (Trimmed(fields[0]) != keld_facts::kTesterType)
    doubts.push_back({"other-tester", {fields[0], std::string(keld_facts::kTesterType)}});
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
void CheckRefusal(const Message& command, int error, std::vector<Reason>& doubts) {
  const bool startsTest = command.MnemonicText() == "STST";
  if (error == kNotAllowedNow && startsTest) doubts.push_back({"refused-now", {}});
  if (error == kNoSuchTest && !startsTest) doubts.push_back({"refused-elsewhere", {Shown(command)}});
}

}  // namespace

std::optional<double> OhmsIn(const Message& reply) {
  const auto& fields = reply.Parameters();
  if (reply.MnemonicText() != "gres" || fields.size() != kReadingFields) return {};
  if (fields[4] != "Ohm" && fields[4] != "mOhm") return {};
  const auto value = NumberOf(fields[2]);
  return value && fields[4] == "mOhm" ? *value / 1000 : value;
}

std::vector<Reason> ReplyDoubts(const Message& command, const Message& reply) {
  std::vector<Reason> doubts;
  const auto& mnemonic = reply.MnemonicText();
  if ((mnemonic == "stst" || mnemonic == "gres") &&
      (NamesAnother(command, reply, 0) || NamesAnother(command, reply, 1)))
    doubts.push_back({"other-test-named", {Shown(reply), Shown(command)}});
  if (mnemonic == "gres") CheckReading(reply, doubts);
  if (mnemonic == "irem") CheckIdentity(reply, doubts);
  if (mnemonic == "ERRM") CheckRefusal(command, ErrorNumber(reply), doubts);
  return doubts;
}

}  // namespace bench
