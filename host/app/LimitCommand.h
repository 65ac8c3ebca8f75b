#pragma once

#include <string>

#include "host/app/Command.h"

namespace bench {

/// `limit`: gives an element a limit of a standard, or other bounds to one that it has.
class LimitCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  std::string file_;
  std::int32_t element_ = 0;
  std::string standard_, description_;
  std::string low_, high_, unit_;
};

}  // namespace bench
