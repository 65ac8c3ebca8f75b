#include <fcntl.h>

#include "benchmarks/Measurements.h"
#include "benchmarks/Repeat.h"
#include "host/base/UniqueFd.h"
#include "tests/support/Process.h"
#include "tests/support/TemporaryFolder.h"

namespace benchmarks {

namespace {

constexpr double kMilliseconds = 1000;

/// Has the system forget the file's contents, so that the next start reads them from the disk.
void ForgetContents(const std::filesystem::path& file) {
  const host::UniqueFd opened(open(file.c_str(), O_RDONLY | O_CLOEXEC));
  if (opened) posix_fadvise(opened.Get(), 0, 0, POSIX_FADV_DONTNEED);
}

double TakesMilliseconds(const Context& context, bool cold) {
  const support::TemporaryFolder folder;
  if (cold) {
    for (const auto& file : {context.Bench(), context.PlugIn(), context.Catalogue()}) ForgetContents(file);
  }
  const auto ended = support::RunWell(context.Bench(), {"tests", "--state", folder.Path() / "state"});
  return ended.wall.count() * kMilliseconds;
}

double MedianStart(const Context& context, bool cold) {
  constexpr int kStarts = 15;
  std::vector<double> times;
  for (int i = 0; i < kStarts; ++i) times.push_back(TakesMilliseconds(context, cold));
  return Median(times);
}

}  // namespace

// The system's own libraries stay in memory, as they do on any machine that has been on for a while.
Figure MeasureStart(const Context& context) {
  const double cold = MedianStart(context, true);
  return {cold, "ms", MedianStart(context, false), "with the files in memory, in ms", 50, Bound::kAtMost};
}

}  // namespace benchmarks
