#include <gmock/gmock.h>

#include <fstream>

#include "host/archive/ArchiveError.h"
#include "host/archive/Schema.h"
#include "tests/system/archive/ArchiveTest.h"
#include "tests/system/archive/Documents.h"

namespace archive_tests {
namespace {

using host::archive::ArchiveError;
using testing::HasSubstr;

class SchemaTest : public ArchiveTest {
 protected:
  /// Creates an archive of version 1 with a document, by the statements of that version.
  void MakeVersionOne() const {
    const auto database = Database();
    std::ifstream file(SOURCE_PATH "/tests/system/archive/version-1.sql");
    std::string statement;
    for (std::string line; std::getline(file, line);) {
      if (line.empty() || line.starts_with("--")) continue;
      statement += line + "\n";
      if (!line.ends_with(';')) continue;
      database->Run(statement, {});
      statement.clear();
    }
    database->Run("INSERT INTO orvik_contents (document_id, contents) VALUES (1, $1)",
                  {host::archive::Bytes{kContents}});
  }

  std::int64_t Version() const {
    return host::archive::RowReader(Database()->Run("SELECT version FROM orvik_archive_version", {}).at(0))
        .Whole();
  }

  /// The error when opening the archive.
  std::string Refusal(ArchiveError::Kind kind) const {
    try {
      Open();
    } catch (const ArchiveError& error) {
      EXPECT_EQ(error.Why(), kind);
      return error.what();
    }
    return "it was opened";
  }

  static constexpr char kContents[] =
      "<OrvikDocument Version=\"1\"><Elements><TestElement ID=\"1\"><Auxiliary Print=\"1\">"
      "<Run Date=\"2025-05-06T10:00:00+02:00\" Operator=\"K. Holm\"/></Auxiliary></TestElement></Elements>"
      "</OrvikDocument>";
};

TEST_P(SchemaTest, UpgradesVersionOne) {
  MakeVersionOne();
  EXPECT_EQ(Version(), 1);
  auto archive = Open();
  EXPECT_EQ(Version(), 3);
  const auto found = archive.Find(1);
  ASSERT_TRUE(found);
  EXPECT_EQ(found->contents, kContents);
  EXPECT_EQ(found->entry.asset, "P-7");
  EXPECT_EQ(found->entry.runDate, "2025-05-06T08:00:00Z");
  EXPECT_EQ(found->instrument->leads, 35);
  EXPECT_EQ(found->instrument->leadsMeasured, "");
  ASSERT_EQ(found->elements.size(), 1U);
  EXPECT_EQ(found->elements[0].result.measurement->value, 123.5);
  EXPECT_EQ(found->elements[0].result.limits.at(0).high, 300.0);
  EXPECT_EQ(archive.Add(Measured("/d/2", "P-7", 1)).id, 2);
}

TEST_P(SchemaTest, UpgradesVersionTwo_ResultsDoNotCount) {
  MakeVersionOne();
  const auto database = Database();
  host::archive::schema::BringUpTo(*database, 2);
  EXPECT_EQ(Version(), 2);
  database->Run("UPDATE orvik_documents SET operator = 'K. Holm'", {});
  database->Run(
      "UPDATE orvik_elements SET run_date = '2025-05-06T08:00:00Z', operator = 'K. Holm',"
      " recorded_only = 1",
      {});
  database->Run(
      "INSERT INTO orvik_elements (document_id, position, element_id, parent_id, test_id, sequence,"
      " name, status, mti_id, service_code, service_value) VALUES (1, 2, 2, 0, 420, 0, 'N', 0, 0, '', '')",
      {});
  database->Run(
      "INSERT INTO orvik_notes (document_id, position, kind, number, text)"
      " VALUES (1, 1, 'doubt', 1, 'late')",
      {});

  auto archive = Open();
  EXPECT_EQ(Version(), 3);
  const auto found = archive.Find(1);
  ASSERT_TRUE(found);
  EXPECT_EQ(found->entry.outcome, host::judge::Outcome::kIncomplete);
  EXPECT_FALSE(found->entry.finished);
  EXPECT_FALSE(found->entry.simulated);
  EXPECT_EQ(found->entry.run, 0);
  EXPECT_EQ(found->entry.operatorName, "K. Holm");
  ASSERT_EQ(found->elements.size(), 2U);
  const auto& element = found->elements[0].result;
  EXPECT_EQ(element.verdict, host::judge::Verdict::kNotTested);
  EXPECT_EQ(element.reasons, (std::vector<host::document::Reason>{{"not-recorded", {}}}));
  EXPECT_EQ(element.status, 1);
  EXPECT_EQ(element.at + element.by + found->elements[0].runDate, "");
  EXPECT_FALSE(element.Current());
  EXPECT_FALSE(element.judged);
  EXPECT_FALSE(element.recordOnly);
  EXPECT_FALSE(element.value);
  EXPECT_EQ(element.limits.at(0).verdict, host::judge::LimitVerdict::kNotApplied);
  EXPECT_FALSE(element.limits.at(0).value);
  EXPECT_EQ(found->elements[1].result.reasons, (std::vector<host::document::Reason>{{"never-run", {}}}));
  EXPECT_TRUE(archive.TrendOf("P-7", 410).points.empty());
  EXPECT_EQ(archive.TrendOf("P-7", 410).notCurrent, 1U);
}

TEST_P(SchemaTest, RollsBackAFailedUpgrade) {
  MakeVersionOne();
  // Makes the statements of the second version fail.
  Database()->Run("CREATE TABLE orvik_elements_by_test (x BIGINT)", {});
  EXPECT_THROW(Open(), ArchiveError);
  EXPECT_EQ(Version(), 1);
  Database()->Run("DROP TABLE orvik_elements_by_test", {});
  EXPECT_EQ(Open().List({}).size(), 1U);
}

TEST_P(SchemaTest, RefusesANewerArchive) {
  Open();
  Database()->Run("UPDATE orvik_archive_version SET version = 4", {});
  const auto text = Refusal(ArchiveError::Kind::kBadInput);
  EXPECT_THAT(text, HasSubstr("newer version"));
  EXPECT_THAT(text, HasSubstr("archive version 4"));
  EXPECT_EQ(Version(), 4);
}

TEST_P(SchemaTest, RefusesAnArchiveWithoutVersion) {
  Open();
  Database()->Run("DELETE FROM orvik_archive_version", {});
  EXPECT_THAT(Refusal(ArchiveError::Kind::kBadInput), HasSubstr("has no version"));
}

TEST_P(SchemaTest, OpeningAgainChangesNothing) {
  Open().Add(Measured("/d/1", "P-7", 1));
  EXPECT_EQ(Open().List({}).size(), 1U);
  EXPECT_EQ(Version(), host::archive::schema::kVersion);
}

TEST_P(SchemaTest, ReportsMissingTables) {
  Open();
  Database()->Run("DROP TABLE orvik_reasons", {});
  auto archive = Open();
  auto document = Measured("/d/1", "P-7", 400);
  EXPECT_THROW(archive.Add(document), ArchiveError);
  EXPECT_TRUE(archive.List({}).empty());
}

ON_BOTH_DATABASES(SchemaTest);

}  // namespace
}  // namespace archive_tests
