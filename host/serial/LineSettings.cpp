#include "host/serial/LineSettings.h"

#include <charconv>
#include <string_view>
#include <vector>

#include "OrvikTypeLib/HostError.h"
#include "host/base/Tr.h"

namespace host::serial {

namespace {

constexpr int kHighestRate = 4'000'000;

[[noreturn]] void Refuse(const std::string& settings, const std::string& reason) {
  throw orvik::HostError(orvik::HostError::kInvalidArgument, "OrvikComm.PortManager",
                         Tr("serial settings \"%%1\": %%2", {settings, reason}));
}

std::vector<std::string> SplitAtCommas(const std::string& text) {
  std::vector<std::string> fields(1);
  for (const char c : text) {
    if (c == ',')
      fields.emplace_back();
    else
      fields.back().push_back(c);
  }
  return fields;
}

int ReadRate(const std::string& field, const std::string& settings) {
  int rate = 0;
  const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), rate);
  if (error != std::errc() || end != field.data() + field.size() || rate < 1 || rate > kHighestRate)
    Refuse(settings, Tr("the rate \"%%1\" is not a number from 1 to 4000000", {field}));
  return rate;
}

template <class Value>
struct Choice {
  const char* text;
  Value value;
};

constexpr Choice<Parity> kParityChoices[] = {
    {"N", Parity::kNone},  {"n", Parity::kNone}, {"E", Parity::kEven}, {"e", Parity::kEven},
    {"O", Parity::kOdd},   {"o", Parity::kOdd},  {"M", Parity::kMark}, {"m", Parity::kMark},
    {"S", Parity::kSpace}, {"s", Parity::kSpace}};
constexpr Choice<int> kDataBitsChoices[] = {{"5", 5}, {"6", 6}, {"7", 7}, {"8", 8}};
constexpr Choice<StopBits> kStopBitsChoices[] = {
    {"1", StopBits::kOne}, {"1.5", StopBits::kOneAndAHalf}, {"2", StopBits::kTwo}};

/// The value chosen by `field`; `HostError` with the settings and the reason if there is no such choice.
template <class Value, std::size_t kCount>
Value ReadChoice(const Choice<Value> (&choices)[kCount], const std::string& field,
                 const std::string& settings, std::string_view reason) {
  for (const auto& choice : choices) {
    if (field == choice.text) return choice.value;
  }
  Refuse(settings, Tr(reason, {field}));
}

}  // namespace

LineSettings ParseLineSettings(const std::string& text) {
  const auto fields = SplitAtCommas(text);
  if (fields.size() != 4)
    Refuse(text, Tr("four fields are needed, such as \"9600,O,8,1\" (rate, parity, data bits, stop bits)"));
  return {ReadRate(fields[0], text),
          ReadChoice(kParityChoices, fields[1], text,
                     TrNoop("the parity \"%%1\" is not one of N, E, O, M and S")),
          ReadChoice(kDataBitsChoices, fields[2], text,
                     TrNoop("the data bits \"%%1\" are not one of 5, 6, 7 and 8")),
          ReadChoice(kStopBitsChoices, fields[3], text,
                     TrNoop("the stop bits \"%%1\" are not one of 1, 1.5 and 2"))};
}

}  // namespace host::serial
