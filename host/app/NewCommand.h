#pragma once

#include <string>
#include <vector>

#include "host/app/Command.h"

namespace bench {

/// `new`: makes a document.
class NewCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  std::string file_;
  std::vector<std::int32_t> tests_;
  std::string asset_, serial_, maker_, model_;
};

}  // namespace bench
