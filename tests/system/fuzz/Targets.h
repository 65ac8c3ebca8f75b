#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace fuzz {

/// A target as the tests try it.
struct Target {
  using Function = int (*)(const std::uint8_t* data, std::size_t size);

  std::string name;
  Function function;
  int rounds = 0;                       ///< how many mutated inputs are tried
  std::vector<std::string> dictionary;  ///< words that mean something in it
  std::vector<std::string> corpus;      ///< inputs to begin with, those of the repository among them
};

/// The names of all targets, in the order of fuzz/targets.txt.
std::vector<std::string> TargetNames();

/// The target with all that it begins with; `std::runtime_error` naming the file when something is missing.
Target LoadTarget(const std::string& name);

/// The function of the target, or null; the build gives each its own name.
Target::Function FunctionOf(const std::string& name);

}  // namespace fuzz
