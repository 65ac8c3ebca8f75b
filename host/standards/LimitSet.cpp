#include "host/standards/LimitSet.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>
#include <unordered_set>

#include "host/base/Files.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"
#include "host/xml/XmlDocument.h"
#include "host/xml/XmlNode.h"

namespace host::standards {
namespace {

constexpr char kSetSource[] = "orvik-bench";
constexpr char kSet[] = "LimitSet";
constexpr char kFigure[] = "Figure";
constexpr char kLeftOut[] = "LeftOut";
constexpr std::int32_t kSetVersion = 1;

std::string RequiredText(pugi::xml_node node, const char* name) {
  std::string text = node.attribute(name).value();
  if (text.empty())
    throw xml::XmlError(node, Tr("\"%%1\" needs the attribute \"%%2\"", {node.name(), std::string(name)}));
  return text;
}

/// Refuses unknown names: a misspelt bound must not count as a missing one.
void CheckNames(pugi::xml_node node, std::initializer_list<std::string_view> attributes,
                std::initializer_list<std::string_view> elements) {
  std::unordered_set<std::string_view> seen;
  for (const auto attribute : node.attributes()) {
    const std::string_view name = attribute.name();
    if (std::find(attributes.begin(), attributes.end(), name) == attributes.end())
      throw xml::XmlError(
          node, Tr("the attribute \"%%1\" of \"%%2\" is not known", {attribute.name(), node.name()}));
    if (!seen.insert(name).second)
      throw xml::XmlError(
          node, Tr("the attribute \"%%1\" of \"%%2\" is given twice", {attribute.name(), node.name()}));
  }
  for (const auto child : node.children()) {
    const std::string_view name = child.name();
    if (child.type() == pugi::node_element &&
        std::find(elements.begin(), elements.end(), name) == elements.end())
      throw xml::XmlError(child, Tr("the element \"%%1\" is not known here", {child.name()}));
  }
  if (xml::Text(node).find_first_not_of(" \t\r\n") != std::string::npos)
    throw xml::XmlError(node, Tr("\"%%1\" holds text; a set is made of attributes", {node.name()}));
}

std::vector<std::int32_t> TestsOf(pugi::xml_node node) {
  const auto text = RequiredText(node, "Tests");
  std::vector<std::int32_t> tests;
  std::size_t start = 0;
  while ((start = text.find_first_not_of(" ,\t\r\n", start)) != std::string::npos) {
    const auto end = std::min(text.find_first_of(" ,\t\r\n", start), text.size());
    const auto word = text.substr(start, end - start);
    const auto number = WholeNumber(word);
    if (!number || *number < 1)
      throw xml::XmlError(node, Tr("\"%%1\" is not a test; give identifiers of the catalogue", {word}));
    tests.push_back(*number);
    start = end;
  }
  if (tests.empty()) throw xml::XmlError(node, Tr("the figure names no test"));
  return tests;
}

std::string BoundOf(pugi::xml_node node, const char* name) {
  std::string text = node.attribute(name).value();
  if (node.attribute(name) && !FiniteNumber(text))
    throw xml::XmlError(
        node, Tr("the bound \"%%1\" is not a number; write for example 0.3 (with a point)", {text}));
  return text;
}

LimitFigure FigureOf(pugi::xml_node node) {
  CheckNames(node, {"Tests", "Low", "High", "Unit", "Condition", "Source"}, {});
  LimitFigure figure{TestsOf(node),
                     BoundOf(node, "Low"),
                     BoundOf(node, "High"),
                     RequiredText(node, "Unit"),
                     node.attribute("Condition").value(),
                     RequiredText(node, "Source")};
  if (figure.low.empty() && figure.high.empty())
    throw xml::XmlError(node, Tr("the figure has neither \"Low\" nor \"High\"; give at least one bound"));
  if (!figure.low.empty() && !figure.high.empty() && *FiniteNumber(figure.low) > *FiniteNumber(figure.high))
    throw xml::XmlError(node, Tr("the lower bound is above the upper bound; swap them"));
  return figure;
}

LimitSet SetOf(pugi::xml_node root) {
  if (std::string_view(root.name()) != kSet) throw xml::XmlError(root, Tr("this is not a set of limits"));
  const auto version = xml::NumberAttribute(root, "Version");
  if (version > kSetVersion)
    throw xml::XmlError(root, Tr("the set was written for a newer version of this program (format %%1, this "
                                 "program reads %%2); use that version",
                                 {std::to_string(version), std::to_string(kSetVersion)}));
  if (version < 1)
    throw xml::XmlError(root,
                        Tr("format %%1 of sets of limits does not exist; use 1", {std::to_string(version)}));
  CheckNames(root, {"Version", "Standard", "Edition", "Class", "Type"}, {kFigure, kLeftOut});
  LimitSet set;
  set.standard = RequiredText(root, "Standard");
  set.edition = RequiredText(root, "Edition");
  set.equipmentClass = root.attribute("Class").value();
  set.type = root.attribute("Type").value();
  std::unordered_set<std::int32_t> known;
  for (const auto node : root.children(kFigure)) {
    set.figures.push_back(FigureOf(node));
    for (const auto test : set.figures.back().tests) {
      if (!known.insert(test).second)
        throw xml::XmlError(
            node, Tr("test %%1 has a figure already; give each test one figure", {std::to_string(test)}));
    }
  }
  if (set.figures.empty()) throw xml::XmlError(root, Tr("the set has no figures"));
  for (const auto node : root.children(kLeftOut)) {
    CheckNames(node, {"What", "Why"}, {});
    set.leftOut.push_back({RequiredText(node, "What"), RequiredText(node, "Why")});
  }
  return set;
}

[[noreturn]] void Refuse(const std::filesystem::path& file, std::size_t line, const std::string& reason) {
  throw orvik::HostError(orvik::HostError::kPathError, kSetSource,
                         Tr("%%1, line %%2: %%3", {file.string(), std::to_string(line), reason}));
}

}  // namespace

std::string LimitSet::Description() const {
  auto text = edition;
  if (!equipmentClass.empty()) text += ", class " + equipmentClass;
  if (!type.empty()) text += ", type " + type;
  return text;
}

const LimitFigure* LimitSet::FigureFor(std::int32_t testId) const {
  for (const auto& figure : figures) {
    if (std::find(figure.tests.begin(), figure.tests.end(), testId) != figure.tests.end()) return &figure;
  }
  return nullptr;
}

LimitSet ReadLimitSet(const std::filesystem::path& file) {
  const auto text = ReadFile(file);
  pugi::xml_document document;
  if (const auto fault = xml::Parse(text, document); !fault.reason.empty())
    Refuse(file, xml::LineOf(text, fault.offset), fault.reason);
  if (const auto bad = InvalidUtf8(text); bad != std::string::npos)
    Refuse(file, xml::LineOf(text, bad), Tr("there are bytes that are not UTF-8 text"));
  try {
    auto set = SetOf(document.document_element());
    set.file = file;
    return set;
  } catch (const xml::XmlError& error) {
    Refuse(file, xml::LineOf(text, static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, error.Offset()))),
           error.Description());
  }
}

}  // namespace host::standards
