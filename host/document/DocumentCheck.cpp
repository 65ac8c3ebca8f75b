#include "host/document/DocumentCheck.h"

#include <algorithm>
#include <string_view>

#include "host/base/Text.h"
#include "host/base/Tr.h"
#include "host/document/Document.h"
#include "host/document/ElementsCheck.h"
#include "host/document/KnownParts.h"
#include "host/document/RunsCheck.h"
#include "host/document/StandardsCheck.h"
#include "host/xml/XmlDocument.h"
#include "host/xml/XmlEncoding.h"
#include "host/xml/XmlNode.h"

namespace host::document {
namespace {

void CheckEncoding(const xml::Decoded& decoded, Findings& findings) {
  const auto& [text, encoding, fault] = decoded;
  if (fault.reason.empty()) {
    if (!encoding.empty())
      findings.Note(0, Tr("the file is in the encoding \"%%1\"; saving writes UTF-8", {encoding}));
    return;
  }
  findings.Wrong(fault.offset, fault.reason);
  if (!encoding.empty()) return;
  // One finding for each line.
  auto bad = InvalidUtf8(text, std::min(text.find('\n', fault.offset), text.size()));
  for (; bad != std::string_view::npos; bad = InvalidUtf8(text, std::min(text.find('\n', bad), text.size())))
    findings.Wrong(bad, fault.reason);
}

void CheckVersion(pugi::xml_node root, Findings& findings) {
  const std::string text = root.attribute("Version").value();
  const auto version = WholeNumber(text);
  if (!version)
    findings.Wrong(root, Tr("the attribute \"Version\" is missing or no whole number; it tells the format"));
  else if (*version > Document::kVersion)
    findings.Wrong(root, Tr("the document was written by a newer version of this program (format %%1, this "
                            "program reads %%2); use that version",
                            {text, std::to_string(Document::kVersion)}));
  else if (*version < 1)
    findings.Wrong(root, Tr("there is no document format %%1", {text}));
}

/// The numbers of the testers that the document names.
std::set<std::int32_t> CheckInstruments(pugi::xml_node instruments, Findings& findings) {
  std::set<std::int32_t> numbers;
  NoteUnknown(instruments, {}, {"Instrument"}, findings);
  for (const auto node : instruments.children("Instrument")) {
    NoteUnknown(node, {"Index", "TypeName", "MTIType", "SerialNumber", "FirmwareVersion"}, {"Property"},
                findings);
    const auto number = WholeNumber(node.attribute("Index").value());
    if (!number)
      findings.Wrong(node, Tr("the tester's \"Index\" is missing or no whole number"));
    else if (!numbers.insert(*number).second)
      findings.Wrong(node, Tr("the index %%1 is used for two testers", {std::to_string(*number)}));
  }
  return numbers;
}

void CheckRoot(pugi::xml_node root, Findings& findings) {
  NoteUnknown(root, {"Version"}, kDocumentSections, findings);
  for (const auto section : kDocumentSections) {
    const auto first = root.child(std::string(section).c_str());
    for (auto next = first.next_sibling(first.name()); first && next; next = next.next_sibling(first.name()))
      findings.Wrong(next, Tr("there is a second \"%%1\"; the first is in line %%2",
                              {first.name(), findings.LineOf(first)}));
  }
  for (const auto stray : root.children("TestElement"))
    findings.Wrong(stray,
                   Tr("the element stands outside \"Elements\" and is not part of the document's tests"));
}

}  // namespace

std::vector<Finding> CheckDocument(const std::string& bytes, elements::ElementFactory& factory) {
  const auto decoded = xml::Decode(bytes);
  const auto& text = decoded.text;
  Findings findings(text);
  CheckEncoding(decoded, findings);
  if (!decoded.fault.reason.empty() && !decoded.encoding.empty()) return findings.InOrder();
  pugi::xml_document xml;
  const auto fault = xml::ParseAsFarAsPossible(text, xml);
  if (!fault.reason.empty())
    findings.Wrong(fault.offset, Tr("%%1; nothing behind this place could be looked at", {fault.reason}));
  const auto root = xml.document_element();
  if (!root) return findings.InOrder();
  if (std::string_view(root.name()) != "OrvikDocument") {
    findings.Wrong(root, Tr("this is no test document; its outermost element is \"OrvikDocument\""));
    return findings.InOrder();
  }
  CheckVersion(root, findings);
  CheckRoot(root, findings);
  NoteUnknown(root.child("Equipment"), {"Asset", "Serial", "Maker", "Model", "Comment"}, {}, findings);
  CheckStandards(root.child("Standards"), {}, findings);
  const auto testers = CheckInstruments(root.child("Instruments"), findings);
  CheckRuns(root.child("Runs"), findings);
  ElementsCheck(factory, testers, findings).Look(root.child("Elements"), !fault.reason.empty());
  return findings.InOrder();
}

}  // namespace host::document
