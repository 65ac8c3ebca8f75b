#include <cmath>

#include "host/archive/ArchiveRows.h"
#include "host/archive/ArchiveWords.h"

namespace host::archive::rows {

namespace {

Value Whole(std::int64_t number) { return number; }

/// Empty for numbers that are not finite: the databases store them differently.
Value Real(const std::optional<double>& number) {
  return number && std::isfinite(*number) ? Value(*number) : Value();
}

/// "$1, $2, ..."
std::string Places(std::size_t count) {
  std::string places;
  for (std::size_t i = 1; i <= count; ++i) places += (i == 1 ? "$" : ", $") + std::to_string(i);
  return places;
}

void InsertRow(Database& database, const std::string& tableAndColumns, const std::vector<Value>& values) {
  database.Run("INSERT INTO " + tableAndColumns + " VALUES (" + Places(values.size()) + ")", values);
}

void InsertEntry(Database& database, const ArchivedDocument& document, const std::string& key) {
  const auto& entry = document.entry;
  std::vector<Value> values = {Whole(entry.id),       key,
                               Whole(entry.revision), entry.hash,
                               entry.bench,           entry.path,
                               entry.asset,           entry.serial,
                               entry.maker,           entry.model,
                               entry.comment,         words::Of(entry.outcome),
                               Whole(entry.finished), Whole(entry.simulated),
                               Whole(entry.run),      entry.runDate,
                               entry.operatorName,    entry.added};
  if (const auto& tester = document.instrument)
    values.insert(values.end(), {tester->type, tester->serial, tester->firmware, Whole(tester->leads),
                                 tester->leadsMeasured});
  else
    values.resize(values.size() + 5);
  InsertRow(database,
            "orvik_documents (id, document_key, revision, hash, bench, path, asset, serial, maker, model,"
            " comment, outcome, finished, simulated, run, run_date, operator, added, instrument_type,"
            " instrument_serial, instrument_firmware, instrument_calibration, instrument_calibrated)",
            values);
}

void InsertReasons(Database& database, std::int64_t document, std::int64_t position,
                   const std::vector<document::Reason>& reasons) {
  std::int64_t number = 0;
  for (const auto& reason : reasons) {
    const auto insert = [&, reasonNumber = ++number](std::int64_t argument, const std::string& text) {
      InsertRow(database, "orvik_reasons (document_id, position, number, argument, text)",
                {document, position, reasonNumber, argument, text});
    };
    std::int64_t argument = 0;
    insert(argument, reason.code);
    for (const auto& text : reason.arguments) insert(++argument, text);
  }
}

void InsertLimits(Database& database, std::int64_t document, std::int64_t position,
                  const std::vector<judge::JudgedLimit>& limits) {
  std::int64_t number = 0;
  for (const auto& limit : limits)
    InsertRow(database,
              "orvik_limits (document_id, position, number, standard, description, unit, low, high, selected,"
              " verdict, value)",
              {document, position, ++number, limit.standard, limit.description, limit.unit, Real(limit.low),
               Real(limit.high), Whole(limit.selected), words::Of(limit.verdict), Real(limit.value)});
}

void InsertElement(Database& database, std::int64_t document, std::int64_t position,
                   const ArchivedElement& element) {
  const auto& result = element.result;
  InsertRow(database,
            "orvik_elements (document_id, position, element_id, parent_id, test_id, sequence, name, status,"
            " mti_id, service_code, service_value, verdict, judged, record_only, run, run_at, run_date,"
            " operator, value, unit)",
            {document,
             position,
             Whole(result.id),
             Whole(result.parent),
             Whole(result.testId),
             Whole(result.group),
             result.name,
             Whole(result.status),
             Whole(result.instrument),
             result.serviceCode,
             result.serviceValue,
             words::Of(result.verdict),
             Whole(result.judged),
             Whole(result.recordOnly),
             Whole(result.run),
             result.at,
             element.runDate,
             result.by,
             Real(result.value),
             result.unit});
  if (const auto& measurement = result.measurement)
    InsertRow(database, "orvik_measurements (document_id, position, value, unit, flags, status)",
              {document, position, Real(measurement->value), measurement->unit, measurement->flags,
               Whole(measurement->status)});
  InsertLimits(database, document, position, result.limits);
  InsertReasons(database, document, position, result.reasons);
}

}  // namespace

void Insert(Database& database, const ArchivedDocument& document, const std::string& key) {
  const auto id = document.entry.id;
  InsertEntry(database, document, key);
  InsertRow(database, "orvik_contents (document_id, contents)", {id, Bytes{document.contents}});
  std::int64_t position = 0;
  for (const auto& element : document.elements) InsertElement(database, id, ++position, element);
}

}  // namespace host::archive::rows
