#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace benchmarks {

/// What a benchmark needs to know of the world.
struct Context {
  /// The build whose programs are measured: the folder above `bin` and `lib`.
  std::filesystem::path build;

  std::filesystem::path Bench() const { return build / "bin" / "orvik-bench"; }
  std::filesystem::path Simulator() const { return build / "bin" / "keld-sim"; }
  std::filesystem::path PlugIn() const { return build / "lib" / "orvik" / "orvikKELD.so"; }
  std::filesystem::path Catalogue() const { return build / "share" / "orvik" / "catalogue.xml"; }
};

/// Which side of the bound is the good one.
enum class Bound { kAtMost, kAtLeast };

struct Figure {
  double value = 0;
  std::string unit;
  /// What the figure is compared with, from the same run; none when there is nothing of the kind.
  std::optional<double> yardstick;
  std::string yardstickIs;  ///< the yardstick in words, with its unit
  /// None for a figure that is there to be known only.
  std::optional<double> limit;
  Bound bound = Bound::kAtMost;

  bool Ok() const { return !limit || (bound == Bound::kAtMost ? value <= *limit : value >= *limit); }
};

struct Benchmark {
  std::string name;
  std::string purpose;  ///< one line for the help text
  /// Throws std::exception with the reason when nothing can be measured.
  std::function<Figure(const Context&)> measure;
};

/// All benchmarks, in the order in which they are run.
const std::vector<Benchmark>& AllBenchmarks();

}  // namespace benchmarks
