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

/// The real programs' parts, which do what a history says: documents in files, the plug-in, the run's parts
/// and the simulated tester on a line in memory, on the virtual clock.
class Bench {
 public:
  Bench();
  ~Bench();

  /// As before the first operation: no documents, no settings.
  void Clear();

  /// Does the operation; for a run writes down in the world what really happens.
  /// @param byCommand through the program's command line where there is one, instead of the procedures behind
  /// it
  /// @return why it was refused, or what it must not have done; none when all is well
  std::optional<std::string> Perform(const Operation& operation, World& world, bool byCommand);

  /// The document as its file has it.
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
