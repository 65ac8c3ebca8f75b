#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/bench/Consequences.h"
#include "host/bench/SetOfLimits.h"
#include "host/bench/Workbench.h"
#include "host/document/Document.h"
#include "host/report/DocumentView.h"
#include "host/report/Report.h"

namespace host::gui {

/// The document that is open and the operations on it: the procedures of the command line, with the same
/// errors. Everything but `Create`, `Open` and `HasDocument` needs an open document.
class DocumentSession {
 public:
  DocumentSession(bench::Workbench& workbench, bench::GlobalOptions options)
      : workbench_(workbench), options_(std::move(options)) {}

  bench::Workbench& Bench() { return workbench_; }
  const bench::GlobalOptions& Options() const { return options_; }

  bool HasDocument() const { return document_ != nullptr; }
  document::Document& TheDocument() const { return *document_; }
  /// Starts a new document in place of the open one; saving it creates the file.
  void Create(const std::filesystem::path& file);
  /// Starts a document for the next device, with tests, settings, limits and marks of the open one, without
  /// results.
  void CreateFromThis(const std::filesystem::path& file);
  void Open(const std::filesystem::path& file);
  void Save() { document_->Save(); }
  /// Saves under another name, which must not exist yet, and uses that from then on; keeps the earlier file.
  void SaveAs(const std::filesystem::path& file);
  /// Whether the document differs from what was saved last.
  bool Changed() const;
  /// The file beside the document in which an earlier session may have left unsaved changes.
  std::filesystem::path UnsavedFile() const;
  /// Keeps unsaved changes in that file, or, while that holds those of an earlier session, in FILE.unsaved.2
  /// and so on; the document is left as it is. Returns the path.
  std::filesystem::path KeepUnsaved() const;

  /// The name of the equipment in questions: "PUMP-7 (Acme X2)", else its serial number, maker and model,
  /// else the document's file.
  std::string Device() const;

  report::DocumentView View() const;
  /// The elements' sections of a report, with the run that made each result.
  std::vector<report::Section> Sections(const report::DocumentView& view,
                                        const std::vector<std::int32_t>& ids) const;
  report::Table Runs(const report::DocumentView& view) const;
  /// The element's settings in words.
  std::vector<std::string> Settings(std::int32_t id) const;

  /// Adds the catalogue's tests at the end of the document; returns the identifier of the last one.
  std::int32_t AddTests(const std::vector<std::int32_t>& testIds);
  /// Removes the element with everything below it.
  void Remove(std::int32_t id);
  /// Judges the document as it is before a change.
  bench::Consequences BeforeChange() const { return bench::Consequences(*document_, *workbench_.Host()); }
  bool IsRecordOnly(std::int32_t id) const;
  /// `InputError` for a mark that the element's limits contradict.
  void SetRecordOnly(std::int32_t id, bool recordOnly);
  bool HasLimits(std::int32_t id) const;
  /// Takes all limits from the element; those below it keep theirs.
  void RemoveLimits(std::int32_t id);
  /// Gives an element, or all without one, and those below it the limits of the set. `InputError` if the set
  /// covers none of them.
  bench::AppliedLimits ApplySet(const standards::LimitSet& set, std::optional<std::int32_t> id);
  void WriteReport(const std::filesystem::path& out) const;

 private:
  std::shared_ptr<orvik::ITestElement> Found(std::int32_t id) const;

  bench::Workbench& workbench_;
  const bench::GlobalOptions options_;
  std::shared_ptr<document::Document> document_;
  std::optional<std::size_t> openedMark_;  ///< of the document as it was opened
};

}  // namespace host::gui
