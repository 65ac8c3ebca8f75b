#include "host/serial/LineSettings.h"

#include <charconv>
#include <string_view>
#include <vector>

#include "OrvikTypeLib/HostError.h"
#include "host/services/Tr.h"

namespace bench {

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

Parity ReadParity(const std::string& field, const std::string& settings) {
  if (field == "N" || field == "n") return Parity::kNone;
  if (field == "E" || field == "e") return Parity::kEven;
  if (field == "O" || field == "o") return Parity::kOdd;
  if (field == "M" || field == "m") return Parity::kMark;
  if (field == "S" || field == "s") return Parity::kSpace;
  Refuse(settings, Tr("the parity \"%%1\" is not one of N, E, O, M and S", {field}));
}

int ReadDataBits(const std::string& field, const std::string& settings) {
  if (field.size() != 1 || field[0] < '5' || field[0] > '8')
    Refuse(settings, Tr("the data bits \"%%1\" are not one of 5, 6, 7 and 8", {field}));
  return field[0] - '0';
}

StopBits ReadStopBits(const std::string& field, const std::string& settings) {
  if (field == "1") return StopBits::kOne;
  if (field == "1.5") return StopBits::kOneAndAHalf;
  if (field == "2") return StopBits::kTwo;
  Refuse(settings, Tr("the stop bits \"%%1\" are not one of 1, 1.5 and 2", {field}));
}

}  // namespace

LineSettings ParseLineSettings(const std::string& text) {
  const auto fields = SplitAtCommas(text);
  if (fields.size() != 4)
    Refuse(text, Tr("four fields are needed, such as \"9600,O,8,1\" (rate, parity, data bits, stop bits)"));
  return {ReadRate(fields[0], text), ReadParity(fields[1], text), ReadDataBits(fields[2], text),
          ReadStopBits(fields[3], text)};
}

}  // namespace bench
