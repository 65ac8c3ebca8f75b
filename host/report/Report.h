#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/report/Bar.h"
#include "host/report/Table.h"

/// What a report consists of, free of any output. Every text is UTF-8, in the language of the report, and
/// ready to be shown: no control characters, nothing that turns the direction of writing. Outputs add their
/// own escaping and no words.
namespace bench::report {

/// How something stands. Outputs give each a colour and a sign of its own; the word stands beside them
/// always.
enum class Standing {
  kPassed,
  kFailed,
  kOpen,  ///< not tested, aborted, doubtful, incomplete: cannot be relied on
  kNotApplicable
};

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

/// A line of the overview.
struct OverviewRow {
  std::int32_t id = 0;
  int depth = 0;  ///< 0 at the top; children of a sequence stand deeper
  std::string name;
  std::string value;
  std::string unit;
  Standing standing = Standing::kOpen;
  std::string word;
  bool detailed = true;  ///< whether a section tells more
};

/// An element's reading put to one limit of a standard.
struct Judgement {
  std::string standard;
  std::string bounds;  ///< such as "at most 300 mOhm"
  Standing standing = Standing::kOpen;
  std::string word;  ///< such as "kept"
  std::optional<Bar> bar;
  std::string lowLabel, highLabel, valueLabel;  ///< of the bar
  std::string inWords;                          ///< the bar for whoever does not see it
};

/// Something to be noticed about an element.
struct Note {
  Standing standing = Standing::kOpen;
  std::string text;
};

/// One element in full.
struct Section {
  std::int32_t id = 0;
  int depth = 0;
  std::string name;
  Standing standing = Standing::kOpen;
  std::string word;
  std::string value;  ///< empty when nothing was measured
  std::string unit;
  std::vector<Note> notes;
  std::vector<Fact> facts;
  std::vector<Judgement> judgements;
  std::vector<Table> tables;  ///< as the plug-in printed them
};

/// Headings, labels, and how texts are put together: languages have colons and blanks of their own.
struct Words {
  std::string summary, overview, details;
  std::string number, test, value, unit, result;         ///< columns of the overview
  std::string limits, standard, bounds, judgement, bar;  ///< the table of limits and its columns
  std::string record;                                    ///< caption of a table that the plug-in printed
  std::string partial;                                   ///< the mark of a partial report, one word
  std::string nothing;                                   ///< instead of an empty overview
  std::string labelled;                                  ///< "%%1: %%2", a label and what it is for
  std::string caption;                                   ///< "%%1: %%2 - %%3", for `CaptionOf`
};

struct Report {
  std::string language;  ///< such as "en"
  std::string title;
  Verdict verdict;
  bool partial = false;
  std::string partialNotice;     ///< why, one sentence; for every page
  std::vector<Fact> facts;       ///< equipment, tester, dates, operators, standards
  std::vector<Fact> pageHeader;  ///< equipment, tester, date, operator: short, for every page
  Words words;
  std::vector<OverviewRow> overview;
  std::vector<Section> sections;
  std::string created;  ///< the moment of the last result, such as "2026-11-21T14:03:22+01:00"; may be empty
};

/// A label and what it is for, in one line.
std::string Labelled(const Words& words, const std::string& label, const std::string& value);

/// Title, equipment and verdict in one line, as the title of a window.
std::string CaptionOf(const Report& report);

}  // namespace bench::report
