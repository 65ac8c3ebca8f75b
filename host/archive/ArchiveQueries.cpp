#include <string>
#include <utility>

#include "host/archive/Archive.h"
#include "host/archive/ArchiveError.h"
#include "host/archive/ArchiveRows.h"
#include "host/base/Sha256.h"
#include "host/base/Tr.h"

namespace host::archive {

namespace {

/// The date of the run, otherwise that of adding it.
constexpr char kDate[] = "CASE WHEN d.run_date = '' THEN d.added ELSE d.run_date END";

/// Elements of a document can be run on different days.
constexpr char kElementDate[] = "CASE WHEN e.run_date = '' THEN d.added ELSE e.run_date END";

/// Results that counted when the document was added: the judge leaves an element without one not tested.
constexpr char kCounted[] = "e.verdict <> 'not tested'";

/// The results of test $2 of asset $1, each from the last revision that has it.
constexpr char kFromResults[] =
    " FROM orvik_documents d JOIN orvik_elements e ON e.document_id = d.id"
    " LEFT JOIN orvik_measurements m ON m.document_id = e.document_id AND m.position = e.position"
    " WHERE substr(d.asset, 1, 100) = substr($1, 1, 100) AND d.asset = $1 AND e.test_id = $2"
    " AND NOT EXISTS (SELECT 1 FROM orvik_documents r JOIN orvik_elements f ON f.document_id = r.id"
    " WHERE r.document_key = d.document_key AND r.revision > d.revision"
    " AND f.element_id = e.element_id AND f.run = e.run AND f.run_date = e.run_date) AND ";

std::optional<document::RecordedTester> InstrumentOf(RowReader& row) {
  const auto& type = row.Next();
  if (!std::holds_alternative<std::string>(type)) return {};
  document::RecordedTester tester{std::get<std::string>(type), row.Text(), row.Text(), row.Small(), {}};
  // Archives of before did not keep it.
  if (const auto* calibrated = std::get_if<std::string>(&row.Next())) tester.leadsMeasured = *calibrated;
  return tester;
}

std::vector<ArchivedElement> ElementsOf(Database& database, std::int64_t id) {
  std::vector<ArchivedElement> elements;
  for (const auto& found : database.Run(std::string("SELECT ") + rows::kElementColumns +
                                            " FROM orvik_elements e LEFT JOIN orvik_measurements m"
                                            " ON m.document_id = e.document_id AND m.position = e.position"
                                            " WHERE e.document_id = $1 ORDER BY e.position",
                                        {id})) {
    RowReader row(found);
    elements.push_back(rows::ElementOf(row));
    rows::ReadDetails(database, id, static_cast<std::int64_t>(elements.size()), elements.back());
  }
  return elements;
}

}  // namespace

std::vector<ArchiveEntry> Archive::List(const Filter& filter) {
  std::string statement = std::string("SELECT ") + rows::kEntryColumns + " FROM orvik_documents d";
  std::vector<Value> values;
  const auto where = [&](const std::string& condition, const std::string& value) {
    if (value.empty()) return;
    values.emplace_back(value);
    const auto name = "$" + std::to_string(values.size());
    statement += (values.size() == 1 ? " WHERE " : " AND ") + condition + name;
  };
  where("d.asset = ", filter.asset);
  where("d.serial = ", filter.serial);
  where("d.outcome = ", filter.outcome);
  where(std::string(kDate) + " >= ", filter.since);
  statement += std::string(" ORDER BY ") + kDate + " DESC, d.id DESC";
  if (filter.limit) {
    values.emplace_back(*filter.limit);
    statement += " LIMIT $" + std::to_string(values.size());
  }
  std::vector<ArchiveEntry> entries;
  for (const auto& found : database_->Run(statement, values)) {
    RowReader row(found);
    entries.push_back(rows::EntryOf(row));
  }
  return entries;
}

std::optional<ArchivedDocument> Archive::Find(std::int64_t id) {
  Transaction transaction(*database_, Database::Use::kRead);
  const auto found =
      database_->Run(std::string("SELECT ") + rows::kEntryColumns +
                         ", c.contents, d.instrument_type, d.instrument_serial, d.instrument_firmware,"
                         " d.instrument_calibration, d.instrument_calibrated FROM orvik_documents d"
                         " JOIN orvik_contents c ON c.document_id = d.id WHERE d.id = $1",
                     {id});
  if (found.empty()) return {};
  RowReader row(found[0]);
  ArchivedDocument document;
  document.entry = rows::EntryOf(row);
  document.contents = std::get<Bytes>(row.Next()).data;
  document.instrument = InstrumentOf(row);
  if (Sha256(document.contents) != document.entry.hash)
    throw ArchiveError(
        ArchiveError::Kind::kBadInput,
        Tr("document %%1 of the archive %%2 has changed since it was added: the archive is damaged, or "
           "another program changed it (restore a copy)",
           {std::to_string(id), Name()}));
  document.elements = ElementsOf(*database_, id);
  transaction.Commit();
  return document;
}

Trend Archive::TrendOf(const std::string& asset, std::int32_t testId, bool simulated) {
  Transaction transaction(*database_, Database::Use::kRead);
  const std::vector<Value> values = {asset, std::int64_t{testId}};
  const auto ofKind = [](bool kind) {
    return std::string(kCounted) + " AND d.simulated = " + (kind ? "1" : "0");
  };
  const auto count = [&](const std::string& condition) {
    const auto found = database_->Run("SELECT COUNT(*)" + (kFromResults + condition), values);
    return static_cast<std::size_t>(RowReader(found.at(0)).Whole());
  };
  Trend trend{asset, testId, simulated, {}, 0, 0};
  trend.otherKind = count(ofKind(!simulated));
  trend.notCurrent = count("e.run = 0 AND e.status <> 0");
  for (const auto& found :
       database_->Run(std::string("SELECT e.document_id, e.position, ") + kElementDate +
                          ", e.run_date, d.added, d.serial, " + rows::kElementColumns + kFromResults +
                          ofKind(simulated) + " ORDER BY " + kElementDate + ", d.id, e.position",
                      values)) {
    RowReader row(found);
    TrendPoint point;
    point.document = row.Whole();
    const auto position = row.Whole();
    point.date = row.Text();
    point.dated = !row.Text().empty();
    point.added = row.Text();
    point.serial = row.Text();
    point.element = rows::ElementOf(row);
    rows::ReadDetails(*database_, point.document, position, point.element);
    trend.points.push_back(std::move(point));
  }
  transaction.Commit();
  return trend;
}

}  // namespace host::archive
