#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "host/document/Document.h"
#include "tests/support/RunParts.h"
#include "tests/support/VirtualBench.h"
#include "tests/system/history/Operation.h"
#include "tests/system/history/World.h"

namespace history {

/// Executes a history with the real parts of the programs: documents in files, the plug-in, the run's parts
/// and the simulated tester on a line in memory, on the virtual clock.
class Bench {
 public:
  Bench();
  ~Bench();

  /// Restores the initial state: no documents, no settings.
  void Clear();

  /// Executes the operation; for a run, records in the world what really happens.
  /// @param byCommand through the program's command line where there is one, instead of the procedures behind
  /// it
  /// @return the refusal or a violation; none if all is well
  std::optional<std::string> Perform(const Operation& operation, World& world, bool byCommand);

  /// The document as in its file.
  std::shared_ptr<host::document::Document> Open(const std::string& file);
  std::filesystem::path PathOf(const std::string& file) const { return folder_ / file; }
  host::document::Host& Host() { return bench_.Host(); }

  struct Told {
    int status = 0;
    std::string out, error;
  };
  /// Runs the program on its command line, in this process.
  Told Command(std::vector<std::string> arguments);

 private:
  std::string Folder() const { return folder_.string() + "/"; }

  support::VirtualBench bench_;
  const std::filesystem::path folder_;
};

}  // namespace history
