#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "OrvikTypeLib/ITestElement.h"
#include "host/cli/commands/Command.h"
#include "host/standards/ElementLimits.h"

namespace host::document {
class Document;
}

namespace host::cli {

/// `limit`: gives elements a limit of a standard or those of a set, marks them "record only", or takes limits
/// and mark away.
class LimitCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  bench::ExitStatus Run(const bench::GlobalOptions& options) override;

 private:
  using Elements = std::vector<std::shared_ptr<orvik::ITestElement>>;

  bool Given(const std::string& option) const;
  void Check() const;
  void RefuseTogether(const std::string& option, const std::vector<std::string>& others) const;

  /// Each changes the document and returns what is to be printed.
  std::string Change(bench::Workbench& workbench, document::Document& document,
                     const bench::GlobalOptions& options) const;
  std::string SetLimits(const Elements& elements, const elements::ElementFactory& factory) const;
  std::string RemoveLimits(const Elements& elements, const elements::ElementFactory& factory) const;
  std::string ApplySet(const document::Document& document, const elements::ElementFactory& factory,
                       const bench::GlobalOptions& options) const;

  std::string file_;
  std::vector<std::int32_t> elements_;
  std::string set_;
  standards::EnteredLimit entered_;
  bool also_ = false, recordOnly_ = false, remove_ = false;
  CLI::App* command_ = nullptr;
};

}  // namespace host::cli
