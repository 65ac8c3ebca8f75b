#include "host/run/ReplyDoubts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

#include "host/plugins/keld/KeldNames.h"
#include "host/plugins/keld/KeldProtocol.h"
#include "host/serial/Latin1.h"
#include "host/serial/Message.h"

namespace bench {

namespace {

constexpr std::size_t kIdentityFields = 3;
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
  if (fields.size() != keld_facts::kReadingFields) {
    doubts.push_back(
        {"reading-fields",
         {Shown(reply), std::to_string(fields.size()), std::to_string(keld_facts::kReadingFields)}});
    return;
  }
  const auto value = NumberOf(fields[keld_facts::kValueField]);
  if (!value) doubts.push_back({"not-a-number", {fields[keld_facts::kValueField]}});
  if (value && *value < 0) doubts.push_back({"negative-reading", {fields[keld_facts::kValueField]}});
  if (Trimmed(fields[keld_facts::kOverloadField]) != "0" &&
      Trimmed(fields[keld_facts::kOverloadField]) != "1")
    doubts.push_back({"overload-mark", {fields[keld_facts::kOverloadField]}});
  if (Trimmed(fields[keld_facts::kOverloadField]) == "1") doubts.push_back({"overload", {}});
  if (std::find(kUnits.begin(), kUnits.end(), fields[keld_facts::kUnitField]) == kUnits.end())
    doubts.push_back({"unknown-unit", {fields[keld_facts::kUnitField]}});
}

void CheckIdentity(const Message& reply, std::vector<Reason>& doubts) {
  const auto& fields = reply.Parameters();
  if (fields.size() < kIdentityFields) {
    doubts.push_back({"identity-incomplete", {Shown(reply)}});
    return;
  }
  if (Trimmed(fields[1]).empty()) doubts.push_back({"no-serial-number", {}});
  if (Trimmed(fields[0]) != keld_facts::kInstrument)
    doubts.push_back({"other-tester", {fields[0], keld_facts::kInstrument}});
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
  const bool startsTest = command.MnemonicText() == keld_facts::kStartTest;
  if (error == keld_facts::kNotAllowedNow && startsTest) doubts.push_back({"refused-now", {}});
  if (error == keld_facts::kNoSuchTest && !startsTest)
    doubts.push_back({"refused-elsewhere", {Shown(command)}});
}

}  // namespace

std::optional<double> OhmsIn(const Message& reply) {
  const auto& fields = reply.Parameters();
  if (reply.MnemonicText() != keld_facts::kReading || fields.size() != keld_facts::kReadingFields) return {};
  if (fields[keld_facts::kUnitField] != "Ohm" && fields[keld_facts::kUnitField] != "mOhm") return {};
  const auto value = NumberOf(fields[keld_facts::kValueField]);
  return value && fields[keld_facts::kUnitField] == "mOhm" ? *value / 1000 : value;
}

std::vector<Reason> ReplyDoubts(const Message& command, const Message& reply) {
  std::vector<Reason> doubts;
  const auto& mnemonic = reply.MnemonicText();
  if ((mnemonic == keld_facts::kStarted || mnemonic == keld_facts::kReading) &&
      (NamesAnother(command, reply, 0) || NamesAnother(command, reply, 1)))
    doubts.push_back({"other-test-named", {Shown(reply), Shown(command)}});
  if (mnemonic == keld_facts::kReading) CheckReading(reply, doubts);
  if (mnemonic == keld_facts::kIdentity) CheckIdentity(reply, doubts);
  if (mnemonic == keld_facts::kError) CheckRefusal(command, ErrorNumber(reply), doubts);
  return doubts;
}

}  // namespace bench
