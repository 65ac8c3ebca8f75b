#pragma once

#include <optional>
#include <string>

#include "host/app/Command.h"

namespace bench {

/// `config`: shows and changes the settings of an element.
class ConfigCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  std::string file_;
  std::int32_t element_ = 0;
  std::optional<std::int32_t> settings_;
  std::optional<std::string> filter_;
};

}  // namespace bench
