#pragma once

#include <cstdint>
#include <string>

#include "host/archive/ArchivedDocument.h"
#include "host/cli/commands/Command.h"

namespace host::cli {

/// `archive trend`: shows and plots the readings of one test of one asset over time.
class ArchiveCommandTrend final : public Command {
 public:
  /// @param location --archive, as it will be
  explicit ArchiveCommandTrend(const std::string& location) : location_(location) {}

  CLI::App* Declare(CLI::App& archive) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  void Print(const archive::Trend& trend) const;

  const std::string& location_;
  std::string asset_, to_;
  std::int32_t test_ = 0;
  bool simulated_ = false;
  bool json_ = false;
};

}  // namespace host::cli
