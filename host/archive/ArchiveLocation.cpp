#include "host/archive/ArchiveLocation.h"

#include "host/archive/ArchiveError.h"
#include "host/archive/PostgreSqlDatabase.h"
#include "host/archive/PostgreSqlUrl.h"
#include "host/base/Tr.h"

namespace host::archive {

std::unique_ptr<Database> OpenDatabase(const std::string& location, SqliteDatabase::Missing missing) {
  if (IsPostgreSqlUrl(location)) return std::make_unique<PostgreSqlDatabase>(location);
  // The message omits the URL: it may contain a password.
  if (location.find("://") != std::string::npos)
    throw ArchiveError(ArchiveError::Kind::kBadInput,
                       Tr("archives at this kind of URL are not supported; name a file, or "
                          "postgresql://USER@HOST/DATABASE"));
  return std::make_unique<SqliteDatabase>(location, missing);
}

}  // namespace host::archive
