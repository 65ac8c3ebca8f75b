#pragma once

#include <filesystem>
#include <memory>

#include "tests/support/VirtualBench.h"
#include "tests/system/soak/SoakRun.h"

namespace host::document {
class Document;
}

namespace soak {

/// One bench for all runs, on the virtual clock, with the host's real document, run controller, operator and
/// wire log.
class SoakBench {
 public:
  SoakBench();
  ~SoakBench();

  /// A complete run: opens a document, runs and closes it, and waits for late events.
  /// @param save whether the document is saved to disk during the run; otherwise it is only serialised
  Evidence Run(const Plan& plan, bool save);

 private:
  std::filesystem::path Prepared(Kind kind);
  void Prepare(Kind kind);
  void Disturb(const Plan& plan);
  void Perform(const Plan& plan, host::document::Document& document, bool save, Evidence& evidence);
  host::judge::JudgedDocument Judged(const host::document::Document& document);
  void LetTimePass();

  support::VirtualBench bench_;
};

}  // namespace soak
