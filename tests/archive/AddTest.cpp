#include <gmock/gmock.h>

#include "tests/archive/ArchiveTest.h"
#include "tests/archive/Documents.h"

namespace archive_tests {
namespace {

using bench::Archive;
using Added = bench::Archive::Added;

class AddTest : public ArchiveTest {};

TEST_P(AddTest, GivesBackEverythingThatWasAdded) {
  auto document = Measured("/d/a.orvik", "P-7", 412.125);
  auto first = document.elements[0];
  first.summary.measurement->flags = "O";
  first.summary.doubts = {"late reply", "overload"};
  first.limits.push_back({"AAMI", "", "mOhm", 1.5, 500.25});
  document.elements[0] = first;
  bench::ArchivedElement sequence;
  sequence.summary.id = 7;
  sequence.summary.parent = 1;
  sequence.summary.sequence = true;
  sequence.summary.serviceValue = "x";
  sequence.summary.recordedOnly = true;
  document.elements.push_back(sequence);
  document.contents = std::string("\x00\xFF<\r\n'\x80", 7);

  auto archive = Open();
  const auto receipt = archive.Add(document);
  EXPECT_EQ(receipt.id, 1);
  const auto found = archive.Find(1);
  ASSERT_TRUE(found);
  EXPECT_EQ(found->contents, document.contents);
  EXPECT_EQ(found->instrument, document.instrument);
  EXPECT_EQ(found->entry.operatorName, "A. Berg");
  EXPECT_EQ(found->entry.runDate, "2026-03-01T09:30:00Z");
  EXPECT_EQ(found->entry.outcome, "failed");
  EXPECT_TRUE(found->entry.finished);
  ASSERT_EQ(found->elements.size(), 2U);
  const auto& element = found->elements[0];
  EXPECT_EQ(element.limits, first.limits);
  EXPECT_EQ(element.summary.doubts, first.summary.doubts);
  EXPECT_EQ(element.summary.failedStandards, first.summary.failedStandards);
  ASSERT_TRUE(element.summary.measurement);
  EXPECT_EQ(element.summary.measurement->value, 412.125);
  EXPECT_EQ(element.summary.measurement->flags, "O");
  EXPECT_EQ(element.summary.measurement->status, 2);
  EXPECT_EQ(element.summary.serviceCode, "F");
  EXPECT_EQ(found->elements[1].summary.parent, 1);
  EXPECT_TRUE(found->elements[1].summary.sequence);
  EXPECT_FALSE(found->elements[1].summary.measurement);
  EXPECT_TRUE(found->elements[1].summary.recordedOnly);
  EXPECT_FALSE(element.summary.recordedOnly);
  EXPECT_EQ(found->elements[1].runDate, "");
}

TEST_P(AddTest, KeepsNoTesterAndNoValueAsNone) {
  auto document = Measured("/d/a.orvik", "P-7", 1);
  document.instrument.reset();
  document.elements[0].summary.measurement->value.reset();
  auto archive = Open();
  archive.Add(document);
  const auto found = archive.Find(1);
  EXPECT_FALSE(found->instrument);
  ASSERT_TRUE(found->elements[0].summary.measurement);
  EXPECT_FALSE(found->elements[0].summary.measurement->value);
}

TEST_P(AddTest, TheSameDocumentAgainChangesNothing) {
  auto archive = Open();
  const auto document = Measured("/d/a.orvik", "P-7", 120);
  EXPECT_EQ(archive.Add(document).added, Added::kNew);
  const auto again = archive.Add(document);
  EXPECT_EQ(again.added, Added::kUnchanged);
  EXPECT_EQ(again.id, 1);
  EXPECT_EQ(archive.List({}).size(), 1U);
}

TEST_P(AddTest, AChangedDocumentIsAFurtherRevisionAndSoIsTheOldStateAgain) {
  auto archive = Open();
  const auto before = Measured("/d/a.orvik", "P-7", 120), after = Measured("/d/a.orvik", "P-7", 121);
  archive.Add(before);
  const auto changed = archive.Add(after);
  EXPECT_EQ(changed.added, Added::kRevision);
  EXPECT_EQ(changed.id, 2);
  EXPECT_EQ(changed.revision, 2);
  EXPECT_EQ(archive.Add(before).revision, 3);
  EXPECT_EQ(archive.Find(1)->entry.revisions, 3);
  EXPECT_EQ(archive.Find(2)->contents, after.contents);
}

TEST_P(AddTest, ACopyUnderAnotherNameIsNotAdded) {
  auto archive = Open();
  auto document = Measured("/d/a.orvik", "P-7", 120);
  archive.Add(document);
  document.entry.path = "/usb/copy.orvik";
  EXPECT_EQ(archive.Add(document).added, Added::kUnchanged);
  EXPECT_EQ(archive.List({}).size(), 1U);
}

TEST_P(AddTest, AnotherAssetInTheSameFileIsAnotherDocument) {
  auto archive = Open();
  archive.Add(Measured("/d/a.orvik", "P-7", 120));
  const auto other = archive.Add(Measured("/d/a.orvik", "P-8", 120));
  EXPECT_EQ(other.added, Added::kNew);
  EXPECT_EQ(other.revision, 1);
}

TEST_P(AddTest, TextsAreDataWhateverTheyHold) {
  const std::string nasty[] = {"'; DROP TABLE orvik_documents; --",
                               "100 %s %n \\",
                               "<script>alert(1)</script>",
                               "$1 \"quoted\"",
                               "µΩ \xF0\x9F\x94\x8C",
                               std::string(5000, 'x')};
  auto archive = Open();
  std::int64_t id = 0;
  for (const auto& text : nasty) {
    auto document = Measured("/d/" + text, text, 120);
    document.elements[0].summary.name = text;
    document.elements[0].summary.doubts = {text};
    ASSERT_EQ(archive.Add(document).id, ++id);
    const auto found = archive.Find(id);
    EXPECT_EQ(found->entry.asset, text);
    EXPECT_EQ(found->elements[0].summary.doubts.at(0), text);
    EXPECT_EQ(archive.List({.asset = text}).size(), 1U) << text;
    EXPECT_EQ(archive.TrendOf(text, 410).points.size(), 1U) << text;
  }
}

TEST_P(AddTest, WhatWasNotCommittedIsNotThere) {
  auto archive = Open();
  archive.Add(Measured("/d/a.orvik", "P-7", 120));
  const auto database = Database();
  {
    const bench::Transaction undone(*database, bench::Database::Use::kWrite);
    database->Run("UPDATE orvik_documents SET asset = 'gone'", {});
  }
  EXPECT_EQ(archive.List({}).at(0).asset, "P-7");
}

TEST_P(AddTest, AChangedContentIsNoticed) {
  auto archive = Open();
  archive.Add(Measured("/d/a.orvik", "P-7", 120));
  Database()->Run("UPDATE orvik_contents SET contents = $1", {bench::Bytes{"other"}});
  EXPECT_THROW(archive.Find(1), std::runtime_error);
}

TEST_P(AddTest, FindTellsWhatIsNotThere) { EXPECT_FALSE(Open().Find(1)); }

ON_BOTH_DATABASES(AddTest);

}  // namespace
}  // namespace archive_tests
