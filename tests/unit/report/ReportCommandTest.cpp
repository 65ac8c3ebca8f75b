#include <gmock/gmock.h>

#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

using testing::HasSubstr;

class ReportCommandTest : public CliTest {};

TEST_F(ReportCommandTest, WritesTheFormatOfTheEnding) {
  const auto file = NewDocument({"410"});
  const auto begins = [this](const std::string& name) { return Contents(Path(name)).substr(0, 9); };
  for (const char* name : {"a.html", "a.pdf", "a.txt", "B.PDF"}) {
    const auto written = Bench({"report", file, "--to", Path(name)});
    EXPECT_EQ(written.status, 0) << written.error;
    EXPECT_EQ(written.out, Path(name) + "\n");
  }
  EXPECT_EQ(begins("a.html"), "<!DOCTYPE");
  EXPECT_EQ(begins("a.pdf").substr(0, 5), "%PDF-");
  EXPECT_EQ(begins("B.PDF").substr(0, 5), "%PDF-");
  EXPECT_EQ(begins("a.txt"), "Electrica");
}

TEST_F(ReportCommandTest, RefusesAnotherEnding) {
  const auto file = NewDocument({"410"});
  for (const char* name : {"a.doc", "a", "pdf", "a.html.gz"}) {
    const auto refused = Bench({"report", file, "--to", Path(name)});
    EXPECT_EQ(refused.status, 3);
    for (const char* ending : {".html", ".pdf", ".txt"}) EXPECT_THAT(refused.error, HasSubstr(ending));
    EXPECT_FALSE(std::filesystem::exists(Path(name)));
  }
}

TEST_F(ReportCommandTest, WritesEachFormatToStandardOutput) {
  const auto file = NewDocument({"410"});
  for (const char* format : {"html", "pdf", "txt"}) {
    const auto name = Path(std::string("a.") + format);
    ASSERT_EQ(Bench({"report", file, "--to", name}).status, 0);
    const auto written = Bench({"report", file, "--to", "-", "--format", format});
    EXPECT_EQ(written.status, 0) << written.error;
    EXPECT_EQ(written.error, "");
    EXPECT_EQ(written.out, Contents(name)) << format;
  }
  EXPECT_EQ(Bench({"report", file, "--to", "-"}).out, Contents(Path("a.txt")));
}

TEST_F(ReportCommandTest, FormatOptionOverridesTheEnding) {
  const auto file = NewDocument({"410"});
  ASSERT_EQ(Bench({"report", file, "--to", Path("a"), "--format", "HTML"}).status, 0);
  EXPECT_EQ(Contents(Path("a")).substr(0, 9), "<!DOCTYPE");
  const auto refused = Bench({"report", file, "--to", "-", "--format", "doc"});
  EXPECT_EQ(refused.status, 3);
  EXPECT_EQ(refused.out, "");
  EXPECT_THAT(refused.error, HasSubstr("--format doc: unknown format (html, pdf, txt)"));
}

TEST_F(ReportCommandTest, FailsWhenStandardOutputIsFull) {
  const auto file = NewDocument({"410"});
  const auto line = std::string(ORVIK_BENCH_PATH) + " report '" + file + "' --to - > /dev/full";
  EXPECT_EQ(support::RunShell(line).status, 2);
}

TEST_F(ReportCommandTest, NamesAPathThatCannotBeWritten) {
  const auto file = NewDocument({"410"});
  const auto refused = Bench({"report", file, "--to", Path("none/a.html")});
  EXPECT_EQ(refused.status, 3);
  EXPECT_THAT(refused.error, HasSubstr("none/a.html"));
}

TEST_F(ReportCommandTest, RefusesToOverwriteTheDocument) {
  std::filesystem::rename(NewDocument({"410"}), Path("d.html"));
  const auto before = Contents(Path("d.html"));
  EXPECT_EQ(Bench({"report", Path("d.html"), "--to", Path("./d.html")}).status, 3);
  EXPECT_EQ(Contents(Path("d.html")), before);
}

TEST_F(ReportCommandTest, ReplacesAReportWithTheSameBytes) {
  const auto file = NewDocument({"410"});
  SetLimit(file, "1", "300");
  EXPECT_EQ(Bench(Simulated(file, "sound-class-1", {"--by", "M. Holm"})).status, 0);
  for (const char* name : {"a.html", "a.pdf", "a.txt"}) {
    Write(name, "old");
    EXPECT_EQ(Bench({"report", file, "--to", Path(name)}).status, 0);
    const auto first = Contents(Path(name));
    EXPECT_GT(first.size(), 1000U);
    EXPECT_EQ(Bench({"report", file, "--to", Path(name)}).status, 0);
    EXPECT_EQ(Contents(Path(name)), first) << name;
  }
  EXPECT_THAT(Contents(Path("a.txt")), HasSubstr("M. Holm"));
}

TEST_F(ReportCommandTest, ReportsOneRun_RefusesUnknownOnes) {
  const auto file = NewDocument({"410"});
  SetLimit(file, "1", "300");
  const auto none = Bench({"report", file, "--to", Path("a.txt"), "--run", "1"});
  EXPECT_EQ(none.status, 3);
  EXPECT_THAT(none.error, HasSubstr("--run 1"));
  EXPECT_EQ(Bench(Simulated(file, "broken-earth", {"--by", "A. Berg"})).status, 1);
  EXPECT_EQ(Bench(Simulated(file, "sound-class-1", {"--by", "M. Holm"})).status, 0);
  for (const char* name : {"a.html", "a.pdf", "a.txt"})
    EXPECT_EQ(Bench({"report", file, "--to", Path(name), "--run", "1"}).status, 0) << name;
  const auto text = Contents(Path("a.txt"));
  EXPECT_THAT(text, HasSubstr("Run 1 of 2: what was done then, not what counts now."));
  EXPECT_THAT(text, HasSubstr("A. Berg"));
  EXPECT_THAT(text, testing::Not(HasSubstr("M. Holm")));
  for (const char* number : {"0", "3", "-1"}) {
    const auto refused = Bench({"report", file, "--to", Path("b.txt"), "--run", number});
    EXPECT_EQ(refused.status, 3) << number;
    EXPECT_THAT(refused.error, HasSubstr("--run"));
  }
  EXPECT_FALSE(std::filesystem::exists(Path("b.txt")));
}

TEST_F(ReportCommandTest, JudgesByTheNamedStandards) {
  const auto file = NewDocument({"410"});
  SetLimit(file, "1", "300");
  const auto narrowed = Bench({"report", file, "--to", "-", "--standard", "IEC 62353"});
  EXPECT_EQ(narrowed.status, 0);
  const auto refused = Bench({"report", file, "--to", "-", "--standard", "IEC 1"});
  EXPECT_EQ(refused.status, 3);
  EXPECT_THAT(refused.error, HasSubstr("\"IEC 62353\""));
}

}  // namespace
}  // namespace cli
