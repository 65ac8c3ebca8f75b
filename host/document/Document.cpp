#include "host/document/Document.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "host/base/Tr.h"
#include "host/document/Host.h"
#include "host/document/RunXml.h"
#include "host/document/SavedElements.h"
#include "host/elements/ElementFactory.h"
#include "host/elements/ElementTags.h"
#include "host/elements/Nesting.h"
#include "host/elements/TestContainer.h"
#include "host/instruments/InstrumentColl.h"
#include "host/xml/XmlDocument.h"
#include "host/xml/XmlEncoding.h"
#include "host/xml/XmlNode.h"

namespace host::document {
namespace {

using orvik::HostError;

constexpr char kDocumentSource[] = "orvik-bench";
constexpr char kRoot[] = "OrvikDocument";
constexpr char kVersionAttribute[] = "Version";
constexpr char kEquipment[] = "Equipment";
constexpr char kAsset[] = "Asset";
constexpr char kSerial[] = "Serial";
constexpr char kMaker[] = "Maker";
constexpr char kModel[] = "Model";
constexpr char kComment[] = "Comment";
constexpr char kStandardsNode[] = "Standards";
constexpr char kInstrumentsNode[] = "Instruments";
constexpr char kElements[] = "Elements";

/// A tag that no file can hold, and how it begins when it is written; what follows depends on the format.
constexpr char kNoName[] = "\x01";
constexpr std::string_view kPlaceOfElements = "<\x01";

[[noreturn]] void RefuseDocument(const std::string& reason) {
  throw HostError(HostError::kInvalidArgument, kDocumentSource, reason);
}

void CheckVersion(pugi::xml_node root) {
  if (std::string_view(root.name()) != kRoot) throw xml::XmlError(root, Tr("this is no test document"));
  const auto version = xml::NumberAttribute(root, kVersionAttribute);
  if (version > Document::kVersion)
    throw xml::XmlError(root,
                        Tr("the document was written by a newer version of this program (format %%1, this "
                           "program reads %%2); use that version",
                           {std::to_string(version), std::to_string(Document::kVersion)}));
  if (version < 1)
    throw xml::XmlError(root, Tr("there is no document format %%1", {std::to_string(version)}));
}

std::shared_ptr<orvik::IXmlNode> Wrapped(const std::shared_ptr<pugi::xml_document>& xml,
                                         pugi::xml_node node) {
  return xml::XmlNode::Create(xml, node);
}

}  // namespace

Document::Document(std::shared_ptr<Host> host, DocumentFile file)
    : host_(std::move(host)), file_(std::move(file)) {
  BeginEmpty();
}

void Document::BeginEmpty() {
  standards_ = orvik::As<orvik::IStandardColl>(host_->CreateObject(orvik::HostClasses::kStandardColl));
  instruments_ = std::make_shared<instruments::InstrumentColl>();
  elements_ = std::make_shared<elements::TestContainer>(host_->Elements());
}

std::shared_ptr<Document> Document::Create(std::shared_ptr<Host> host, const std::filesystem::path& file) {
  return std::make_shared<Document>(std::move(host), DocumentFile::New(file));
}

std::shared_ptr<Document> Document::Open(std::shared_ptr<Host> host, const std::filesystem::path& file,
                                         DocumentFile::Use use) {
  auto opened = DocumentFile::Existing(file, use);
  auto document = std::make_shared<Document>(std::move(host), std::move(opened));
  document->Load();
  return document;
}

std::shared_ptr<orvik::ITestContainer> Document::Elements() const { return elements_; }

void Document::MoveTo(const std::filesystem::path& file) { file_ = DocumentFile::New(file); }

void Document::RefuseFile(std::ptrdiff_t offset, const std::string& reason) const {
  auto place = Path().string();
  if (offset >= 0) {
    // Parsing has changed the text in memory.
    const auto text = xml::Decode(file_.Read()).text;
    place = Tr("%%1, line %%2", {place, std::to_string(xml::LineOf(text, static_cast<std::size_t>(offset)))});
  }
  throw HostError(HostError::kPathError, kDocumentSource, Tr("%%1: %%2", {place, reason}));
}

void Document::Require(const xml::Fault& fault) const {
  if (!fault.reason.empty()) RefuseFile(static_cast<std::ptrdiff_t>(fault.offset), fault.reason);
}

void Document::Load() {
  auto decoded = xml::Decode(file_.Read());
  Require(decoded.fault);
  const auto [xml, fault] = xml::ParseInPlace(std::move(decoded.text));
  Require(fault);
  auto& trouble = host_->Elements()->Trouble();
  trouble.Clear();
  try {
    CheckVersion(xml->document_element());
    LoadSections(xml);
  } catch (const xml::XmlError& error) {
    if (trouble.All().empty()) RefuseFile(error.Offset(), error.Description());
  } catch (const HostError& error) {
    if (trouble.All().empty()) RefuseFile(-1, error.Description());
  }
  // The innermost fault is noted first; a plug-in's element may have passed over it.
  if (!trouble.All().empty()) RefuseFile(trouble.All().front().offset, trouble.All().front().reason);
}

void Document::LoadSections(const std::shared_ptr<pugi::xml_document>& xml) {
  const auto root = xml->document_element();
  // Only the first would be read, and the other lost when the document is saved.
  for (const auto* section : {kEquipment, kStandardsNode, kInstrumentsNode, kElements, run_tags::kRuns}) {
    if (const auto second = root.child(section).next_sibling(section))
      throw xml::XmlError(second, Tr("there is a second \"%%1\"; join the two", {section}));
  }
  topLeftovers_.Take(*xml, {}, {kRoot});
  rootLeftovers_.Take(root, {kVersionAttribute},
                      {kEquipment, kStandardsNode, kInstrumentsNode, kElements, run_tags::kRuns});

  const auto equipped = root.child(kEquipment);
  equipment = {equipped.attribute(kAsset).value(), equipped.attribute(kSerial).value(),
               equipped.attribute(kMaker).value(), equipped.attribute(kModel).value()};
  comment = equipped.attribute(kComment).value();
  equipmentLeftovers_.Take(equipped, {kAsset, kSerial, kMaker, kModel, kComment}, {});

  if (const auto standards = root.child(kStandardsNode)) standards_->Load(Wrapped(xml, standards), nullptr);
  instruments_->Load(root.child(kInstrumentsNode));
  runs_.Load(xml, root.child(run_tags::kRuns));
  highestId_ = runs_.HighestElement();

  const auto elements = root.child(kElements);
  elementsLeftovers_.Take(elements, {}, {elements::tags::kTestElement});
  SavedElements saved;
  xml::XmlReference reference(xml);
  for (const auto element : elements.children(elements::tags::kTestElement)) {
    saved.Check(element);
    elements_->AddSaved(reference.To(element));
  }
  // An identifier that a run names is not given again: its record would count for another element.
  highestId_ = std::max(highestId_, saved.HighestId());
}

void Document::Save() {
  const auto text = Text();
  file_.Write(text);
  savedMark_ = MarkOf(text);
}

std::string Document::Text() const {
  auto& trouble = host_->Elements()->Trouble();
  trouble.Clear();
  std::string text, reason;
  try {
    text = WrittenText();
  } catch (const HostError& error) {
    reason = error.Description();
  }
  if (!trouble.All().empty()) reason = trouble.All().front().reason;
  if (!reason.empty()) RefuseDocument(Tr("%%1 was not saved: %%2", {Path().string(), reason}));
  return text;
}

// A few elements after the other, so that a large document is never in memory as a whole tree beside its
// text.
std::string Document::WrittenText() const {
  const auto frame = xml::Write(*Frame());
  if (elements_->Count() == 0) return frame;
  const auto place = frame.find(kPlaceOfElements);
  auto text = frame.substr(0, place);
  text.resize(text.find_last_not_of(' ') + 1);
  WriteElements(text);
  if (text.back() == '\n') text.pop_back();
  text.append(frame, frame.find('>', place) + 1);
  return text;
}

void Document::WriteElements(std::string& text) const {
  constexpr unsigned kDepth = 2;
  constexpr std::size_t kAtOnce = 32;
  const elements::Nesting level;
  const auto count = static_cast<std::size_t>(elements_->Count());
  for (std::size_t index = 0; index < count;) {
    const auto xml = std::make_shared<pugi::xml_document>();
    const auto parent = Wrapped(xml, xml->append_child(kElements));
    for (const auto end = std::min(count, index + kAtOnce); index < end; ++index)
      elements_->SaveChild(index, parent);
    for (const auto element : xml->first_child().children()) xml::WriteTo(text, element, kDepth);
  }
}

/// The document without its elements; a tag keeps their place.
std::shared_ptr<pugi::xml_document> Document::Frame() const {
  auto xml = std::make_shared<pugi::xml_document>();
  auto declaration = xml->append_child(pugi::node_declaration);
  declaration.append_attribute("version") = "1.0";
  declaration.append_attribute("encoding") = "UTF-8";
  auto root = xml->append_child(kRoot);
  root.append_attribute(kVersionAttribute) = kVersion;

  const auto saved = root.append_child(kEquipment);
  xml::SetAttribute(saved, kAsset, equipment.asset);
  xml::SetAttribute(saved, kSerial, equipment.serial);
  xml::SetAttribute(saved, kMaker, equipment.maker);
  xml::SetAttribute(saved, kModel, equipment.model);
  if (!comment.empty()) xml::SetAttribute(saved, kComment, comment);
  equipmentLeftovers_.Restore(saved);

  standards_->Save(Wrapped(xml, root));
  instruments_->Save(root);

  auto elements = root.append_child(kElements);
  if (elements_->Count() > 0) elements.append_child(kNoName);
  elementsLeftovers_.Restore(elements);
  runs_.Save(root);
  rootLeftovers_.Restore(root);
  topLeftovers_.Restore(*xml);
  return xml;
}

}  // namespace host::document
