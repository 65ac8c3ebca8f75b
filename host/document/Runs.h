#pragma once

#include <cstdint>
#include <memory>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "host/document/RunRecord.h"
#include "host/xml/UnknownXml.h"

namespace host::document {

/// What was done with a document: runs, each appended once and never changed afterwards. Saved as the node
/// "Runs"; runs that were read are written back as they were, with all that another program added.
class Runs {
 public:
  /// Without runs.
  Runs();

  /// Reads the section "Runs" of a document, which it keeps: `Save` copies the runs from there. `XmlError`
  /// for a malformed run.
  void Load(std::shared_ptr<pugi::xml_document> document, pugi::xml_node section);
  /// Adds the section to the parent; nothing while there are no runs.
  void Save(pugi::xml_node parent) const;

  /// From the oldest; the last one may be going on.
  const std::vector<RunRecord>& All() const { return all_; }
  bool Empty() const { return all_.empty(); }
  /// The highest identifier of an element that any run names: it is never given again. 0 without runs.
  std::int32_t HighestElement() const;

  /// Appends a run, which gets its number here. It is open, and may change, until `Close`.
  RunRecord& Open(RunRecord run);
  /// The open run, or null.
  RunRecord* Current() { return open_ ? &all_.back() : nullptr; }
  /// The run is over: from here on nothing changes it.
  void Close();

 private:
  pugi::xml_node WriteCurrent(pugi::xml_node parent) const;

  std::vector<RunRecord> all_;
  bool open_ = false;
  /// Owns `finished_`.
  std::shared_ptr<pugi::xml_document> document_;
  /// The finished runs as they are saved; the current one is added when the document is saved.
  pugi::xml_node finished_;
  /// The digest of the last finished run, as the file names it.
  std::string last_;
  xml::UnknownXml besideRuns_;
};

}  // namespace host::document
