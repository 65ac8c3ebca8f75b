#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "OrvikTypeLib/ITestElement.h"
#include "host/document/Document.h"
#include "host/run/IOperator.h"
#include "tests/support/RunParts.h"
#include "tests/support/VirtualBench.h"
#include "tests/system/history/Operation.h"
#include "tests/system/history/RunWatch.h"

namespace history {

/// Executes one run of a history with the real parts.
class RunOf {
 public:
  /// @param folder of the documents, with "/" at its end
  RunOf(support::VirtualBench& bench, std::string folder) : bench_(bench), folder_(std::move(folder)) {}

  /// Runs, and records in the world what really happens.
  /// @return a violation by the run; none if all is well
  std::optional<std::string> Perform(const Operation& operation, World& world);

 private:
  using Elements = std::vector<std::shared_ptr<orvik::ITestElement>>;

  Elements Selected(const Operation& operation, host::document::Document& document);
  void RunElements(const RunSetup& run, const Elements& elements, host::document::Document& document,
                   RunWatch& watch);
  std::vector<orvik::platform::Subscription> Tell(support::RunParts& parts, RunWatch& watch);
  void LetTimePass();

  support::VirtualBench& bench_;
  const std::string folder_;
};

}  // namespace history
