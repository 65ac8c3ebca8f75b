#include "host/run/ReplyDoubts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

#include "OrvikTypeLib/Conversions.h"
#include "host/plugins/keld/KeldNames.h"
#include "host/plugins/keld/KeldProtocol.h"
#include "host/serial/Latin1.h"
#include "host/serial/Message.h"

namespace host::run {

namespace {

constexpr std::size_t kIdentityFields = 3;
constexpr double kBeyondErrors = 1e6;

constexpr std::array<std::string_view, 20> kUnits{"V",  "mV",  "kV",   "A",    "mA",   "µA",   "uA",
                                                  "nA", "Ohm", "mOhm", "kOhm", "MOhm", "GOhm", "W",
                                                  "kW", "VA",  "kVA",  "Hz",   "s",    "%"};

/// Whether the reply names another parameter than the command; a reply may leave its parameters out.
bool NamesAnother(const serial::Message& command, const serial::Message& reply, std::size_t index) {
  if (command.Parameters().size() <= index || reply.Parameters().size() <= index) return false;
  return orvik::Trim(command.Parameters()[index]) != orvik::Trim(reply.Parameters()[index]);
}

std::string Shown(const serial::Message& message) { return serial::VisibleLatin1(message.Line()); }

void CheckReading(const serial::Message& reply, std::vector<document::Reason>& doubts) {
  const auto& fields = reply.Parameters();
  if (fields.size() != plugins::keld::kReadingFields) {
    doubts.push_back(
        {"reading-fields",
         {Shown(reply), std::to_string(fields.size()), std::to_string(plugins::keld::kReadingFields)}});
    return;
  }
  const auto value = orvik::FiniteNumber(fields[plugins::keld::kValueField]);
  if (!value) doubts.push_back({"not-a-number", {fields[plugins::keld::kValueField]}});
  if (value && *value < 0) doubts.push_back({"negative-reading", {fields[plugins::keld::kValueField]}});
  if (orvik::Trim(fields[plugins::keld::kOverloadField]) != "0" &&
      orvik::Trim(fields[plugins::keld::kOverloadField]) != "1")
    doubts.push_back({"overload-mark", {fields[plugins::keld::kOverloadField]}});
  if (orvik::Trim(fields[plugins::keld::kOverloadField]) == "1") doubts.push_back({"overload", {}});
  if (std::find(kUnits.begin(), kUnits.end(), fields[plugins::keld::kUnitField]) == kUnits.end())
    doubts.push_back({"unknown-unit", {fields[plugins::keld::kUnitField]}});
}

void CheckIdentity(const serial::Message& reply, std::vector<document::Reason>& doubts) {
  const auto& fields = reply.Parameters();
  if (fields.size() < kIdentityFields) {
    doubts.push_back({"identity-incomplete", {Shown(reply)}});
    return;
  }
  if (orvik::Trim(fields[1]).empty()) doubts.push_back({"no-serial-number", {}});
  if (orvik::Trim(fields[0]) != plugins::keld::kInstrument)
    doubts.push_back({"other-tester", {fields[0], plugins::keld::kInstrument}});
}

/// The number of an error reply, parsed as leniently as the plug-in does; 0 if it has no number.
int ErrorNumber(const serial::Message& reply) {
  const auto& fields = reply.Parameters();
  if (fields.empty()) return 0;
  const auto field = orvik::Trim(fields[fields.size() == 1 ? 0 : 1]);
  std::string_view text = field;
  if (text.starts_with('+')) text.remove_prefix(1);
  double number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return std::abs(number) < kBeyondErrors ? static_cast<int>(std::nearbyint(number)) : 0;
}

/// A refusal records the test as not applicable. That counts only for error 6002 in reply to STST.
void CheckRefusal(const serial::Message& command, int error, std::vector<document::Reason>& doubts) {
  const bool startsTest = command.MnemonicText() == plugins::keld::kStartTest;
  if (error == plugins::keld::kNotAllowedNow && startsTest) doubts.push_back({"refused-now", {}});
  if (error == plugins::keld::kNoSuchTest && !startsTest)
    doubts.push_back({"refused-elsewhere", {Shown(command)}});
}

}  // namespace

std::vector<document::Reason> ReplyDoubts(const serial::Message& command, const serial::Message& reply) {
  std::vector<document::Reason> doubts;
  const auto& mnemonic = reply.MnemonicText();
  if ((mnemonic == plugins::keld::kStarted || mnemonic == plugins::keld::kReading) &&
      (NamesAnother(command, reply, 0) || NamesAnother(command, reply, 1)))
    doubts.push_back({"other-test-named", {Shown(reply), Shown(command)}});
  if (mnemonic == plugins::keld::kReading) CheckReading(reply, doubts);
  if (mnemonic == plugins::keld::kIdentity) CheckIdentity(reply, doubts);
  if (mnemonic == plugins::keld::kError) CheckRefusal(command, ErrorNumber(reply), doubts);
  return doubts;
}

}  // namespace host::run
