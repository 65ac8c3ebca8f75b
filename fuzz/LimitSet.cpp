// A file with a set of limits.
#include "host/standards/LimitSet.h"

#include "OrvikTypeLib/HostError.h"
#include "fuzz/HostErrors.h"
#include "fuzz/Scratch.h"
#include "host/base/Text.h"

namespace {

using fuzz::Require;

bool IsBoundOrNone(const std::string& text) { return text.empty() || orvik::FiniteNumber(text); }

/// A figure that could let everything pass must not have been taken.
void CheckFigure(const host::standards::LimitSet& set, const host::standards::LimitFigure& figure) {
  Require(!figure.low.empty() || !figure.high.empty(), "a figure has a bound");
  Require(IsBoundOrNone(figure.low) && IsBoundOrNone(figure.high), "a bound is a number");
  Require(!figure.unit.empty() && !figure.source.empty(), "a figure has a unit and a source");
  Require(!figure.tests.empty(), "a figure is for a test");
  for (const auto test : figure.tests)
    Require(set.FigureFor(test) == &figure, "a test is in one figure at most");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::Scratch scratch;
  const auto file = scratch.Write("given.xml", fuzz::TextOf(data, size));
  host::standards::LimitSet set;
  const auto refused = fuzz::RefusalOf([&] { set = host::standards::ReadLimitSet(file); },
                                       orvik::HostError::kPathError, "given.xml, line ");
  if (refused) return 0;
  Require(!set.figures.empty() && !set.standard.empty() && !set.edition.empty(), "a set names what it is");
  for (const auto& figure : set.figures) CheckFigure(set, figure);
  return 0;
}
