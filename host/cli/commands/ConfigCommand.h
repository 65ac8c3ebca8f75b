#pragma once

#include <cstdint>
#include <string>

#include "host/cli/commands/Command.h"

namespace host::cli {

/// `config`: shows and changes the settings of an element.
class ConfigCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  bool Given(const char* option) const;
  bool ChangesOptions() const;
  std::int32_t Changed(std::int32_t settings, std::int32_t testId) const;

  std::string file_;
  std::int32_t element_ = 0;
  std::int32_t settings_ = 0;
  std::string leads_, filter_;
  CLI::App* command_ = nullptr;
};

}  // namespace host::cli
