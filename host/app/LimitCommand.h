#pragma once

#include <cstdint>
#include <string>

#include "OrvikTypeLib/ITestElement.h"
#include "host/app/Command.h"
#include "host/standards/ElementLimits.h"

namespace bench {

class Document;

/// `limit`: gives an element a limit of a standard, replacing an older one, or all elements those of a set.
class LimitCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& program) override;
  ExitStatus Run(const GlobalOptions& options) override;

 private:
  void Check() const;
  void ApplyOne(Workbench& workbench, Document& document) const;
  void ApplySet(Workbench& workbench, Document& document, const GlobalOptions& options) const;
  std::shared_ptr<orvik::ITestElement> ChosenElement(const Document& document) const;

  std::string file_;
  std::int32_t element_ = 0;
  std::string set_;
  EnteredLimit entered_;
  CLI::App* command_ = nullptr;
};

}  // namespace bench
