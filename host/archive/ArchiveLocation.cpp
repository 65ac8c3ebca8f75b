#include "host/archive/ArchiveLocation.h"

#include "host/archive/ArchiveError.h"
#include "host/archive/PostgreSqlDatabase.h"
#include "host/archive/PostgreSqlUrl.h"
#include "host/services/Tr.h"

namespace bench {

std::unique_ptr<Database> OpenDatabase(const std::string& location, SqliteDatabase::Missing missing) {
  if (IsPostgreSqlUrl(location)) return std::make_unique<PostgreSqlDatabase>(location);
  // Not told: there may be a password in it.
  if (location.find("://") != std::string::npos)
    throw ArchiveError(ArchiveError::Kind::kBadInput,
                       Tr("there are no archives of this kind of URL; name a file, or "
                          "postgresql://USER@HOST/DATABASE"));
  return std::make_unique<SqliteDatabase>(location, missing);
}

}  // namespace bench
