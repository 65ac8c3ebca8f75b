#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "tester/Errors.h"
#include "tester/Tester.h"
#include "tests/support/ReadFile.h"
#include "tests/support/TemporaryFolder.h"

namespace sim::test {

/// Whether there is something at the path, even a link to nothing.
inline bool Exists(const std::string& path) {
  return std::filesystem::exists(std::filesystem::symlink_status(path));
}

/// All that the tester ever replies to `bytes`.
inline std::string Ask(Tester& tester, std::string_view bytes) {
  tester.Receive(bytes, Instant::zero());
  std::string said;
  while (const auto due = tester.NextDue()) said += tester.TakeDue(*due)->bytes;
  return said;
}

/// The message of the InputError that `work` throws.
template <typename Work>
std::string InputErrorOf(Work work) {
  try {
    work();
  } catch (const InputError& error) {
    return error.what();
  }
  return "(no InputError)";
}

}  // namespace sim::test
