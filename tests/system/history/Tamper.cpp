#include "tests/system/history/Tamper.h"

#include <algorithm>
#include <map>
#include <pugixml.hpp>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace history {
namespace {

template <class Things>
auto* Chosen(Things& things, std::uint32_t which) {
  return things.empty() ? nullptr : &things[which % things.size()];
}

pugi::xml_node ElementIn(const pugi::xml_document& xml, int id) {
  return xml.find_node([id](const pugi::xml_node& node) {
    return std::string_view(node.name()) == "TestElement" && node.attribute("ID").as_int() == id;
  });
}

std::vector<pugi::xml_node> Below(pugi::xml_node top, pugi::xml_node_type type, bool withTop) {
  struct Walker final : pugi::xml_tree_walker {
    bool for_each(pugi::xml_node& node) override {
      all.push_back(node);
      return true;
    }
    std::vector<pugi::xml_node> all;
  } walker;
  top.traverse(walker);
  auto all = std::move(walker.all);
  if (withTop) all.insert(all.begin(), top);
  std::erase_if(all, [type](const pugi::xml_node& node) { return node.type() != type; });
  return all;
}

bool Set(pugi::xml_attribute attribute, const std::string& value) {
  if (!attribute || attribute.value() == value) return false;
  return attribute.set_value(value.c_str());
}

bool SetText(pugi::xml_node node, const std::string& value) {
  if (!node || node.text().get() == value) return false;
  return node.text().set(value.c_str());
}

/// Runs are removed or reordered: the last record of an element may be another one.
void OrderRecordsAnew(DocumentState& document) {
  std::map<int, Record> last;
  for (auto& [id, record] : document.records) {
    auto& past = document.past[id];
    past.push_back(record);
    std::erase_if(past, [&](const Record& one) { return PlaceOf(one, document) < 0; });
    std::stable_sort(past.begin(), past.end(), [&](const Record& one, const Record& other) {
      return PlaceOf(one, document) < PlaceOf(other, document);
    });
    if (past.empty()) continue;
    last[id] = past.back();
    // The saved result is from another run, and may look the same.
    if (last[id].run != record.run) last[id].resultChanges = 2;
    past.pop_back();
  }
  document.records = std::move(last);
}

bool ChangeResult(const pugi::xml_document& xml, const Tampering& tampering, DocumentState& document) {
  auto result = ElementIn(xml, tampering.element).child("ResultItem");
  const auto record = document.records.find(tampering.element);
  if (!result || record == document.records.end()) return false;
  bool changed = false;
  const std::string status = result.child("Status").text().get();
  // The reading is irrelevant unless something passed or failed.
  const bool matters = tampering.kind != Tampering::Kind::kResultValue || status == "1" || status == "2";
  if (tampering.kind == Tampering::Kind::kResultRemoved)
    changed = result.parent().remove_child(result);
  else if (tampering.kind == Tampering::Kind::kResultStatus)
    changed = SetText(result.child("Status"), tampering.value);
  else
    changed = SetText(result.child("Measurement").child("Value"), tampering.value);
  if (changed) record->second.resultChanges += matters ? 1 : 2;
  return changed;
}

bool ChangeRun(pugi::xml_node run, int number, const Tampering& tampering, DocumentState& document) {
  if (tampering.kind == Tampering::Kind::kRunAttribute) {
    std::vector<pugi::xml_attribute> attributes;
    for (const auto node : Below(run, pugi::node_element, true))
      for (const auto attribute : node.attributes()) attributes.push_back(attribute);
    const auto chosen = *Chosen(attributes, tampering.which);
    if (!Set(chosen, tampering.value)) return false;
  } else if (tampering.kind == Tampering::Kind::kRunText) {
    auto texts = Below(run, pugi::node_pcdata, false);
    auto* chosen = Chosen(texts, tampering.which);
    if (!chosen || chosen->value() == tampering.value) return false;
    chosen->set_value(tampering.value.c_str());
  } else {
    auto nodes = Below(run, pugi::node_element, false);
    auto* chosen = Chosen(nodes, tampering.which);
    if (!chosen) return false;
    chosen->parent().remove_child(*chosen);
  }
  document.changedRuns.insert(number);
  return true;
}

bool ChangeRuns(const pugi::xml_document& xml, const Tampering& tampering, DocumentState& document) {
  auto section = xml.document_element().child("Runs");
  std::vector<pugi::xml_node> runs(section.children("Run").begin(), section.children("Run").end());
  if (runs.empty()) return false;
  auto place = tampering.which % runs.size();
  auto& inFile = document.inFile;
  if (tampering.kind == Tampering::Kind::kRunRemoved) {
    section.remove_child(runs[place]);
    inFile.erase(inFile.begin() + static_cast<std::ptrdiff_t>(place));
    OrderRecordsAnew(document);
    return true;
  }
  if (tampering.kind != Tampering::Kind::kRunsSwapped)
    return ChangeRun(runs[place], inFile[place], tampering, document);
  if (runs.size() < 2) return false;
  place %= runs.size() - 1;
  section.insert_move_before(runs[place + 1], runs[place]);
  std::swap(inFile[place], inFile[place + 1]);
  OrderRecordsAnew(document);
  return true;
}

bool ChangeLimit(const pugi::xml_document& xml, const Tampering& tampering, DocumentState& document) {
  std::vector<pugi::xml_node> limits;
  for (const auto standard : ElementIn(xml, tampering.element).child("ExpectedResult").children("Standard"))
    for (const auto limit : standard.children("Limit")) limits.push_back(limit);
  auto* chosen = Chosen(limits, tampering.which);
  auto* element = document.plan.Find(tampering.element);
  if (!chosen || !element) return false;
  const auto attribute = chosen->attribute("High") ? chosen->attribute("High") : chosen->attribute("Low");
  const bool ofBound = tampering.kind == Tampering::Kind::kLimitBound;
  const char* other = tampering.kind == Tampering::Kind::kLimitKey ? "Key" : "Unit";
  if (!Set(ofBound ? attribute : chosen->attribute(other), tampering.value)) return false;
  const auto standard = chosen->parent();
  const auto bound = [&](const char* name) { return Decimal::Parsed(chosen->attribute(name).value()); };
  const bool marked = element->recordOnly;
  Limit limit{standard.attribute("Name").value(),
              standard.attribute("Description").value(),
              bound("Low"),
              bound("High"),
              chosen->attribute("Unit").value(),
              !ofBound};
  for (const auto& known : element->limits)
    if (known.standard == limit.standard && known.description == limit.description)
      limit.foreign = limit.foreign || known.foreign;
  element->SetLimit(limit);
  element->recordOnly = marked;
  return true;
}

bool ChangeOptions(const pugi::xml_document& xml, const Tampering& tampering, DocumentState& document) {
  auto* element = document.plan.Find(tampering.element);
  const auto settings =
      ElementIn(xml, tampering.element).child("Configuration").child("PlugInData").child("KELDConfig");
  if (!element || !Set(settings.attribute("Options"), tampering.value)) return false;
  element->options = std::stoi(tampering.value);
  return true;
}

bool ChangeEquipment(const pugi::xml_document& xml, const Tampering& tampering, DocumentState& document) {
  static constexpr const char* kNames[] = {"Asset", "Serial", "Maker", "Model"};
  const auto field = tampering.which % 4;
  document.plan.equipment[field] = tampering.value;
  return Set(xml.document_element().child("Equipment").attribute(kNames[field]), tampering.value);
}

bool Change(const pugi::xml_document& xml, const Tampering& tampering, DocumentState& document) {
  switch (tampering.kind) {
    case Tampering::Kind::kReformat:
      return true;
    case Tampering::Kind::kResultStatus:
    case Tampering::Kind::kResultValue:
    case Tampering::Kind::kResultRemoved:
      return ChangeResult(xml, tampering, document);
    case Tampering::Kind::kLimitBound:
    case Tampering::Kind::kLimitUnit:
    case Tampering::Kind::kLimitKey:
      return ChangeLimit(xml, tampering, document);
    case Tampering::Kind::kOptions:
      return ChangeOptions(xml, tampering, document);
    case Tampering::Kind::kEquipment:
      return ChangeEquipment(xml, tampering, document);
    default:
      return ChangeRuns(xml, tampering, document);
  }
}

/// The next operations depend on the runs in the file: their kind, and the identifiers that they name.
void NoteRuns(const pugi::xml_document& xml, DocumentState& document) {
  document.simulated.reset();
  document.anySimulated = false;
  document.highestTaken = 0;
  for (const auto run : xml.document_element().child("Runs").children("Run")) {
    const bool simulated = std::string_view(run.attribute("Simulated").value()) == "1";
    document.simulated = document.simulated.value_or(simulated);
    document.anySimulated = document.anySimulated || simulated;
    for (const auto takes : run.children("Takes")) {
      std::istringstream identifiers(takes.attribute("Elements").value());
      for (int id = 0; identifiers >> id;) document.highestTaken = std::max(document.highestTaken, id);
    }
    for (const auto test : run.children("Test"))
      document.highestTaken = std::max(document.highestTaken, test.attribute("Element").as_int());
  }
}

}  // namespace

bool Tamper(const std::filesystem::path& file, const Tampering& tampering, DocumentState& document) {
  pugi::xml_document xml;
  if (!xml.load_file(file.c_str(), pugi::parse_full)) throw std::runtime_error("no XML: " + file.string());
  if (!Change(xml, tampering, document)) return false;
  NoteRuns(xml, document);
  document.tampered = true;
  const bool anew = tampering.kind == Tampering::Kind::kReformat;
  return xml.save_file(file.c_str(), anew ? "\t" : "  ",
                       anew && tampering.which % 2 ? pugi::format_raw : pugi::format_indent);
}

}  // namespace history
