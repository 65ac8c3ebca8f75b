#pragma once

#include <cstdint>
#include <string>

#include "host/cli/commands/Command.h"

namespace host::cli {

/// `archive show`: prints a document of the archive.
class ArchiveCommandShow final : public Command {
 public:
  /// @param location --archive, as it will be
  explicit ArchiveCommandShow(const std::string& location) : location_(location) {}

  CLI::App* Declare(CLI::App& archive) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  const std::string& location_;
  std::int64_t id_ = 0;
  bool json_ = false;
};

}  // namespace host::cli
