#include "host/document/ElementsCheck.h"

#include "OrvikTypeLib/Codes.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"
#include "host/document/Findings.h"
#include "host/document/KnownParts.h"
#include "host/document/StandardsCheck.h"
#include "host/elements/ElementTags.h"
#include "host/elements/Nesting.h"
#include "host/xml/XmlNode.h"

namespace host::document {
namespace {

std::string IdentifierOf(pugi::xml_node element) { return element.attribute(elements::tags::kID).value(); }

/// The saved elements below `top` in document order. Nesting of any depth takes no stack.
template <class Visit>
void Walk(pugi::xml_node top, Visit visit) {
  auto element = top;
  while (true) {
    auto next = element.child(elements::tags::kTestElement);
    while (!next && element != top) {
      next = element.next_sibling(elements::tags::kTestElement);
      if (!next) element = element.parent();
    }
    if (!next) return;
    element = next;
    visit(element);
  }
}

}  // namespace

void ElementsCheck::Look(pugi::xml_node elements, bool cut) {
  NoteUnknown(elements, {}, {elements::tags::kTestElement}, findings_);
  pugi::xml_node last;
  Walk(elements, [&](pugi::xml_node element) { last = element; });
  Walk(elements, [&](pugi::xml_node element) {
    if (!cut || element != last) LookAt(element, elements);
  });
}

void ElementsCheck::LookAt(pugi::xml_node element, pugi::xml_node top) {
  CheckIdentifier(element);
  CheckPlace(element, top);
  const auto kind = KindOf(element);
  if (!kind.fault.empty()) {
    const auto result = !kind.readable && element.child(elements::tags::kResultItem)
                            ? Tr("; nobody can read its result")
                            : std::string();
    findings_.Wrong(element, Tr("element %%1: %%2%%3", {IdentifierOf(element), kind.fault, result}));
  }
  CheckParts(element);
  for (const auto limits : element.children(elements::tags::kExpectedResult))
    CheckStandards(limits, kind.unit, findings_);
  for (const auto result : element.children(elements::tags::kResultItem)) CheckResult(result, kind.sequence);
}

void ElementsCheck::CheckIdentifier(pugi::xml_node element) {
  const auto text = IdentifierOf(element);
  const auto number = WholeNumber(text);
  if (!number || *number < 1) {
    findings_.Wrong(element, text.empty()
                                 ? Tr("the element has no identifier; give it one of its own in \"ID\"")
                                 : Tr("the identifier \"%%1\" is no whole number from 1 on", {text}));
    return;
  }
  const auto [first, added] = identifiers_.try_emplace(*number, element);
  if (!added)
    findings_.Wrong(element, Tr("the identifier %%1 is used twice; first in line %%2",
                                {text, findings_.LineOf(first->second)}));
}

void ElementsCheck::CheckPlace(pugi::xml_node element, pugi::xml_node top) {
  const auto parent = element.parent();
  if (parent == top) return;
  const auto kind = KindOf(parent);
  if (kind.readable && !kind.sequence)
    findings_.Wrong(element, Tr("element %%1 stands below element %%2, which is no sequence; it is never run",
                                {IdentifierOf(element), IdentifierOf(parent)}));
  int depth = 0;
  for (auto above = element; above != top && depth <= elements::kDeepestNesting + 1; above = above.parent())
    ++depth;
  // Told once for a branch: at the element that is one too deep.
  if (depth == elements::kDeepestNesting + 1)
    findings_.Wrong(element, Tr("elements are nested more than %%1 levels deep",
                                {std::to_string(elements::kDeepestNesting)}));
}

void ElementsCheck::CheckParts(pugi::xml_node element) {
  NoteUnknown(
      element,
      {elements::tags::kID, elements::tags::kTestID, elements::tags::kPlugInID, elements::tags::kClass},
      {elements::tags::kTestElement, elements::tags::kInformation, elements::tags::kAuxiliary,
       elements::tags::kConfiguration, elements::tags::kExpectedResult, elements::tags::kResultItem},
      findings_);
  for (const auto* part :
       {elements::tags::kInformation, elements::tags::kAuxiliary, elements::tags::kConfiguration,
        elements::tags::kExpectedResult, elements::tags::kResultItem}) {
    const auto first = element.child(part);
    for (auto next = first.next_sibling(part); first && next; next = next.next_sibling(part))
      findings_.Wrong(next, Tr("element %%1 has a second \"%%2\"; the first is in line %%3",
                               {IdentifierOf(element), part, findings_.LineOf(first)}));
  }
  NoteUnknown(element.child(elements::tags::kInformation),
              {elements::tags::kFirstText, elements::tags::kSecondText, elements::tags::kDisplayName}, {},
              findings_);
  const auto auxiliary = element.child(elements::tags::kAuxiliary);
  NoteUnknown(auxiliary, {elements::tags::kPrint, elements::tags::kRecordOnly}, {}, findings_);
  NoteUnknown(element.child(elements::tags::kConfiguration), {}, {elements::tags::kPlugInData}, findings_);
}

void ElementsCheck::CheckResult(pugi::xml_node result, bool sequence) {
  NoteUnknown(result, {elements::tags::kMTI},
              {elements::tags::kStatus, elements::tags::kServiceRecord, elements::tags::kComment,
               elements::tags::kMeasurement},
              findings_);
  if (const auto tester = result.attribute(elements::tags::kMTI)) {
    const auto number = WholeNumber(tester.value());
    if (!number || !testers_.contains(*number))
      findings_.Wrong(
          result, Tr("the result names the tester %%1, which the document does not have", {tester.value()}));
  }
  CheckStatus(result);
  for (const auto measurement : result.children(elements::tags::kMeasurement))
    CheckMeasurement(measurement, sequence);
}

void ElementsCheck::CheckMeasurement(pugi::xml_node measurement, bool sequence) {
  NoteUnknown(measurement, {"Flags"}, {"Description", "Value", "Unit", "Status"}, findings_);
  CheckStatus(measurement);
  const auto value = xml::Text(measurement.child("Value"));
  // A sequence's value is a list of its children's.
  if (!sequence && !value.empty() && !FiniteNumber(value))
    findings_.Wrong(
        measurement.child("Value"),
        Tr("the value \"%%1\" is no number; it would be read as the number it begins with", {value}));
  if (!sequence && value.empty() && !xml::Text(measurement.child(elements::tags::kUnit)).empty())
    findings_.Wrong(measurement, Tr("the reading has a unit and no value; it would be read as 0"));
}

void ElementsCheck::CheckStatus(pugi::xml_node holder) {
  const auto node = holder.child(elements::tags::kStatus);
  if (!node) return;
  const auto text = xml::Text(node);
  const auto status = WholeNumber(text);
  if (!status || *status < orvik::ResultStatus::kNotTested || *status > orvik::ResultStatus::kAborted)
    findings_.Wrong(node,
                    Tr("the status \"%%1\" is not one of 0 (not tested), 1 (passed), 2 (failed), 3 (not "
                       "applicable) and 4 (aborted)",
                       {text}));
}

elements::TestKind ElementsCheck::KindOf(pugi::xml_node element) {
  const std::string test = element.attribute(elements::tags::kTestID).value();
  if (const auto number = WholeNumber(test))
    return kinds_.Of(element.attribute(elements::tags::kPlugInID).value(), *number,
                     element.attribute(elements::tags::kClass).value());
  elements::TestKind none;
  none.fault = test.empty() ? Tr("it names no test of the catalogue (\"TestID\")")
                            : Tr("the test \"%%1\" is no whole number", {test});
  return none;
}

}  // namespace host::document
