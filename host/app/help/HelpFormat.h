#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace bench {

/// The form of the help: the parser's own, in the language that was chosen, its columns counted in cells.
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

}  // namespace bench
