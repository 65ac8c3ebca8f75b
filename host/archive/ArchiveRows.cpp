#include "host/archive/ArchiveRows.h"

#include "host/archive/ArchiveWords.h"

namespace host::archive::rows {

namespace {

std::optional<double> RealOf(const Value& value) {
  const auto* number = std::get_if<double>(&value);
  return number ? std::optional(*number) : std::nullopt;
}

}  // namespace

const char* const kEntryColumns =
    "d.id, d.revision, (SELECT MAX(r.revision) FROM orvik_documents r WHERE r.document_key = d.document_key),"
    " d.hash, d.bench, d.path, d.asset, d.serial, d.maker, d.model, d.comment, d.outcome, d.finished,"
    " d.simulated, d.run, d.run_date, d.operator, d.added";

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
  entry.comment = row.Text();
  entry.outcome = words::OutcomeOf(row.Text());
  entry.finished = row.Flag();
  entry.simulated = row.Flag();
  entry.run = row.Small();
  entry.runDate = row.Text();
  entry.operatorName = row.Text();
  entry.added = row.Text();
  return entry;
}

const char* const kElementColumns =
    "e.element_id, e.parent_id, e.test_id, e.sequence, e.name, e.status, e.mti_id, e.service_code,"
    " e.service_value, e.verdict, e.judged, e.record_only, e.run, e.run_at, e.run_date, e.operator, e.value,"
    " e.unit, m.value, m.unit, m.flags, m.status";

ArchivedElement ElementOf(RowReader& row) {
  ArchivedElement element;
  auto& result = element.result;
  result.id = row.Small();
  result.parent = row.Small();
  result.testId = row.Small();
  result.group = row.Flag();
  result.name = row.Text();
  result.status = row.Small();
  result.instrument = row.Small();
  result.serviceCode = row.Text();
  result.serviceValue = row.Text();
  result.verdict = words::VerdictOf(row.Text());
  result.judged = row.Flag();
  result.recordOnly = row.Flag();
  result.run = row.Small();
  result.at = row.Text();
  element.runDate = row.Text();
  result.by = row.Text();
  result.value = RealOf(row.Next());
  result.unit = row.Text();
  const auto value = RealOf(row.Next());
  const auto& unit = row.Next();
  if (!std::holds_alternative<std::string>(unit)) return element;  // no measurement
  result.measurement = judge::Measurement{value, std::get<std::string>(unit), row.Text(), row.Small()};
  return element;
}

void ReadDetails(Database& database, std::int64_t document, std::int64_t position, ArchivedElement& element) {
  for (const auto& found :
       database.Run("SELECT standard, description, unit, low, high, selected, verdict, value"
                    " FROM orvik_limits WHERE document_id = $1 AND position = $2 ORDER BY number",
                    {document, position})) {
    RowReader row(found);
    judge::JudgedLimit limit;
    limit.standard = row.Text();
    limit.description = row.Text();
    limit.unit = row.Text();
    limit.low = RealOf(row.Next());
    limit.high = RealOf(row.Next());
    limit.selected = row.Flag();
    limit.verdict = words::LimitVerdictOf(row.Text());
    limit.value = RealOf(row.Next());
    element.result.limits.push_back(std::move(limit));
  }
  auto& reasons = element.result.reasons;
  for (const auto& found : database.Run("SELECT argument, text FROM orvik_reasons"
                                        " WHERE document_id = $1 AND position = $2 ORDER BY number, argument",
                                        {document, position})) {
    RowReader row(found);
    const bool begins = row.Whole() == 0;
    if (begins || reasons.empty())
      reasons.push_back({row.Text(), {}});
    else
      reasons.back().arguments.push_back(row.Text());
  }
}

}  // namespace host::archive::rows
