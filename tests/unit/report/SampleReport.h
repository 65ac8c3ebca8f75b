#pragma once

#include <string>

#include "host/report/Report.h"

namespace sample {

/// Texts that break an output without escaping.
struct Hostile {
  static constexpr char kScript[] = "<script>alert(1)</script>";
  static constexpr char kMarkup[] = "a|b;c\\d{e}";
  static constexpr char kQuotes[] = "\"'&lt;]]>--><!--";
};

inline host::report::Words Words() {
  host::report::Words words;
  words.summary = "Summary";
  words.overview = "Overview";
  words.details = "Tests in detail";
  words.number = "No.";
  words.test = "Test";
  words.value = "Value";
  words.unit = "Unit";
  words.result = "Result";
  words.limits = "Limits";
  words.standard = "Standard";
  words.bounds = "Limit";
  words.judgement = "Judgement";
  words.bar = "Value between its bounds";
  words.record = "Record";
  words.runs = "Runs";
  words.readings = "Readings by run";
  words.nothing = "The document has no tests.";
  words.labelled = "%%1: %%2";
  words.caption = "%%1: %%2 - %%3";
  return words;
}

inline host::report::Judgement Judgement(std::optional<double> low, std::optional<double> high,
                                         double value) {
  using host::report::Bar;
  host::report::Judgement judgement;
  judgement.standard = "IEC 62353";
  judgement.bounds = "at most 300 mOhm";
  judgement.bar = host::report::MakeBar(low, high, value);
  const bool kept = judgement.bar && judgement.bar->place != Bar::Place::kAbove &&
                    judgement.bar->place != Bar::Place::kBelow;
  judgement.standing = kept ? host::report::Standing::kPassed : host::report::Standing::kFailed;
  judgement.word = kept ? "within limit" : "exceeded";
  if (low) judgement.lowLabel = std::to_string(static_cast<int>(*low));
  if (high) judgement.highLabel = std::to_string(static_cast<int>(*high));
  judgement.valueLabel = std::to_string(static_cast<int>(value));
  judgement.inWords = judgement.valueLabel + " mOhm is somewhere";
  return judgement;
}

/// A table of one column and row.
inline host::report::Table OneCell(const std::string& head, const std::string& text) {
  host::report::Table table;
  table.border = 7;
  table.columns.resize(1);
  table.columns[0].width = 2000;
  table.header = {{{{head, true}}}};
  table.rows = {{{{text}}}};
  return table;
}

/// A report of `tests` elements, the second of which has failed.
inline host::report::Report Report(int tests = 3) {
  using host::report::Standing;
  host::report::Report report;
  report.language = "en";
  report.title = "Electrical safety test";
  report.verdict = {Standing::kFailed, "Failed", "1 of 3 failed, 2 passed"};
  report.words = Words();
  report.facts = {{"Asset number", "VENT-0042"}, {"Tested", "2026-11-21 14:03"}, {"Operator", "M. Holm"}};
  report.pageHeader = {{"Equipment", "VENT-0042"},
                       {"Tester", "KELD(IN), SIM-0001"},
                       {"Tested", "2026-11-21"},
                       {"Operator", "M. Holm"}};
  report.created = "2026-11-21T14:03:22+01:00";
  for (int i = 1; i <= tests; ++i) {
    const bool failed = i == 2;
    const auto standing = failed ? Standing::kFailed : Standing::kPassed;
    const std::string name = "Protective earth " + std::to_string(i);
    report.overview.push_back({i, 0, name, failed ? "1850" : "123", "mOhm", standing,
                               failed ? "failed" : "passed", failed ? "Fails IEC 62353" : "",
                               "element-" + std::to_string(i)});
    host::report::Section section;
    section.id = i;
    section.anchor = "element-" + std::to_string(i);
    section.name = name;
    section.standing = standing;
    section.word = failed ? "failed" : "passed";
    section.value = failed ? "1850" : "123";
    section.unit = "mOhm";
    if (failed) section.notes.push_back({Standing::kFailed, "Fails IEC 62353"});
    section.facts = {{"Tested", "2026-11-21 14:03"}};
    section.judgements.push_back(Judgement({}, 300, failed ? 1850 : 123));
    host::report::Table table;
    table.border = 7;
    table.columns.resize(3);
    table.columns[1].alignment = orvik::platform::Alignment::kRight;
    for (auto& column : table.columns) column.width = 2000;
    table.header = {{{{"Result:", true, true}}, {{"Value", true, true}}, {{"Unit", true, true}}}};
    table.rows = {{{{section.name}}, {{section.value}}, {{section.unit}}}};
    section.tables.push_back(table);
    report.sections.push_back(section);
  }
  return report;
}

inline void MakePartial(host::report::Report& report) {
  report.marks.push_back({"Partial", "Partial report: 1 of 3 not tested"});
}

inline void MakeSimulated(host::report::Report& report) {
  report.marks.insert(report.marks.begin(), {"SIMULATED", "SIMULATED: nothing was measured.", true});
}

inline void AddRuns(host::report::Report& report) {
  report.runs = OneCell("How it ended", "interrupted");
  for (auto& section : report.sections) section.readings = OneCell("Result then", "failed in run 1");
}

/// The same text in every place for text from outside.
inline host::report::Report Everywhere(const std::string& text) {
  auto report = Report();
  MakePartial(report);
  MakeSimulated(report);
  report.runs = OneCell(text, text);
  for (auto& mark : report.marks) mark.word = mark.text = text;
  report.title = report.verdict.word = report.verdict.sentence = text;
  for (auto* facts : {&report.facts, &report.pageHeader})
    for (auto& fact : *facts) fact = {text, text};
  for (auto& row : report.overview) row.name = row.value = row.unit = row.word = row.note = text;
  for (auto& section : report.sections) {
    section.name = section.word = section.value = section.unit = text;
    section.notes = {{host::report::Standing::kOpen, text}};
    section.facts = {{text, text}};
    section.readings = OneCell(text, text);
    for (auto& judgement : section.judgements)
      judgement.standard = judgement.bounds = judgement.word = judgement.lowLabel = judgement.highLabel =
          judgement.valueLabel = judgement.inWords = text;
    for (auto& table : section.tables) {
      for (auto* rows : {&table.header, &table.rows})
        for (auto& row : *rows)
          for (auto& cell : row) cell = {{text, true, true}};
    }
  }
  return report;
}

}  // namespace sample
