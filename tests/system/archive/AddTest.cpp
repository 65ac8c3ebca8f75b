#include <gmock/gmock.h>

#include "host/archive/ArchiveError.h"
#include "tests/system/archive/ArchiveTest.h"
#include "tests/system/archive/Documents.h"

namespace archive_tests {
namespace {

using host::archive::Archive;
using Added = host::archive::Archive::Added;
using host::judge::LimitVerdict;
using host::judge::Verdict;

class AddTest : public ArchiveTest {};

TEST_P(AddTest, ReturnsTheDocumentAsAdded) {
  auto document = Measured("/d/a.orvik", "P-7", 412.125);
  document.contents = std::string("\x00\xFF<\r\n'\x80", 7);
  document.entry.comment = "back from repair";
  document.entry.run = 12;
  auto archive = Open();
  const auto receipt = archive.Add(document);
  EXPECT_EQ(receipt.id, 1);
  const auto found = archive.Find(1);
  ASSERT_TRUE(found);
  EXPECT_EQ(found->contents, document.contents);
  EXPECT_EQ(found->instrument, document.instrument);
  EXPECT_EQ(found->entry.comment, "back from repair");
  EXPECT_EQ(found->entry.operatorName, "A. Berg");
  EXPECT_EQ(found->entry.run, 12);
  EXPECT_EQ(found->entry.runDate, "2026-03-01T09:30:00Z");
  EXPECT_EQ(found->entry.outcome, host::judge::Outcome::kFailed);
  EXPECT_TRUE(found->entry.finished);
  EXPECT_FALSE(found->entry.simulated);
}

TEST_P(AddTest, ReturnsEachElementAsJudged) {
  auto document = Measured("/d/a.orvik", "P-7", 412.125);
  auto first = document.elements[0].result;
  first.measurement->flags = "O";
  first.reasons = {{"late-reply", {"STST,410,0"}}, {"overload", {}}, {"judged-differently", {"a", "", "c"}}};
  first.limits.push_back({"AAMI", "", "uA", 1.5, {}, "", "", false, {}, {}});
  document.elements[0].result = first;
  host::archive::ArchivedElement sequence;
  sequence.result.id = 7;
  sequence.result.parent = 1;
  sequence.result.group = true;
  sequence.result.serviceValue = "x";
  sequence.result.recordOnly = true;
  document.elements.push_back(sequence);

  auto archive = Open();
  archive.Add(document);
  const auto found = archive.Find(1);
  ASSERT_TRUE(found);
  ASSERT_EQ(found->elements.size(), 2U);
  const auto& element = found->elements[0].result;
  EXPECT_EQ(found->elements[0].runDate, "2026-03-01T09:30:00Z");
  EXPECT_EQ(element.verdict, Verdict::kFailed);
  EXPECT_EQ(element.reasons, first.reasons);
  EXPECT_TRUE(element.judged);
  EXPECT_FALSE(element.recordOnly);
  EXPECT_EQ(element.run, 1);
  EXPECT_EQ(element.at, first.at);
  EXPECT_EQ(element.by, "A. Berg");
  EXPECT_EQ(element.value, 412.125);
  EXPECT_EQ(element.unit, "mOhm");
  EXPECT_EQ(element.serviceCode, "F");
  EXPECT_EQ(element.FailedStandards(), (std::vector<std::string>{"IEC 62353"}));
  ASSERT_TRUE(element.measurement);
  EXPECT_EQ(element.measurement->value, 412.125);
  EXPECT_EQ(element.measurement->flags, "O");
  EXPECT_EQ(element.measurement->status, 2);
  ASSERT_EQ(element.limits.size(), 2U);
  EXPECT_EQ(element.limits[0].description, "class I");
  EXPECT_EQ(element.limits[0].high, 300.0);
  EXPECT_TRUE(element.limits[0].selected);
  EXPECT_EQ(element.limits[0].verdict, LimitVerdict::kExceeded);
  EXPECT_EQ(element.limits[0].value, 412.125);
  EXPECT_EQ(element.limits[1].unit, "uA");
  EXPECT_EQ(element.limits[1].low, 1.5);
  EXPECT_FALSE(element.limits[1].high);
  EXPECT_FALSE(element.limits[1].selected);
  EXPECT_FALSE(element.limits[1].value);
  const auto& group = found->elements[1].result;
  EXPECT_EQ(group.parent, 1);
  EXPECT_TRUE(group.group);
  EXPECT_FALSE(group.measurement);
  EXPECT_TRUE(group.recordOnly);
  EXPECT_FALSE(group.judged);
  EXPECT_EQ(group.run, 0);
  EXPECT_EQ(group.verdict, Verdict::kNotTested);
  EXPECT_EQ(found->elements[1].runDate, "");
}

TEST_P(AddTest, ReturnsEveryVerdict) {
  const Verdict verdicts[] = {Verdict::kFailed,    Verdict::kDoubtful,     Verdict::kAborted,
                              Verdict::kNotTested, Verdict::kNotJudged,    Verdict::kRecorded,
                              Verdict::kPassed,    Verdict::kNotApplicable};
  const LimitVerdict limits[] = {LimitVerdict::kNotApplied, LimitVerdict::kWithin, LimitVerdict::kBelow,
                                 LimitVerdict::kExceeded, LimitVerdict::kNotComparable};
  auto document = Measured("/d/a.orvik", "P-7", 100);
  const auto element = document.elements[0];
  document.elements.clear();
  for (const auto verdict : verdicts) {
    document.elements.push_back(element);
    document.elements.back().result.verdict = verdict;
  }
  for (const auto verdict : limits) {
    document.elements.push_back(element);
    document.elements.back().result.limits[0].verdict = verdict;
  }
  auto archive = Open();
  archive.Add(document);
  const auto found = archive.Find(1);
  for (std::size_t i = 0; i < document.elements.size(); ++i) {
    EXPECT_EQ(found->elements[i].result.verdict, document.elements[i].result.verdict) << i;
    EXPECT_EQ(found->elements[i].result.limits[0].verdict, document.elements[i].result.limits[0].verdict)
        << i;
  }
}

TEST_P(AddTest, RefusesAnUnknownVerdict) {
  auto archive = Open();
  archive.Add(Measured("/d/a.orvik", "P-7", 100));
  Database()->Run("UPDATE orvik_elements SET verdict = 'good'", {});
  EXPECT_THROW(archive.Find(1), host::archive::ArchiveError);
}

TEST_P(AddTest, MarksWhatIsSimulated) {
  auto archive = Open();
  archive.Add(Simulated(Measured("/d/a.orvik", "P-7", 100)));
  EXPECT_TRUE(archive.Find(1)->entry.simulated);
  EXPECT_TRUE(archive.List({}).at(0).simulated);
}

TEST_P(AddTest, KeepsNoTesterAndNoValueAsNone) {
  auto document = Measured("/d/a.orvik", "P-7", 1);
  document.instrument.reset();
  document.elements[0].result.measurement->value.reset();
  auto archive = Open();
  archive.Add(document);
  const auto found = archive.Find(1);
  EXPECT_FALSE(found->instrument);
  ASSERT_TRUE(found->elements[0].result.measurement);
  EXPECT_FALSE(found->elements[0].result.measurement->value);
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

TEST_P(AddTest, AddsAChangeAsARevision_AndTheOldStateToo) {
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

TEST_P(AddTest, DoesNotAddACopyUnderAnotherName) {
  auto archive = Open();
  auto document = Measured("/d/a.orvik", "P-7", 120);
  archive.Add(document);
  document.entry.path = "/usb/copy.orvik";
  EXPECT_EQ(archive.Add(document).added, Added::kUnchanged);
  EXPECT_EQ(archive.List({}).size(), 1U);
}

TEST_P(AddTest, SeparatesEquipmentOfOneFile) {
  auto archive = Open();
  archive.Add(Measured("/d/a.orvik", "P-7", 120));
  auto serial = Measured("/d/a.orvik", "P-7", 121);
  serial.entry.serial = "S-2";
  for (const auto& other : {Measured("/d/a.orvik", "P-8", 120), serial}) {
    const auto receipt = archive.Add(other);
    EXPECT_EQ(receipt.added, Added::kNew) << other.entry.serial;
    EXPECT_EQ(receipt.revision, 1);
  }
  EXPECT_EQ(archive.Find(1)->entry.revisions, 1);
}

TEST_P(AddTest, StoresHostileTextsUnchanged) {
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
    document.elements[0].result.name = text;
    document.elements[0].result.reasons = {{text, {"", text}}};
    ASSERT_EQ(archive.Add(document).id, ++id);
    const auto found = archive.Find(id);
    EXPECT_EQ(found->entry.asset, text);
    EXPECT_EQ(found->elements[0].result.reasons, document.elements[0].result.reasons);
    EXPECT_EQ(archive.List({.asset = text}).size(), 1U) << text;
    EXPECT_EQ(archive.TrendOf(text, 410).points.size(), 1U) << text;
  }
}

TEST_P(AddTest, RollsBackWithoutCommit) {
  auto archive = Open();
  archive.Add(Measured("/d/a.orvik", "P-7", 120));
  const auto database = Database();
  {
    const host::archive::Transaction undone(*database, host::archive::Database::Use::kWrite);
    database->Run("UPDATE orvik_documents SET asset = 'gone'", {});
  }
  EXPECT_EQ(archive.List({}).at(0).asset, "P-7");
}

TEST_P(AddTest, DetectsChangedContents) {
  auto archive = Open();
  archive.Add(Measured("/d/a.orvik", "P-7", 120));
  Database()->Run("UPDATE orvik_contents SET contents = $1", {host::archive::Bytes{"other"}});
  EXPECT_THROW(archive.Find(1), std::runtime_error);
}

TEST_P(AddTest, FindsNothing_UnknownDocument) { EXPECT_FALSE(Open().Find(1)); }

ON_BOTH_DATABASES(AddTest);

}  // namespace
}  // namespace archive_tests
