#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/report/DocumentReport.h"
#include "tests/support/RecordedDocument.h"

namespace host {

/// Reports of a document that is run on the virtual bench, with readings of the test's choice.
class ReportTest : public testing::Test {
 protected:
  /// Runs these elements, or all, with this reading of every test.
  void Run(const std::string& reading, const support::RunOf& run = {}) {
    for (const int test : {210, 410, 420, 610, 620, 1010, 1020}) file_.Reads(test, reading);
    file_.Run(run);
  }

  report::Report Report(std::vector<std::string> standards = {}) {
    return report::ReportOf(file_.Document(), file_.Host(), {}, std::move(standards));
  }

  static std::string FactOf(const std::vector<report::Fact>& facts, const std::string& label) {
    for (const auto& fact : facts)
      if (fact.label == label) return fact.value;
    return "(none)";
  }

  /// The texts of a table's rows, cells divided by "|".
  static std::vector<std::string> RowsOf(const report::Table& table) {
    std::vector<std::string> rows;
    for (const auto& row : table.rows) {
      rows.emplace_back();
      for (const auto& cell : row) rows.back() += (rows.back().empty() ? "" : "|") + report::PlainText(cell);
    }
    return rows;
  }

  static std::vector<std::string> MarksOf(const report::Report& report) {
    std::vector<std::string> texts;
    for (const auto& mark : report.marks) texts.push_back(mark.text);
    return texts;
  }

  support::RecordedDocument file_;
};

}  // namespace host
