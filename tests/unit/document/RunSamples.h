#pragma once

#include <gtest/gtest.h>

#include <pugixml.hpp>
#include <string>
#include <vector>

#include "host/document/Runs.h"
#include "host/xml/XmlDocument.h"

namespace host::samples {

/// What is to be seen of each run: "intact", "changed", and "gap" where a run that came after it is missing.
using States = std::vector<std::string>;

inline constexpr char kNasty[] = "  <&\"'>\n\tend\r\n\xC2\xB5 ";

inline document::RecordedTest MakeTest(std::int32_t element, std::int32_t tester) {
  document::RecordedTest test;
  test.element = element;
  test.testId = 410;
  test.settings = 4;
  test.at = "2026-11-22T10:01:00+01:00";
  test.status = 2;
  test.tester = tester;
  test.said = {"ERRM,77", "gres,410,0,1.85,0,Ohm"};
  test.recorded = document::RecordedReading{"1850", "mOhm", "O"};
  test.judged = {{"IEC 62353", "class I", "mOhm", "1", "300", 2}, {"house rule", "", "mOhm", "", "5000", 1}};
  test.doubts = {{"late-reply", {"STST,210,0"}}, {"overload", {}}};
  return test;
}

inline document::RunRecord MakeRun(const std::string& by) {
  document::RunRecord run;
  run.begun = "2026-11-22T10:00:00+01:00";
  run.ended = "2026-11-22T10:02:00+01:00";
  run.end = document::RunRecord::End::kFinished;
  run.by = by;
  run.simulated = true;
  run.timeScale = 2.5;
  run.port = "/dev/ttyS0";
  run.program = "orvik-bench 9";
  run.equipment = {"VENT-1", "S-2", "Maker", "Model"};
  run.testers = {{"KELD(IN)", "SIM-0001", "3.10", 35, "2026-11-01T08:00:00+01:00"},
                 {"KELD(IN)", "B", "", -5, ""}};
  run.steps.emplace_back(document::RecordedTakes{{2, 1, 7}});
  run.steps.emplace_back(MakeTest(2, 1));
  auto aside = document::RecordedTest{};
  aside.element = 1;
  aside.by = document::RecordedTest::By::kOperator;
  run.steps.emplace_back(aside);
  run.steps.emplace_back(document::RecordedTakes{{2}});
  run.steps.emplace_back(MakeTest(2, 2));
  return run;
}

inline void Add(document::Runs& runs, document::RunRecord run) {
  runs.Open(std::move(run));
  runs.Close();
}

/// The section as it is saved.
inline std::string TextOf(const document::Runs& runs) {
  pugi::xml_document xml;
  runs.Save(xml);
  return xml.first_child() ? xml::Write(xml) : std::string();
}

inline document::Runs Loaded(const std::string& text) {
  const auto [xml, fault] = xml::ParseInPlace(text);
  EXPECT_EQ(fault.reason, "") << text;
  document::Runs runs;
  runs.Load(xml, xml->child("Runs"));
  return runs;
}

inline States StatesIn(const std::string& text) {
  States states;
  const auto runs = Loaded(text);
  for (const auto& run : runs.All())
    states.push_back(std::string(run.intact ? "intact" : "changed") + (run.gapAfter ? ", gap" : ""));
  return states;
}

inline States AllIntact(std::size_t count) { return States(count, "intact"); }

/// Three runs, as they are saved.
inline std::string ThreeRuns() {
  document::Runs runs;
  for (const auto* by : {"Ann", "Bob", "Cleo"}) Add(runs, MakeRun(by));
  return TextOf(runs);
}

}  // namespace host::samples
