#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "host/app/DocumentText.h"
#include "host/app/run/ProgressLines.h"
#include "tests/app/VirtualLine.h"

namespace bench {
namespace {

using testing::HasSubstr;
using testing::Not;

/// Would wipe its own line out and write another verdict on the next one.
constexpr char kForged[] = "\x1b[2K\n   1  passed          120 mOhm\xe2\x80\xae";
constexpr char kForgedShown[] = "[U+001B][2K[U+000A]   1  passed          120 mOhm[U+202E]";

ElementSummary Forged() {
  ElementSummary element;
  element.id = 1;
  element.testId = 410;
  element.status = 2;
  element.name = kForged;
  element.measurement = MeasurementSummary{};
  element.measurement->value = 1850;
  element.measurement->unit = kForged;
  element.failedStandards = {kForged};
  element.doubts = {kForged};
  return element;
}

void ExpectShown(const std::string& text, std::ptrdiff_t lines, std::size_t places) {
  EXPECT_THAT(text, Not(HasSubstr("\x1b")));
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), lines) << text;
  std::size_t found = 0;
  for (auto at = text.find(kForgedShown); at != std::string::npos; at = text.find(kForgedShown, at + 1))
    ++found;
  EXPECT_EQ(found, places) << text;
}

TEST(DocumentText, WhatComesFromOutsideMovesNoCursorAndMakesNoLine) {
  DocumentSummary document;
  document.path = std::string("/tmp/") + kForged + ".orvik";
  document.outcome = Outcome::kFailed;
  document.instrument = InstrumentSummary{};
  document.instrument->type = document.instrument->serial = document.instrument->firmware = kForged;
  document.elements = {Forged()};
  // The document and its tester; the element, the standard that it fails, its doubt.
  ExpectShown(TextOf(document, false), 5, 1 + 3 + 2 + 1 + 1);
  ExpectShown(LineOf(Forged(), false), 0, 2);
}

TEST(ProgressLinesText, WhatComesFromOutsideMovesNoCursorAndMakesNoLine) {
  app::VirtualLine line;
  std::ostringstream out;
  ProgressLines progress(out, -1, line.SharedLoop(), 1);
  progress.Reached(1, 1);
  progress.Started(Forged());
  progress.Doubted(1, kForged);
  progress.Finished(Forged());
  ExpectShown(out.str(), 3, 1 + 1 + 2);
}

}  // namespace
}  // namespace bench
