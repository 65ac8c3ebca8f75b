#include "host/bench/OpenArchive.h"

#include <cstdlib>
#include <utility>

#include "host/archive/ArchiveLocation.h"
#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/bench/ProgramFiles.h"

namespace host::bench {

namespace {

using Missing = archive::SqliteDatabase::Missing;

archive::Archive Opened(const std::string& location, const GlobalOptions& options, Missing named) {
  if (!location.empty()) return archive::Archive(archive::OpenDatabase(location, named));
  const char* environment = std::getenv("ORVIK_ARCHIVE");
  if (environment && *environment) return archive::Archive(archive::OpenDatabase(environment, named));
  const auto file = files::StateFolder(options.state) / "archive.sqlite";
  return archive::Archive(std::make_unique<archive::SqliteDatabase>(file, Missing::kCreate));
}

}  // namespace

archive::Archive OpenArchiveToAsk(const std::string& location, const GlobalOptions& options) {
  return Opened(location, options, Missing::kRefuse);
}

archive::Archive OpenArchiveToAdd(const std::string& location, const GlobalOptions& options) {
  return Opened(location, options, Missing::kCreate);
}

archive::ArchivedDocument Fetched(archive::Archive& archive, std::int64_t id) {
  if (auto found = archive.Find(id)) return *std::move(found);
  throw InputError(Tr("the archive %%1 has no document %%2; \"orvik-bench archive list\" shows those it has",
                      {archive.Name(), std::to_string(id)}));
}

}  // namespace host::bench
