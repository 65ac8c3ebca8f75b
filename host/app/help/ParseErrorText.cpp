#include "host/app/help/ParseErrorText.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "host/services/Tr.h"

namespace bench {

namespace {

struct Form {
  CLI::ExitCodes kind;       ///< of the error; its name is now and then that of the command
  std::string_view english;  ///< what the parser says, with a placeholder for each part that varies
};

/// The parser hands out ready sentences alone; these are the ones it knows. Of one kind, the first that fits.
constexpr std::array<Form, 14> kForms{
    {{CLI::ExitCodes::RequiredError, Marked("A subcommand is required")},
     {CLI::ExitCodes::RequiredError, Marked("%%1 is required")},
     {CLI::ExitCodes::ArgumentMismatch, Marked("Expected exactly %%1 arguments to %%2, got %%3")},
     {CLI::ExitCodes::ArgumentMismatch, Marked("Expected at least %%1 arguments to %%2, got %%3")},
     {CLI::ExitCodes::ArgumentMismatch, Marked("%%1: At least %%2 required but received %%3")},
     {CLI::ExitCodes::ArgumentMismatch, Marked("%%1: At Most %%2 required but received %%3")},
     {CLI::ExitCodes::ArgumentMismatch, Marked("%%1 was given a disallowed flag override")},
     {CLI::ExitCodes::ArgumentMismatch, Marked("%%1: %%2 required %%3 missing")},
     {CLI::ExitCodes::ConversionError, Marked("The value %%1 is not an allowed value for %%2")},
     {CLI::ExitCodes::ConversionError, Marked("%%1: too many inputs for a flag")},
     {CLI::ExitCodes::ConversionError, Marked("%%1: Should be true/false or a number")},
     {CLI::ExitCodes::ExcludesError, Marked("%%1 excludes %%2")},
     {CLI::ExitCodes::ExtrasError, Marked("The following argument was not expected: %%1")},
     {CLI::ExitCodes::ExtrasError, Marked("The following arguments were not expected: %%1")}}};

constexpr std::string_view kMark = "%%";

/// The parts of `text` that stand where `form` has placeholders, which are numbered in their order; none when
/// the text has not that form.
std::optional<std::vector<std::string>> PartsOf(std::string_view text, std::string_view form) {
  std::vector<std::string> parts;
  auto mark = form.find(kMark);
  if (!text.starts_with(form.substr(0, mark))) return {};
  text.remove_prefix(std::min(mark, form.size()));
  while (mark != std::string_view::npos) {
    form.remove_prefix(mark + kMark.size() + 1);
    mark = form.find(kMark);
    const auto between = form.substr(0, mark);
    const auto end = mark == std::string_view::npos && text.ends_with(between) ? text.size() - between.size()
                                                                               : text.find(between);
    if (end == std::string_view::npos) return {};
    parts.emplace_back(text.substr(0, end));
    text.remove_prefix(end + between.size());
  }
  if (!text.empty()) return {};
  return parts;
}

}  // namespace

std::string ParseErrorText(const CLI::ParseError& error) {
  for (const auto& form : kForms) {
    if (error.get_exit_code() != static_cast<int>(form.kind)) continue;
    if (const auto parts = PartsOf(error.what(), form.english)) return Tr(form.english, *parts);
  }
  return error.what();
}

}  // namespace bench
