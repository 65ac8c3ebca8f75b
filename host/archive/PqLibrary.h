#pragma once

#include <libpq-fe.h>

namespace host::archive {

/// The functions of PostgreSQL's client library that the archive calls. The library is loaded when it is
/// first asked for, and stays.
struct PqLibrary {
  /// `ArchiveError` when the library is not installed.
  static const PqLibrary& Get();

  decltype(&PQconnectdbParams) connectdbParams = nullptr;
  decltype(&PQconninfoParse) conninfoParse = nullptr;
  decltype(&PQconninfoFree) conninfoFree = nullptr;
  decltype(&PQfreemem) freemem = nullptr;
  decltype(&PQstatus) status = nullptr;
  decltype(&PQfinish) finish = nullptr;
  decltype(&PQerrorMessage) errorMessage = nullptr;
  decltype(&PQconnectionNeedsPassword) connectionNeedsPassword = nullptr;
  decltype(&PQconnectionUsedPassword) connectionUsedPassword = nullptr;
  decltype(&PQsetNoticeProcessor) setNoticeProcessor = nullptr;
  decltype(&PQsendQueryParams) sendQueryParams = nullptr;
  decltype(&PQsocket) socket = nullptr;
  decltype(&PQconsumeInput) consumeInput = nullptr;
  decltype(&PQisBusy) isBusy = nullptr;
  decltype(&PQsetnonblocking) setnonblocking = nullptr;
  decltype(&PQflush) flush = nullptr;
  decltype(&PQgetResult) getResult = nullptr;
  decltype(&PQclear) clear = nullptr;
  decltype(&PQresultStatus) resultStatus = nullptr;
  decltype(&PQresultErrorField) resultErrorField = nullptr;
  decltype(&PQntuples) ntuples = nullptr;
  decltype(&PQnfields) nfields = nullptr;
  decltype(&PQftype) ftype = nullptr;
  decltype(&PQgetisnull) getisnull = nullptr;
  decltype(&PQgetvalue) getvalue = nullptr;
  decltype(&PQgetlength) getlength = nullptr;
};

}  // namespace host::archive
