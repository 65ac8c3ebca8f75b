#include "host/archive/PqLibrary.h"

#include <dlfcn.h>

#include "host/archive/ArchiveError.h"
#include "host/base/Tr.h"

namespace host::archive {

namespace {

constexpr char kFile[] = "libpq.so.5";

[[noreturn]] void FailLoading() {
  const char* reason = dlerror();
  throw ArchiveError(ArchiveError::Kind::kUnreachable,
                     Tr("PostgreSQL's client library cannot be loaded: %%1 (install Debian's package "
                        "\"libpq5\", or use an archive in a file)",
                        {reason ? reason : kFile}));
}

template <class Function>
void Take(void* library, const char* name, Function& function) {
  function = reinterpret_cast<Function>(dlsym(library, name));
  if (!function) FailLoading();
}

PqLibrary Loaded() {
  void* library = dlopen(kFile, RTLD_NOW | RTLD_LOCAL);
  if (!library) FailLoading();
  PqLibrary pq;
  Take(library, "PQconnectdbParams", pq.connectdbParams);
  Take(library, "PQconninfoParse", pq.conninfoParse);
  Take(library, "PQconninfoFree", pq.conninfoFree);
  Take(library, "PQfreemem", pq.freemem);
  Take(library, "PQstatus", pq.status);
  Take(library, "PQfinish", pq.finish);
  Take(library, "PQerrorMessage", pq.errorMessage);
  Take(library, "PQconnectionNeedsPassword", pq.connectionNeedsPassword);
  Take(library, "PQconnectionUsedPassword", pq.connectionUsedPassword);
  Take(library, "PQsetNoticeProcessor", pq.setNoticeProcessor);
  Take(library, "PQsendQueryParams", pq.sendQueryParams);
  Take(library, "PQsocket", pq.socket);
  Take(library, "PQconsumeInput", pq.consumeInput);
  Take(library, "PQisBusy", pq.isBusy);
  Take(library, "PQsetnonblocking", pq.setnonblocking);
  Take(library, "PQflush", pq.flush);
  Take(library, "PQgetResult", pq.getResult);
  Take(library, "PQclear", pq.clear);
  Take(library, "PQresultStatus", pq.resultStatus);
  Take(library, "PQresultErrorField", pq.resultErrorField);
  Take(library, "PQntuples", pq.ntuples);
  Take(library, "PQnfields", pq.nfields);
  Take(library, "PQftype", pq.ftype);
  Take(library, "PQgetisnull", pq.getisnull);
  Take(library, "PQgetvalue", pq.getvalue);
  Take(library, "PQgetlength", pq.getlength);
  return pq;
}

}  // namespace

const PqLibrary& PqLibrary::Get() {
  static const PqLibrary library = Loaded();
  return library;
}

}  // namespace host::archive
