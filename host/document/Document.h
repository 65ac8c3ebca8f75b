#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>

#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITestElement.h"
#include "host/document/DocumentFile.h"
#include "host/document/ElementPlace.h"
#include "host/document/Equipment.h"
#include "host/document/Runs.h"
#include "host/xml/UnknownXml.h"
#include "host/xml/XmlDocument.h"

namespace host::elements {
class TestContainer;
}
namespace host::instruments {
class InstrumentColl;
}

namespace host::document {

class Host;

/// A test document, an XML file:
///
///     <OrvikDocument Version="1">
///       <Equipment Asset="..." Serial="..." Maker="..." Model="..." Comment="..."/>
///       <Standards>...</Standards>        the standards by which measurements are judged
///       <Instruments>...</Instruments>
///       <Elements><TestElement .../></Elements>
///       <Runs><Run .../></Runs>             what was done, see RunXml.h
///     </OrvikDocument>
///
/// A file that cannot be read is refused with `HostError` 75 naming file, line and reason, and left as it is.
/// A file in another encoding than UTF-8 is converted (`xml::Decode`); saving writes UTF-8.
/// What the file holds beyond this is kept and written back.
class Document {
 public:
  using Equipment = document::Equipment;

  /// Version of the format that this program reads and writes.
  static constexpr std::int32_t kVersion = 1;

  /// A new document; its file comes into being when it is saved.
  static std::shared_ptr<Document> Create(std::shared_ptr<Host> host, const std::filesystem::path& file);
  /// Opens a document; the plug-ins of its elements are opened before.
  static std::shared_ptr<Document> Open(std::shared_ptr<Host> host, const std::filesystem::path& file,
                                        DocumentFile::Use use = DocumentFile::Use::kWrite);

  /// Use `Create` or `Open`.
  Document(std::shared_ptr<Host> host, DocumentFile file);

  const std::filesystem::path& Path() const { return file_.Path(); }

  /// Writes the document, on disk when the call returns. `HostError` when an element cannot be saved or the
  /// file cannot be written; the file then is as it was.
  void Save();

  /// The document as it would be saved.
  std::string Text() const;
  /// Tells the text that was saved last from others; none before the document was saved for the first time.
  std::optional<std::size_t> SavedMark() const { return savedMark_; }
  /// The mark that a text has.
  static std::size_t MarkOf(std::string_view text) { return std::hash<std::string_view>()(text); }

  /// Goes on under another name, which must not exist yet.
  void MoveTo(const std::filesystem::path& file);

  Equipment equipment;

  /// A remark for people about the document. Not part of the equipment: changing it changes no result.
  std::string comment;

  /// The standards by which measurements are judged.
  const std::shared_ptr<orvik::IStandardColl>& Standards() const { return standards_; }
  const std::shared_ptr<instruments::InstrumentColl>& Instruments() const { return instruments_; }

  /// The record of every run.
  document::Runs& Runs() { return runs_; }
  const document::Runs& Runs() const { return runs_; }

  /// The top-level elements; itself it has the identifier 0.
  std::shared_ptr<orvik::ITestContainer> Elements() const;

  /// Adds a copy of the catalogue's test. It and all below it get the next free identifiers in document
  /// order; an identifier that a run's record names is never given again. `HostError` 5 when no opened
  /// plug-in has the test, and for a place that cannot hold it.
  std::shared_ptr<orvik::ITestElement> AddTest(std::int32_t testId, const ElementPlace& place);
  /// At the end of the document, or of the sequence `parent`.
  std::shared_ptr<orvik::ITestElement> AddTest(std::int32_t testId,
                                               const std::shared_ptr<orvik::ITestElement>& parent = nullptr);

  /// Adds what another document plans: its elements with their settings, limits and marks; no results and
  /// nothing that a file says beside them. They get new identifiers, in document order.
  void AddPlanOf(const Document& other);

  /// Takes an element of this document, with all below it, to another place of it. `HostError` 5 for a place
  /// inside or beside itself.
  void Move(const std::shared_ptr<orvik::ITestElement>& element, const ElementPlace& place);

  /// Removes an element of this document with all below it.
  void Remove(const std::shared_ptr<orvik::ITestElement>& element);

  /// The element of that identifier at any depth, or empty.
  std::shared_ptr<orvik::ITestElement> Find(std::int32_t id) const;

 private:
  /// Without standards, instruments and elements.
  void BeginEmpty();
  void Load();
  /// Throws the error that names file, line and reason; without the line if the offset is negative.
  [[noreturn]] void RefuseFile(std::ptrdiff_t offset, const std::string& reason) const;
  void Require(const xml::Fault& fault) const;
  void LoadSections(const std::shared_ptr<pugi::xml_document>& xml);
  std::string WrittenText() const;
  void WriteElements(std::string& text) const;
  std::shared_ptr<pugi::xml_document> Frame() const;
  std::shared_ptr<orvik::ITestElement> FromCatalogue(std::int32_t testId) const;
  void GiveIdentifiers(const std::shared_ptr<orvik::ITestElement>& top);
  std::int32_t NextIdentifier();
  void Put(const std::shared_ptr<orvik::ITestElement>& element, const ElementPlace& place);
  void UpdateReferences() const;

  std::shared_ptr<Host> host_;
  DocumentFile file_;
  std::shared_ptr<orvik::IStandardColl> standards_;
  std::shared_ptr<instruments::InstrumentColl> instruments_;
  std::shared_ptr<elements::TestContainer> elements_;
  document::Runs runs_;
  std::int32_t highestId_ = 0;
  std::optional<std::size_t> savedMark_;
  xml::UnknownXml topLeftovers_, rootLeftovers_, equipmentLeftovers_, elementsLeftovers_;
};

}  // namespace host::document
