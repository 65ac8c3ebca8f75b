#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "host/archive/Database.h"
#include "host/archive/SqliteDatabase.h"

namespace host::archive {

/// Opens the database that a location names.
/// @param location an SQLite file, or the URL of a PostgreSQL database, postgresql://user@host/database
/// @param missing what to do when it is a file that is not there
std::unique_ptr<Database> OpenDatabase(const std::string& location, SqliteDatabase::Missing missing);

}  // namespace host::archive
