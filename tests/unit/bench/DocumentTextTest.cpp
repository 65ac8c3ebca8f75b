#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "host/cli/output/DocumentLines.h"
#include "host/cli/output/ProgressLines.h"
#include "host/report/DocumentText.h"
#include "host/report/DocumentView.h"
#include "tests/unit/bench/VirtualLine.h"

namespace host {
namespace {

using testing::HasSubstr;
using testing::Not;

/// Would wipe its own line out and write another verdict on the next one.
constexpr char kForged[] = "\x1b[2K\n   1  passed          120 mOhm\xe2\x80\xae";
constexpr char kForgedShown[] = "[U+001B][2K[U+000A]   1  passed          120 mOhm[U+202E]";

judge::JudgedElement Forged() {
  judge::JudgedElement element;
  element.id = 1;
  element.testId = 410;
  element.run = 1;
  element.status = 2;
  element.verdict = judge::Verdict::kFailed;
  element.name = kForged;
  element.measurement = judge::Measurement{};
  element.measurement->value = 1850;
  element.measurement->unit = kForged;
  element.reasons = {{"above-limit", {kForged, kForged, "300"}}, {"unheard-of", {kForged}}};
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

TEST(DocumentText, EscapesControlCharacters) {
  report::DocumentView document;
  document.path = std::string("/tmp/") + kForged + ".orvik";
  document.equipment = {kForged, kForged, kForged, kForged};
  document.comment = kForged;
  document.instrument = document::RecordedTester{kForged, kForged, kForged, 0, kForged};
  document.judged.simulated = true;
  document.judged.outcome = judge::Outcome::kFailed;
  document.judged.standards = {kForged};
  document.judged.leftOut = {kForged};
  document.judged.elements = {Forged()};
  // The document, its equipment and comment, its tester, its standards; the element, its two reasons.
  ExpectShown(cli::TextOf(document, false), 9, 1 + 4 + 1 + 4 + 2 + 2 + 2 + 1);
  ExpectShown(cli::LineOf(Forged(), false), 0, 2);
}

TEST(DocumentText, AReadingThatDoesNotCountIsNotShown) {
  auto element = Forged();
  element.measurement->unit = "mOhm";
  EXPECT_EQ(report::ReadingText(element), "1850 mOhm");
  element.measurement->flags = "O";
  EXPECT_EQ(report::ReadingText(element), "OL");
  element.run = 0;
  EXPECT_EQ(report::ReadingText(element), "-");
}

TEST(ProgressLinesText, EscapesControlCharacters) {
  app::VirtualLine line;
  std::ostringstream out;
  cli::ProgressLines progress(out, -1, line.SharedLoop(), 1);
  progress.Reached(1, 1);
  progress.Started(Forged());
  progress.Doubted(1, {"invalid-line", {kForged}});
  progress.Finished(Forged());
  ExpectShown(out.str(), 3, 1 + 1 + 2);
}

}  // namespace
}  // namespace host
