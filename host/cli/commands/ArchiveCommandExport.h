#pragma once

#include <cstdint>
#include <string>

#include "host/cli/commands/Command.h"

namespace host::cli {

/// `archive export`: writes a document of the archive as the file that it was, byte by byte.
class ArchiveCommandExport final : public Command {
 public:
  /// @param location --archive, as it will be
  explicit ArchiveCommandExport(const std::string& location) : location_(location) {}

  CLI::App* Declare(CLI::App& archive) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  const std::string& location_;
  std::int64_t id_ = 0;
  std::string to_;
};

}  // namespace host::cli
