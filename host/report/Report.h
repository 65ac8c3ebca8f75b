#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/report/Bar.h"
#include "host/report/Table.h"

/// The content of a report, independent of its output format. Every text is UTF-8, in the language of the
/// report, and safe to show: no control characters, nothing that changes the direction of writing. Outputs
/// add their own escaping and no words.
namespace host::report {

/// The status of a report or an element. Outputs give each its own sign, a colour by its tone, and always the
/// word too.
enum class Standing {
  kPassed,
  kFailed,
  kOpen,  ///< incomplete, or not judged by one limit
  kDoubtful,
  kAborted,
  kNotTested,
  kNotJudged,
  kRecorded,
  kNotApplicable
};

enum class Tone {
  kGood,  ///< passed, and nothing else
  kBad,
  kOpen,  ///< unreliable
  kQuiet  ///< recorded, not applicable: neither good nor bad
};

constexpr Tone ToneOf(Standing standing) {
  switch (standing) {
    case Standing::kPassed:
      return Tone::kGood;
    case Standing::kFailed:
      return Tone::kBad;
    case Standing::kRecorded:
    case Standing::kNotApplicable:
      return Tone::kQuiet;
    default:
      return Tone::kOpen;
  }
}

struct Fact {
  std::string label;
  std::string value;
};

/// The one verdict of the report.
struct Verdict {
  Standing standing = Standing::kOpen;
  std::string word;      ///< such as "Failed"
  std::string sentence;  ///< why, such as "2 of 6 tests failed, 1 not tested."
};

/// A notice on every page.
struct PageMark {
  std::string word;     ///< one or two words for the watermark, such as "SIMULATED"
  std::string text;     ///< a sentence
  bool strong = false;  ///< white on black: the report says nothing about the equipment
};

/// A line of the overview.
struct OverviewRow {
  std::int32_t id = 0;
  int depth = 0;  ///< 0 at the top, one more for the children of a sequence
  std::string name;
  std::string value;
  std::string unit;
  Standing standing = Standing::kOpen;
  std::string word;
  std::string note;    ///< the most important reason; empty for one that passed
  std::string anchor;  ///< of its section, unique in the report; empty when there is none
};

/// An element's reading compared with one limit of a standard.
struct Judgement {
  std::string standard;
  std::string bounds;  ///< such as "at most 300 mOhm"
  Standing standing = Standing::kOpen;
  std::string word;  ///< such as "within limit"
  std::optional<Bar> bar;
  std::string lowLabel, highLabel, valueLabel;  ///< of the bar
  std::string inWords;                          ///< the bar for screen readers and plain text
};

/// A remark on an element.
struct Note {
  Standing standing = Standing::kOpen;
  std::string text;
};

/// One element in full.
struct Section {
  std::int32_t id = 0;
  int depth = 0;
  std::string anchor;  ///< as in its row of the overview
  std::string name;
  Standing standing = Standing::kOpen;
  std::string word;
  std::string value;  ///< empty when nothing was measured
  std::string unit;
  std::vector<Note> notes;
  std::vector<Fact> facts;
  std::vector<Judgement> judgements;
  Table readings;             ///< by run; without rows if there was only one
  std::vector<Table> tables;  ///< as the plug-in printed them
};

/// Headings, labels and patterns in the report's language; languages differ in colons and blanks too.
struct Words {
  std::string summary, overview, details;
  std::string number, test, value, unit, result;         ///< columns of the overview
  std::string limits, standard, bounds, judgement, bar;  ///< the table of limits and its columns
  std::string record;                                    ///< caption of a table that the plug-in printed
  std::string runs, readings;                            ///< of the tables of runs, and of readings by run
  std::string nothing;                                   ///< instead of an empty overview
  std::string labelled;                                  ///< "%%1: %%2", a label and what it is for
  std::string caption;                                   ///< "%%1: %%2 - %%3", for `CaptionOf`
};

struct Report {
  std::string language;  ///< such as "en"
  std::string title;
  Verdict verdict;
  std::vector<PageMark> marks;   ///< for every page, the most important first
  std::vector<Fact> facts;       ///< equipment, tester, dates, operators, standards
  std::vector<Fact> pageHeader;  ///< equipment, tester, date, operator: short, for every page
  Words words;
  std::vector<OverviewRow> overview;
  Table runs;  ///< a row for each run; without rows before the first one
  std::vector<Section> sections;
  std::string created;  ///< time of the last result, such as "2026-11-21T14:03:22+01:00"; may be empty
};

/// A label and its value in one line.
std::string Labelled(const Words& words, const std::string& label, const std::string& value);

/// Title, equipment and verdict in one line, for the title of a window.
std::string CaptionOf(const Report& report);

}  // namespace host::report
