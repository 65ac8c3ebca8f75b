#pragma once

#include <cstdint>
#include <string>

#include "host/archive/Archive.h"
#include "host/cli/commands/Command.h"

namespace host::cli {

/// `archive list`: prints the documents of the archive.
class ArchiveCommandList final : public Command {
 public:
  /// @param location --archive, as it will be
  explicit ArchiveCommandList(const std::string& location) : location_(location) {}

  CLI::App* Declare(CLI::App& archive) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  archive::Archive::Filter Checked() const;

  const std::string& location_;
  std::string asset_, serial_, since_, outcome_;
  std::int64_t limit_ = 0;
  CLI::Option* limitOption_ = nullptr;
  bool json_ = false;
};

}  // namespace host::cli
