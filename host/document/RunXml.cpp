#include "host/document/RunXml.h"

#include <sstream>
#include <string_view>

#include "host/base/Sha256.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"
#include "host/xml/XmlNode.h"

namespace host::document {
namespace {

constexpr char kByTester[] = "tester", kByOperator[] = "operator";

// --- reading

std::string Attribute(pugi::xml_node node, const char* name) { return node.attribute(name).value(); }

/// 0 when the attribute is missing.
std::int32_t Number(pugi::xml_node node, const char* name) {
  const auto attribute = node.attribute(name);
  return attribute ? xml::NumberIn(attribute.value(), node, name) : 0;
}

bool Flag(pugi::xml_node node, const char* name) {
  const auto number = xml::NumberAttribute(node, name);
  if (number != 0 && number != 1)
    throw xml::XmlError(node, Tr("\"%%1\" of \"%%2\" must be 0 or 1", {name, node.name()}));
  return number == 1;
}

RunRecord::End ReadEnd(pugi::xml_node node) {
  const auto text = Attribute(node, "End");
  for (const auto end : {RunRecord::End::kNone, RunRecord::End::kFinished, RunRecord::End::kStopped,
                         RunRecord::End::kAborted, RunRecord::End::kLost})
    if (text == EndText(end)) return end;
  throw xml::XmlError(node, Tr("unknown end \"%%1\" of a run (finished, stopped, aborted, lost)", {text}));
}

double ReadTimeScale(pugi::xml_node node) {
  const auto text = Attribute(node, "TimeScale");
  const auto scale = FiniteNumber(text);
  if (!scale || *scale <= 0) throw xml::XmlError(node, Tr("invalid time scale \"%%1\" of a run", {text}));
  return *scale;
}

RecordedTakes ReadTakes(pugi::xml_node node) {
  RecordedTakes takes;
  std::istringstream elements(node.attribute("Elements").value());
  for (std::string id; elements >> id;) takes.elements.push_back(xml::NumberIn(id.c_str(), node, "Elements"));
  return takes;
}

RecordedTester ReadTester(pugi::xml_node node) {
  return {Attribute(node, "Type"), Attribute(node, "Serial"), Attribute(node, "Firmware"),
          Number(node, "Leads"), Attribute(node, "LeadsMeasured")};
}

RecordedTest::By ReadBy(pugi::xml_node node) {
  const auto text = Attribute(node, "By");
  if (text == kByTester) return RecordedTest::By::kTester;
  if (text == kByOperator) return RecordedTest::By::kOperator;
  throw xml::XmlError(
      node, Tr("\"By\" of a recorded test must be \"tester\" or \"operator\", not \"%%1\"", {text}));
}

Reason ReadDoubt(pugi::xml_node node) {
  Reason doubt{Attribute(node, "Code"), {}};
  for (const auto argument : node.children("Argument")) doubt.arguments.push_back(xml::Text(argument));
  return doubt;
}

RecordedTest ReadTest(pugi::xml_node node, std::size_t testers) {
  RecordedTest test;
  test.element = xml::NumberAttribute(node, "Element");
  test.testId = xml::NumberAttribute(node, "TestID");
  test.settings = xml::NumberAttribute(node, "Settings");
  test.at = Attribute(node, "At");
  test.status = xml::NumberAttribute(node, "Status");
  test.by = ReadBy(node);
  test.tester = Number(node, "Tester");
  if (test.tester < 0 || static_cast<std::size_t>(test.tester) > testers)
    throw xml::XmlError(node, Tr("tester %%1 of the run is out of range (1 to %%2)",
                                 {std::to_string(test.tester), std::to_string(testers)}));
  for (const auto part : node.children()) {
    if (xml::IsElement(part, "Said")) test.said.push_back(xml::Text(part));
    if (xml::IsElement(part, "Recorded"))
      test.recorded =
          RecordedReading{Attribute(part, "Value"), Attribute(part, "Unit"), Attribute(part, "Flags")};
    if (xml::IsElement(part, "Judged"))
      test.judged.push_back({Attribute(part, "Standard"), Attribute(part, "Description"),
                             Attribute(part, "Unit"), Attribute(part, "Low"), Attribute(part, "High"),
                             Number(part, "Status")});
    if (xml::IsElement(part, "Doubt")) test.doubts.push_back(ReadDoubt(part));
  }
  return test;
}

// --- writing

void WriteTakes(const RecordedTakes& takes, pugi::xml_node run) {
  std::string elements;
  for (const auto id : takes.elements) elements += (elements.empty() ? "" : " ") + std::to_string(id);
  xml::AddAttribute(run.append_child("Takes"), "Elements", elements);
}

void WriteTester(const RecordedTester& tester, pugi::xml_node run) {
  auto node = run.append_child("Tester");
  xml::AddAttribute(node, "Type", tester.type);
  xml::AddAttribute(node, "Serial", tester.serial);
  xml::AddAttribute(node, "Firmware", tester.firmware);
  xml::AddAttribute(node, "Leads", std::to_string(tester.leads));
  if (!tester.leadsMeasured.empty()) xml::AddAttribute(node, "LeadsMeasured", tester.leadsMeasured);
}

void WriteLimit(const RecordedLimit& limit, pugi::xml_node test) {
  auto node = test.append_child("Judged");
  xml::AddAttribute(node, "Standard", limit.standard);
  xml::AddAttribute(node, "Description", limit.description);
  xml::AddAttribute(node, "Unit", limit.unit);
  if (!limit.low.empty()) xml::AddAttribute(node, "Low", limit.low);
  if (!limit.high.empty()) xml::AddAttribute(node, "High", limit.high);
  xml::AddAttribute(node, "Status", std::to_string(limit.status));
}

void WriteDoubt(const Reason& doubt, pugi::xml_node test) {
  auto node = test.append_child("Doubt");
  xml::AddAttribute(node, "Code", doubt.code);
  for (const auto& argument : doubt.arguments) xml::SetText(node.append_child("Argument"), argument);
}

void WriteTest(const RecordedTest& test, pugi::xml_node run) {
  auto node = run.append_child("Test");
  xml::AddAttribute(node, "Element", std::to_string(test.element));
  xml::AddAttribute(node, "TestID", std::to_string(test.testId));
  xml::AddAttribute(node, "Settings", std::to_string(test.settings));
  xml::AddAttribute(node, "At", test.at);
  xml::AddAttribute(node, "Status", std::to_string(test.status));
  xml::AddAttribute(node, "By", test.by == RecordedTest::By::kTester ? kByTester : kByOperator);
  if (test.tester > 0) xml::AddAttribute(node, "Tester", std::to_string(test.tester));
  for (const auto& line : test.said) xml::SetText(node.append_child("Said"), line);
  if (test.recorded) {
    auto recorded = node.append_child("Recorded");
    xml::AddAttribute(recorded, "Value", test.recorded->value);
    xml::AddAttribute(recorded, "Unit", test.recorded->unit);
    xml::AddAttribute(recorded, "Flags", test.recorded->flags);
  }
  for (const auto& limit : test.judged) WriteLimit(limit, node);
  for (const auto& doubt : test.doubts) WriteDoubt(doubt, node);
}

// --- the digest

/// Digests what a run's node holds: each text with its length and depth, so that no two different nodes give
/// the same input.
class ContentDigest final : public pugi::xml_tree_walker {
 public:
  std::string Hex() { return digest_.Hex(); }

  bool begin(pugi::xml_node& run) override {
    for (const auto attribute : run.attributes())
      if (!xml::SameName(attribute.name(), run_tags::kDigest)) Add(attribute);
    return true;
  }
  bool for_each(pugi::xml_node& node) override {
    if (node.type() == pugi::node_element) {
      digest_.Add(std::to_string(depth()));
      Add('<', node.name());
      for (const auto attribute : node.attributes()) Add(attribute);
    } else if ((node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata) &&
               std::string_view(node.value()).find_first_not_of(" \t\r\n") != std::string_view::npos) {
      digest_.Add(std::to_string(depth()));
      Add('-', node.value());
    }
    return true;
  }

 private:
  void Add(char kind, std::string_view value) {
    digest_.Add(kind + std::to_string(value.size()) + ':');
    digest_.Add(value);
  }
  void Add(pugi::xml_attribute attribute) {
    Add('@', attribute.name());
    Add('=', attribute.value());
  }

  Sha256Digest digest_;
};

}  // namespace

RunRecord ReadRun(pugi::xml_node node) {
  RunRecord run;
  run.number = xml::NumberAttribute(node, "Number");
  run.begun = Attribute(node, "Begun");
  run.ended = Attribute(node, "Ended");
  run.end = ReadEnd(node);
  run.by = Attribute(node, "Operator");
  run.simulated = Flag(node, "Simulated");
  run.timeScale = ReadTimeScale(node);
  run.port = Attribute(node, "Port");
  run.program = Attribute(node, "Program");
  const auto equipment = node.child("Equipment");
  run.equipment = {Attribute(equipment, "Asset"), Attribute(equipment, "Serial"),
                   Attribute(equipment, "Maker"), Attribute(equipment, "Model")};
  for (const auto part : node.children()) {
    if (xml::IsElement(part, "Takes")) run.steps.emplace_back(ReadTakes(part));
    if (xml::IsElement(part, "Tester")) run.testers.push_back(ReadTester(part));
    if (xml::IsElement(part, "Test")) run.steps.emplace_back(ReadTest(part, run.testers.size()));
  }
  return run;
}

pugi::xml_node WriteRun(const RunRecord& run, pugi::xml_node parent) {
  auto node = parent.append_child(run_tags::kRun);
  xml::AddAttribute(node, "Number", std::to_string(run.number));
  xml::AddAttribute(node, "Begun", run.begun);
  if (run.end != RunRecord::End::kNone) {
    xml::AddAttribute(node, "Ended", run.ended);
    xml::AddAttribute(node, "End", EndText(run.end));
  }
  xml::AddAttribute(node, "Operator", run.by);
  xml::AddAttribute(node, "Simulated", run.simulated ? "1" : "0");
  xml::AddAttribute(node, "TimeScale", ExactNumberText(run.timeScale));
  xml::AddAttribute(node, "Port", run.port);
  xml::AddAttribute(node, "Program", run.program);
  auto equipment = node.append_child("Equipment");
  xml::AddAttribute(equipment, "Asset", run.equipment.asset);
  xml::AddAttribute(equipment, "Serial", run.equipment.serial);
  xml::AddAttribute(equipment, "Maker", run.equipment.maker);
  xml::AddAttribute(equipment, "Model", run.equipment.model);
  for (const auto& tester : run.testers) WriteTester(tester, node);
  for (const auto& step : run.steps) {
    if (const auto* takes = std::get_if<RecordedTakes>(&step))
      WriteTakes(*takes, node);
    else
      WriteTest(std::get<RecordedTest>(step), node);
  }
  return node;
}

bool IsIntact(pugi::xml_node run) { return run.attribute(run_tags::kDigest).value() == DigestOf(run); }

std::vector<bool> GapsAfter(pugi::xml_node section) {
  std::vector<bool> gaps;
  for (auto run = section.child(run_tags::kRun); run; run = run.next_sibling(run_tags::kRun)) {
    const auto next = run.next_sibling(run_tags::kRun);
    const auto* named =
        next ? next.attribute(run_tags::kBefore).value() : section.attribute(run_tags::kLast).value();
    gaps.push_back(std::string_view(named) != run.attribute(run_tags::kDigest).value());
  }
  return gaps;
}

std::string DigestOf(pugi::xml_node run) {
  ContentDigest digest;
  run.traverse(digest);
  return "sha256:" + digest.Hex();
}

}  // namespace host::document
