#pragma once

#include <string>
#include <vector>

namespace kill_test {

/// Takes in the programs whose parents are killed, so that none is lost sight of.
class Orphans {
 public:
  Orphans();

  /// The names of all that were taken in, once they have ended by themselves. Called when no other children
  /// are running.
  /// @throws std::runtime_error naming one that does not end; it is killed
  std::vector<std::string> AwaitEnd() const;
};

}  // namespace kill_test
