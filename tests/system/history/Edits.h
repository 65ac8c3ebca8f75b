#pragma once

#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/ITestElement.h"
#include "host/document/Document.h"
#include "tests/support/VirtualBench.h"
#include "tests/system/history/Operation.h"

namespace history {

/// Changes documents and settings by the procedures of the commands.
class EditsOf {
 public:
  /// @param folder of the documents, with "/" at its end
  EditsOf(support::VirtualBench& bench, std::string folder) : bench_(bench), folder_(std::move(folder)) {}

  /// Throws what the procedures throw on a refusal.
  void Perform(const Operation& operation);

 private:
  using Elements = std::vector<std::shared_ptr<orvik::ITestElement>>;

  void StoreLeads(const Operation& operation);
  void Make(const Operation& operation);
  void Change(const Operation& operation, host::document::Document& document);
  void Add(const Operation& operation, host::document::Document& document);
  void SetLimits(const Operation& operation, const Elements& elements);
  void ApplySet(const Operation& operation, const host::document::Document& document);
  void RemoveLimits(const Operation& operation, const Elements& elements);
  void Configure(const Operation& operation, orvik::ITestElement& element);

  support::VirtualBench& bench_;
  const std::string folder_;
};

}  // namespace history
