#include <gtest/gtest.h>

#include <algorithm>

#include "tester/Trace.h"
#include "tests/unit/tester/TestTools.h"

namespace sim {
namespace {

using support::TemporaryFolder;

std::string WithDigitsAsZero(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; }, '0');
  return text;
}

TEST(TraceTest, WritesTimeDirectionAndText) {
  const TemporaryFolder folder;
  {
    Trace trace(folder.Path("trace"));
    trace.Write("recv", "IREM");
    trace.Write("sent", "gres,\xB5\x0B");
  }
  const std::string text = support::ReadFile(folder.Path("trace"));
  const std::string time = "0000-00-00T00:00:00.000000Z ";
  EXPECT_EQ(WithDigitsAsZero(text), time + "recv IREM\n" + time + "sent gres,µ\\x0B\n");
}

TEST(TraceTest, KeepsAnOlderTrace) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("trace", "older\n");
  Trace(path).Write("recv", "x");
  EXPECT_EQ(support::ReadFile(path).substr(0, 6), "older\n");
  EXPECT_NE(support::ReadFile(path).find("recv x\n"), std::string::npos);
}

TEST(TraceTest, ReportsAFileThatCannotBeOpened) {
  const TemporaryFolder folder;
  EXPECT_EQ(test::InputErrorOf([&] { Trace(folder.Path("no/trace")); }),
            "--trace " + folder.Path("no/trace") +
                ": cannot be opened: No such file or directory; choose a file that you may write to");
}

TEST(TraceTest, FullDisk_Throws) {
  Trace trace("/dev/full");
  EXPECT_THROW(trace.Write("recv", "x"), SystemFailure);
}

}  // namespace
}  // namespace sim
