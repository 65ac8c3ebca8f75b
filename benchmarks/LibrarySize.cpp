#include "benchmarks/Measurements.h"
#include "tests/support/Process.h"
#include "tests/support/TemporaryFolder.h"

namespace benchmarks {

Figure MeasureLibrarySize(const Context& context) {
  constexpr double kMegabyte = 1e6;
  const support::TemporaryFolder folder;
  const auto stripped = folder.Path() / "stripped.so";
  support::RunWell("/usr/bin/strip", {"-o", stripped, context.PlugIn()});
  return {static_cast<double>(std::filesystem::file_size(stripped)) / kMegabyte,
          "MB",
          static_cast<double>(std::filesystem::file_size(context.PlugIn())) / kMegabyte,
          "as built, in MB",
          1.5,
          Bound::kAtMost};
}

}  // namespace benchmarks
