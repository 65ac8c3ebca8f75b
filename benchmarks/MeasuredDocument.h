#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "benchmarks/Benchmark.h"
#include "tests/support/TemporaryFolder.h"

namespace benchmarks {

/// Documents that hold one measured and judged element many times. The destructor removes them.
class MeasuredDocument {
 public:
  /// Has `orvik-bench` make the document and run it. Throws std::runtime_error when it cannot.
  explicit MeasuredDocument(const Context& context);

  /// A document that holds the element so many times, each under an identifier of its own.
  std::filesystem::path Times(int count) const;
  /// Runs `orvik-bench` with these words; wall time of the whole program, in seconds.
  double Bench(std::vector<std::string> words) const;
  const std::filesystem::path& Folder() const { return folder_.Path(); }

 private:
  const Context& context_;
  const support::TemporaryFolder folder_;
  const std::filesystem::path one_ = folder_.Path() / "one.orvik";
};

}  // namespace benchmarks
