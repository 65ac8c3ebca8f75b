#include "host/serial/LineSettings.h"

#include <charconv>
#include <string_view>
#include <vector>

#include "OrvikTypeLib/HostError.h"

namespace bench {

namespace {

constexpr int kHighestRate = 4'000'000;

[[noreturn]] void Refuse(const std::string& settings, const std::string& reason) {
  throw orvik::HostError(orvik::HostError::kInvalidArgument, "OrvikComm.PortManager",
                         "serial settings \"" + settings + "\": " + reason);
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
    Refuse(settings, "the rate \"" + field + "\" is not a number from 1 to 4000000");
  return rate;
}

Parity ReadParity(const std::string& field, const std::string& settings) {
  if (field == "N" || field == "n") return Parity::kNone;
  if (field == "E" || field == "e") return Parity::kEven;
  if (field == "O" || field == "o") return Parity::kOdd;
  if (field == "M" || field == "m") return Parity::kMark;
  if (field == "S" || field == "s") return Parity::kSpace;
  Refuse(settings, "the parity \"" + field + "\" is not one of N, E, O, M and S");
}

int ReadDataBits(const std::string& field, const std::string& settings) {
  if (field.size() != 1 || field[0] < '5' || field[0] > '8')
    Refuse(settings, "the data bits \"" + field + "\" are not one of 5, 6, 7 and 8");
  return field[0] - '0';
}

StopBits ReadStopBits(const std::string& field, const std::string& settings) {
  if (field == "1") return StopBits::kOne;
  if (field == "1.5") return StopBits::kOneAndAHalf;
  if (field == "2") return StopBits::kTwo;
  Refuse(settings, "the stop bits \"" + field + "\" are not one of 1, 1.5 and 2");
}

}  // namespace

LineSettings ParseLineSettings(const std::string& text) {
  const auto fields = SplitAtCommas(text);
  if (fields.size() != 4)
    Refuse(text, "four fields are needed, such as \"9600,O,8,1\" (rate, parity, data bits, stop bits)");
  return {ReadRate(fields[0], text), ReadParity(fields[1], text), ReadDataBits(fields[2], text),
          ReadStopBits(fields[3], text)};
}

}  // namespace bench
