#pragma once

#include <string>

#include "host/app/Command.h"

namespace bench {

/// `show`: prints a document.
class ShowCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  std::string file_;
  bool json_ = false;
};

}  // namespace bench
