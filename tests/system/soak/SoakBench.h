#pragma once

#include <filesystem>
#include <memory>

#include "tests/support/VirtualBench.h"
#include "tests/system/soak/SoakRun.h"

namespace host::document {
class Document;
}

namespace soak {

/// One bench for all the runs, on the virtual clock, with the host's real document, run controller, operator
/// and wire log.
class SoakBench {
 public:
  SoakBench();
  ~SoakBench();

  /// A complete run: a document is opened, run and let go of, and whatever comes late is waited for.
  /// @param save whether the document is saved to the disk as it goes; otherwise it is only made ready for it
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
