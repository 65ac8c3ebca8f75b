#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/archive/ArchivedDocument.h"
#include "host/archive/Database.h"

namespace host::archive {

/// Documents to ask about later. Any number of programs may use an archive at once; what `Add` returned from
/// is kept. All errors are `ArchiveError`.
class Archive {
 public:
  enum class Added {
    kNew,
    kRevision,  ///< the document was there, and has changed
    kUnchanged  ///< it was there like this
  };
  struct Receipt {
    Added added = Added::kNew;
    std::int64_t id = 0;  ///< of the document, or of the one that was there
    std::int64_t revision = 0;
  };

  /// What `List` is asked for; what is empty does not matter.
  struct Filter {
    std::string asset = {}, serial = {};
    std::string since = {};    ///< UTC, ISO: dates from here on
    std::string outcome = {};  ///< "passed", "failed", "incomplete"
    std::optional<std::int64_t> limit = {};
  };

  /// Creates the tables of a new archive, and upgrades an older one.
  explicit Archive(std::unique_ptr<Database> database);

  /// Adds a document, in one transaction. It is the same document as one added before when bench, path, asset
  /// and serial number are the same; then it counts as a further revision, unless nothing changed. A copy of
  /// contents that are there already, under any name, is not added.
  Receipt Add(const ArchivedDocument& document);

  /// The newest by date first.
  std::vector<ArchiveEntry> List(const Filter& filter);

  /// None when there is no such document. `ArchiveError` when its contents are not those that were added.
  std::optional<ArchivedDocument> Find(std::int64_t id);

  /// The readings of the test that counted when their documents were added, in the order of their dates. A
  /// result that several revisions of a document hold of the same run appears once, as in the last one.
  /// @param simulated whether to give readings of simulated testers instead of real ones
  Trend TrendOf(const std::string& asset, std::int32_t testId, bool simulated = false);

  const std::string& Name() const { return database_->Name(); }

 private:
  std::unique_ptr<Database> database_;
};

}  // namespace host::archive
