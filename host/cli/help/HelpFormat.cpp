#include "host/cli/help/HelpFormat.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <utility>
#include <vector>

#include "host/base/TextCells.h"
#include "host/base/Tr.h"
#include "host/cli/help/CommandLineView.h"
#include "host/report/TextLines.h"

namespace host::cli {

namespace {

/// Help is read in windows of that many cells and more.
constexpr std::size_t kLineWidth = 110;

/// The text in lines behind a margin of so many cells.
std::string Wrapped(const std::string& text, std::size_t margin) {
  std::string wrapped;
  for (const auto& line : report::text::Wrapped(text, kLineWidth - margin))
    wrapped += (wrapped.empty() ? "" : "\n" + std::string(margin, ' ')) + line;
  return wrapped;
}

class HelpFormat final : public CLI::Formatter {
 public:
  HelpFormat();

  std::string make_group(std::string group, bool is_positional,
                         std::vector<const CLI::Option*> opts) const override;
  std::string make_option(const CLI::Option* opt, bool is_positional) const override;
  std::string make_option_opts(const CLI::Option* opt) const override;
  std::string make_subcommands(const CLI::App* app, CLI::AppFormatMode mode) const override;
  std::string make_subcommand(const CLI::App* sub) const override;
  std::string make_footer(const CLI::App* app) const override;

 private:
  std::string Line(const std::string& name, const std::string& description) const;
};

}  // namespace

HelpFormat::HelpFormat() {
  label("Usage", Tr("Usage"));
  label("OPTIONS", Tr("OPTIONS"));
  label("SUBCOMMAND", Tr("SUBCOMMAND"));
  label("SUBCOMMANDS", Tr("SUBCOMMANDS"));
  label("Positionals", Tr("Positionals"));
  label("REQUIRED", Tr("REQUIRED"));
  label("Env", Tr("Env"));
  label("Needs", Tr("Needs"));
  label("Excludes", Tr("Excludes"));
}

std::string HelpFormat::make_group(std::string group, bool is_positional,
                                   std::vector<const CLI::Option*> opts) const {
  return Formatter::make_group(group == "Options" ? Tr("Options") : std::move(group), is_positional,
                               std::move(opts));
}

std::string HelpFormat::make_option(const CLI::Option* opt, bool is_positional) const {
  return Line(make_option_name(opt, is_positional) + make_option_opts(opt), make_option_desc(opt));
}

std::string HelpFormat::make_option_opts(const CLI::Option* opt) const {
  auto text = Formatter::make_option_opts(opt);
  // The parser keeps the options that exclude this one by their addresses, which change from run to run.
  const auto heading = " " + get_label("Excludes") + ":";
  const auto at = text.find(heading);
  if (at == std::string::npos) return text;
  std::vector<std::string> names;
  for (const auto* excluded : opt->get_excludes()) names.push_back(excluded->get_name());
  std::sort(names.begin(), names.end());
  text.erase(at + heading.size());
  for (const auto& name : names) text += " " + name;
  return text;
}

std::string HelpFormat::make_subcommands(const CLI::App* app, CLI::AppFormatMode mode) const {
  // The parser's own heading cannot be had in another language.
  static const std::string kHeading = "\nSubcommands:\n";
  auto text = Formatter::make_subcommands(app, mode);
  if (text.starts_with(kHeading)) text.replace(0, kHeading.size(), "\n" + Tr("Subcommands") + ":\n");
  return text;
}

std::string HelpFormat::make_subcommand(const CLI::App* sub) const {
  return Line(sub->get_display_name(true), sub->get_description());
}

std::string HelpFormat::make_footer(const CLI::App* app) const {
  std::string further;
  for (const auto& line : InheritedOptions(*app)) further += Wrapped(line, 0) + "\n";
  return further + (further.empty() ? "" : "\n") + Formatter::make_footer(app);
}

std::string HelpFormat::Line(const std::string& name, const std::string& description) const {
  const auto width = get_column_width();
  std::string line = "  " + name;
  if (description.empty()) return line + "\n";
  if (CellsOf(line) >= width) line += "\n" + std::string(width, ' ');
  const auto begins = line.rfind('\n') == std::string::npos ? 0 : line.rfind('\n') + 1;
  const auto used = CellsOf(std::string_view(line).substr(begins));
  return line + std::string(used < width ? width - used : 0, ' ') + Wrapped(description, width) + "\n";
}

std::shared_ptr<CLI::FormatterBase> MakeHelpFormat() { return std::make_shared<HelpFormat>(); }

}  // namespace host::cli
