#include <gtest/gtest.h>

#include <regex>

#include "tester/Trace.h"
#include "tests/tester/TestTools.h"

namespace sim {
namespace {

using test::TempFolder;

TEST(TraceTest, EachLineHasTimeDirectionAndReadableText) {
  const TempFolder folder;
  {
    Trace trace(folder.Path("trace"));
    trace.Write("recv", "IREM");
    trace.Write("sent", "gres,\xB5\x1B");
  }
  const std::string text = test::ReadAll(folder.Path("trace"));
  const std::string time = R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{6}Z )";
  EXPECT_TRUE(std::regex_match(text, std::regex(time + "recv IREM\n" + time + R"(sent gres,µ\\x1B)" + "\n")))
      << text;
}

TEST(TraceTest, AnOlderTraceIsKept) {
  const TempFolder folder;
  const std::string path = folder.Write("trace", "older\n");
  Trace(path).Write("recv", "x");
  EXPECT_EQ(test::ReadAll(path).substr(0, 6), "older\n");
  EXPECT_NE(test::ReadAll(path).find("recv x\n"), std::string::npos);
}

TEST(TraceTest, AFileThatCannotBeOpenedIsTold) {
  const TempFolder folder;
  EXPECT_EQ(test::InputErrorOf([&] { Trace(folder.Path("no/trace")); }),
            "--trace " + folder.Path("no/trace") +
                ": cannot be opened: No such file or directory; choose a file that you may write to");
}

TEST(TraceTest, AFullDiskIsAFailure) {
  Trace trace("/dev/full");
  EXPECT_THROW(trace.Write("recv", "x"), SystemFailure);
}

}  // namespace
}  // namespace sim
