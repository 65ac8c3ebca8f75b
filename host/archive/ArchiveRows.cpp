#include "host/archive/ArchiveRows.h"

#include <array>
#include <cmath>

#include "host/judge/ReasonText.h"

namespace bench::rows {

namespace {

constexpr char kDoubt[] = "doubt";
constexpr char kFailed[] = "failed";

Value Whole(std::int64_t number) { return number; }

/// What is no finite number is none: the databases differ in what they make of it.
Value Real(const std::optional<double>& number) {
  return number && std::isfinite(*number) ? Value(*number) : Value();
}

std::optional<double> RealOf(const Value& value) {
  const auto* number = std::get_if<double>(&value);
  return number ? std::optional(*number) : std::nullopt;
}

std::vector<std::string> DoubtsOf(const judge::JudgedElement& element) {
  std::vector<std::string> doubts;
  if (element.verdict != judge::Verdict::kDoubtful) return doubts;
  for (const auto& reason : element.reasons) doubts.push_back(judge::ReasonText(reason));
  return doubts;
}

judge::Verdict VerdictOf(std::int32_t status) {
  constexpr std::array kVerdicts{judge::Verdict::kNotTested, judge::Verdict::kPassed, judge::Verdict::kFailed,
                                 judge::Verdict::kNotApplicable, judge::Verdict::kAborted};
  return status >= 0 && status <= 4 ? kVerdicts[static_cast<std::size_t>(status)]
                                    : judge::Verdict::kNotTested;
}

void InsertEntry(Database& database, const ArchivedDocument& document, const std::string& key) {
  const auto& entry = document.entry;
  std::vector<Value> values = {Whole(entry.id),
                               key,
                               Whole(entry.revision),
                               entry.hash,
                               entry.bench,
                               entry.path,
                               entry.asset,
                               entry.serial,
                               entry.maker,
                               entry.model,
                               entry.outcome,
                               Whole(entry.finished),
                               entry.runDate,
                               entry.operatorName,
                               entry.added};
  if (const auto& instrument = document.instrument)
    values.insert(values.end(), {instrument->type, instrument->serial, instrument->firmware,
                                 Whole(instrument->calibration)});
  else
    values.resize(values.size() + 4);
  database.Run(
      "INSERT INTO orvik_documents (id, document_key, revision, hash, bench, path, asset, serial, maker, "
      "model,"
      " outcome, finished, run_date, operator, added, instrument_type, instrument_serial, "
      "instrument_firmware,"
      " instrument_calibration)"
      " VALUES ($1, $2, $3, $4, $5, $6, $7, $8, $9, $10, $11, $12, $13, $14, $15, $16, $17, $18, $19)",
      values);
}

void InsertNotes(Database& database, std::int64_t document, std::int64_t position, const char* kind,
                 const std::vector<std::string>& texts) {
  std::int64_t number = 0;
  for (const auto& text : texts)
    database.Run(
        "INSERT INTO orvik_notes (document_id, position, kind, number, text) VALUES ($1, $2, $3, $4, $5)",
        {document, position, kind, ++number, text});
}

void InsertLimits(Database& database, std::int64_t document, std::int64_t position,
                  const std::vector<StandardLimit>& limits) {
  std::int64_t number = 0;
  for (const auto& limit : limits)
    database.Run(
        "INSERT INTO orvik_limits (document_id, position, number, standard, description, unit, low, high)"
        " VALUES ($1, $2, $3, $4, $5, $6, $7, $8)",
        {document, position, ++number, limit.standard, limit.description, limit.unit, Real(limit.low),
         Real(limit.high)});
}

void InsertElement(Database& database, std::int64_t document, std::int64_t position,
                   const ArchivedElement& element) {
  const auto& summary = element.summary;
  database.Run(
      "INSERT INTO orvik_elements (document_id, position, element_id, parent_id, test_id, sequence, name,"
      " status, mti_id, service_code, service_value, run_date, operator, recorded_only)"
      " VALUES ($1, $2, $3, $4, $5, $6, $7, $8, $9, $10, $11, $12, $13, $14)",
      {document, position, Whole(summary.id), Whole(summary.parent), Whole(summary.testId),
       Whole(summary.group), summary.name, Whole(summary.status), Whole(summary.instrument),
       summary.serviceCode, summary.serviceValue, element.runDate, element.operatorName,
       Whole(summary.verdict == judge::Verdict::kRecorded)});
  if (const auto& measurement = summary.measurement)
    database.Run(
        "INSERT INTO orvik_measurements (document_id, position, value, unit, flags, status)"
        " VALUES ($1, $2, $3, $4, $5, $6)",
        {document, position, Real(measurement->value), measurement->unit, measurement->flags,
         Whole(measurement->status)});
  InsertLimits(database, document, position, element.limits);
  InsertNotes(database, document, position, kDoubt, DoubtsOf(summary));
  InsertNotes(database, document, position, kFailed, summary.FailedStandards());
}

}  // namespace

void Insert(Database& database, const ArchivedDocument& document, const std::string& key) {
  const auto id = document.entry.id;
  InsertEntry(database, document, key);
  database.Run("INSERT INTO orvik_contents (document_id, contents) VALUES ($1, $2)",
               {id, Bytes{document.contents}});
  std::int64_t position = 0;
  for (const auto& element : document.elements) InsertElement(database, id, ++position, element);
}

const char* const kEntryColumns =
    "d.id, d.revision, (SELECT MAX(r.revision) FROM orvik_documents r WHERE r.document_key = d.document_key),"
    " d.hash, d.bench, d.path, d.asset, d.serial, d.maker, d.model, d.outcome, d.finished, d.run_date,"
    " d.operator, d.added";

ArchiveEntry EntryOf(RowReader& row) {
  ArchiveEntry entry;
  entry.id = row.Whole();
  entry.revision = row.Whole();
  entry.revisions = row.Whole();
  entry.hash = row.Text();
  entry.bench = row.Text();
  entry.path = row.Text();
  entry.asset = row.Text();
  entry.serial = row.Text();
  entry.maker = row.Text();
  entry.model = row.Text();
  entry.outcome = row.Text();
  entry.finished = row.Flag();
  entry.runDate = row.Text();
  entry.operatorName = row.Text();
  entry.added = row.Text();
  return entry;
}

const char* const kElementColumns =
    "e.element_id, e.parent_id, e.test_id, e.sequence, e.name, e.status, e.mti_id, e.service_code,"
    " e.service_value, e.run_date, e.operator, e.recorded_only, m.value, m.unit, m.flags, m.status";

ArchivedElement ElementOf(RowReader& row) {
  ArchivedElement element;
  auto& summary = element.summary;
  summary.id = row.Small();
  summary.parent = row.Small();
  summary.testId = row.Small();
  summary.group = row.Flag();
  summary.name = row.Text();
  summary.status = row.Small();
  summary.instrument = row.Small();
  summary.serviceCode = row.Text();
  summary.serviceValue = row.Text();
  element.runDate = row.Text();
  element.operatorName = row.Text();
  summary.verdict = row.Flag() ? judge::Verdict::kRecorded : VerdictOf(summary.status);
  const auto value = RealOf(row.Next());
  const auto& unit = row.Next();
  if (!std::holds_alternative<std::string>(unit)) return element;  // no measurement
  summary.run = 1;
  summary.measurement = judge::Measurement{value, std::get<std::string>(unit), row.Text(), row.Small()};
  return element;
}

void ReadDetails(Database& database, std::int64_t document, std::int64_t position, ArchivedElement& element) {
  for (const auto& found : database.Run("SELECT standard, description, unit, low, high FROM orvik_limits"
                                        " WHERE document_id = $1 AND position = $2 ORDER BY number",
                                        {document, position})) {
    RowReader row(found);
    StandardLimit limit{row.Text(), row.Text(), row.Text(), {}, {}};
    limit.low = RealOf(row.Next());
    limit.high = RealOf(row.Next());
    element.limits.push_back(std::move(limit));
  }
  for (const auto& found : database.Run("SELECT kind, text FROM orvik_notes"
                                        " WHERE document_id = $1 AND position = $2 ORDER BY kind, number",
                                        {document, position})) {
    RowReader row(found);
    const bool doubt = row.Text() == kDoubt;
    auto text = row.Text();
    if (doubt) {
      element.summary.verdict = judge::Verdict::kDoubtful;
      element.summary.reasons.push_back({text, {}});
    } else {
      judge::JudgedLimit failed;
      failed.standard = text;
      failed.verdict = judge::LimitVerdict::kExceeded;
      element.summary.limits.push_back(failed);
    }
  }
}

}  // namespace bench::rows
