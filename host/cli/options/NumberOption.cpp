#include "host/cli/options/NumberOption.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <sstream>
#include <string>
#include <system_error>
#include <vector>

#include "host/base/Tr.h"
#include "host/bench/InputError.h"

namespace host::cli {

namespace {

constexpr std::string_view kDigits = "0123456789";

/// The numbers of a list such as "410,910"; empty when the text is not a list of numbers.
std::vector<std::string> NumbersOfList(std::string text) {
  if (text.find_first_not_of(std::string(kDigits) + ",; ") != std::string::npos) return {};
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == ',' || c == ';'; }, ' ');
  std::istringstream parts(text);
  std::vector<std::string> numbers;
  for (std::string number; parts >> number;) numbers.push_back(number);
  return numbers;
}

/// How several numbers are given to the option.
std::string OneByOne(const CLI::Option& option, const std::vector<std::string>& numbers) {
  const auto name = option.get_name();
  std::string words;
  for (const auto& number : numbers) {
    const bool named = !option.get_positional() && (words.empty() || !option.get_allow_extra_args());
    if (!words.empty()) words += ' ';
    if (named) words.append(name).append(" ");
    words += number;
  }
  return words;
}

std::int64_t RequireWholeNumber(const CLI::Option& option, std::int64_t highest, const std::string& text) {
  const auto name = option.get_name();
  if (const auto numbers = NumbersOfList(text); numbers.size() > 1 && option.get_expected_max() > 1)
    throw bench::InputError(
        Tr("%%1 %%2: give the numbers one by one: %%3", {name, text, OneByOne(option, numbers)}));
  std::int64_t number = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
  if (read.ptr != text.data() + text.size() || read.ec == std::errc::invalid_argument)
    throw bench::InputError(Tr("%%1 %%2: give a whole number, in digits alone", {name, text}));
  if (read.ec != std::errc() || number > highest || number < -highest)
    throw bench::InputError(
        Tr("%%1 %%2: give a whole number up to %%3", {name, text, std::to_string(highest)}));
  return number;
}

}  // namespace

CLI::Option* WholeNumbers(CLI::Option* option, std::int64_t highest) {
  // The parser's own conversion takes "010" for eight, and its errors do not say what to do.
  return option->transform(CLI::Validator(
      [option, highest](std::string& text) {
        text = std::to_string(RequireWholeNumber(*option, highest, text));
        return std::string();
      },
      ""));
}

}  // namespace host::cli
