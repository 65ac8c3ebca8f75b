#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "host/archive/Archive.h"
#include "host/cli/commands/Command.h"

namespace host::cli {

/// `archive add`: adds documents to the archive. Refused ones do not keep the others out.
class ArchiveCommandAdd final : public Command {
 public:
  /// @param location --archive, as it will be
  explicit ArchiveCommandAdd(const std::string& location) : location_(location) {}

  CLI::App* Declare(CLI::App& archive) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  std::vector<archive::ArchivedDocument> Read(const bench::GlobalOptions& options);
  void Refuse(const std::string& file, const std::string& reason);
  void Report(const archive::ArchivedDocument& document, const std::string& file,
              const archive::Archive::Receipt& receipt);
  void PrintJson() const;

  const std::string& location_;
  std::vector<std::string> files_;
  bool incomplete_ = false;
  bool simulated_ = false;
  bool json_ = false;

  std::vector<std::string> taken_;  ///< the files of the documents that were read
  std::vector<std::string> refusals_;
  nlohmann::ordered_json results_ = nlohmann::ordered_json::array();
};

}  // namespace host::cli
