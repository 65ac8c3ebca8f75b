#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "benchmarks/Benchmark.h"

namespace benchmarks {

/// A benchmark and what came of it.
struct Outcome {
  std::string name;
  std::optional<Figure> figure;  ///< none when nothing could be measured
  std::string failure;           ///< why

  bool Ok() const { return figure && figure->Ok(); }
};

std::string TableHead();
std::string TableRow(const Outcome& outcome);
/// One object: name -> {figure, unit, yardstick, yardstickIs, limit, bound, ok}, or {ok, failure}.
std::string JsonOf(const std::vector<Outcome>& outcomes);

/// One outcome as text that a process can tell to another.
std::string TextOf(const Outcome& outcome);
Outcome OutcomeOf(const std::string& name, const std::string& text);

/// A line that says so when the machine has more to do than it has processors; empty otherwise.
std::string LoadRemark();

}  // namespace benchmarks
