#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <iostream>

#include "benchmarks/Benchmark.h"
#include "benchmarks/OwnProcess.h"
#include "benchmarks/Report.h"

namespace benchmarks {

namespace {

constexpr int kAllReached = 0;
constexpr int kMissed = 1;
constexpr int kBadInput = 3;

struct Options {
  bool json = false;
  std::vector<std::string> only;
  std::string build = std::filesystem::read_symlink("/proc/self/exe").parent_path().parent_path();
};

std::string Footer() {
  std::string text = "Benchmarks, in the order in which they run:\n";
  for (const auto& benchmark : AllBenchmarks()) {
    text += "  " + benchmark.name + std::string(18 - benchmark.name.size(), ' ') + benchmark.purpose + "\n";
  }
  return text +
         "\nExit status: 0 every figure is within its bound; 1 one is not, or could not be measured; 3 bad "
         "option.\nRun them on a machine that has nothing else to do; the real-time run takes 20 seconds.";
}

bool Wanted(const Options& options, const std::string& name) {
  return options.only.empty() ||
         std::find(options.only.begin(), options.only.end(), name) != options.only.end();
}

Outcome Measured(const Benchmark& benchmark, const Context& context) {
  try {
    return {benchmark.name, benchmark.measure(context), ""};
  } catch (const std::exception& error) {
    return {benchmark.name, {}, error.what()};
  }
}

/// In a process of its own, so that no benchmark finds what another has left.
Outcome Measure(const Benchmark& benchmark, const Context& context) {
  try {
    return OutcomeOf(benchmark.name, InOwnProcess([&] { return TextOf(Measured(benchmark, context)); }));
  } catch (const std::exception& error) {
    return {benchmark.name, {}, error.what()};
  }
}

int Run(const Options& options) {
  const Context context{options.build};
  std::vector<Outcome> outcomes;
  std::cerr << LoadRemark();
  if (!options.json) std::cout << TableHead() << std::flush;
  for (const auto& benchmark : AllBenchmarks()) {
    if (!Wanted(options, benchmark.name)) continue;
    outcomes.push_back(Measure(benchmark, context));
    if (!options.json) std::cout << TableRow(outcomes.back()) << std::flush;
  }
  if (options.json) std::cout << JsonOf(outcomes) << std::flush;
  return std::all_of(outcomes.begin(), outcomes.end(), [](const Outcome& outcome) { return outcome.Ok(); })
             ? kAllReached
             : kMissed;
}

CLI::Validator NameOfBenchmark() {
  return CLI::Validator(
      [](std::string& name) -> std::string {
        for (const auto& benchmark : AllBenchmarks()) {
          if (benchmark.name == name) return {};
        }
        return "there is no benchmark \"" + name + "\"; --help names them all";
      },
      "NAME");
}

}  // namespace

}  // namespace benchmarks

int main(int argc, char** argv) {
  using namespace benchmarks;
  Options options;
  CLI::App program("Measures what the system promises, and compares it with its bounds.", "orvik-benchmarks");
  program.add_flag("--json", options.json,
                   "Print one JSON object: name to figure, unit, yardstick, limit, ok");
  program.add_option("--only", options.only, "Run this benchmark alone; may be given again")
      ->check(NameOfBenchmark())
      ->allow_extra_args(false);
  program
      .add_option("--build", options.build,
                  "Measure the programs of this build folder; otherwise of the one with this program")
      ->check(CLI::ExistingDirectory);
  program.footer(Footer());
  try {
    program.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return program.exit(error) == 0 ? kAllReached : kBadInput;
  }
  return Run(options);
}
