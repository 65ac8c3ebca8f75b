#pragma once

#include <string>
#include <vector>

namespace kill_test {

/// Becomes the parent of programs whose own parent is killed, so that the test can wait for them.
class Orphans {
 public:
  Orphans();

  /// The names of all these programs, after they have ended by themselves. Call it when no other children
  /// are running.
  /// @throws std::runtime_error naming a program that does not end; it is killed
  std::vector<std::string> AwaitEnd() const;
};

}  // namespace kill_test
