#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

#include "OrvikTypeLib/HostError.h"
#include "host/serial/WireLog.h"

namespace host {
namespace {

class WireLogTest : public testing::Test {
 protected:
  WireLogTest() : folder_(std::filesystem::path(testing::TempDir()) / ("log-" + std::to_string(getpid()))) {
    std::filesystem::create_directories(folder_);
  }
  ~WireLogTest() override { std::filesystem::remove_all(folder_); }

  std::string Path() const { return folder_ / "run.wire.log"; }

  static std::string Contents(const std::string& path) {
    std::ifstream file(path);
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
  }

  static serial::WireRecord Record(serial::WireRecord::Kind kind, std::string_view text,
                                   bool replyWaiting = false) {
    return {kind, {}, text, nullptr, replyWaiting};
  }

  const std::filesystem::path folder_;
};

TEST_F(WireLogTest, WritesTimeDirectionAndText) {
  serial::WireLog log(Path());
  log.Write(Record(serial::WireRecord::Kind::kOpened, "/dev/x 9600,O,8,1"));
  log.Write(Record(serial::WireRecord::Kind::kSent, "STST,410,0"));
  log.Write(Record(serial::WireRecord::Kind::kReceived,
                   "gres,610,0,12,0,\xB5"
                   "A"));
  log.Write(Record(serial::WireRecord::Kind::kDropped, "a\x01"));
  log.Write(Record(serial::WireRecord::Kind::kSent, "GRES,410,0", true));
  log.Write(Record(serial::WireRecord::Kind::kFailed, "the line has failed"));
  const std::string time = "\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\\.\\d{6}Z ";
  const std::regex expected(time + "note /dev/x 9600,O,8,1\n" + time + "sent STST,410,0\n" + time +
                            "recv gres,610,0,12,0,\u00B5A\n" + time + "lost a\\\\x01\n" + time +
                            "note a reply was already waiting\n" + time + "sent GRES,410,0\n" + time +
                            "note the line has failed\n");
  EXPECT_TRUE(std::regex_match(Contents(Path()), expected)) << Contents(Path());
}

TEST_F(WireLogTest, AppendsToAnEarlierLog) {
  serial::WireLog(Path()).Note("first");
  serial::WireLog(Path()).Note("second");
  const auto text = Contents(Path());
  EXPECT_NE(text.find("first"), std::string::npos);
  EXPECT_LT(text.find("first"), text.find("second"));
}

TEST_F(WireLogTest, RotatesAndKeepsTheNewestLines) {
  serial::WireLog log(Path(), 2000);
  for (int i = 0; i < 1000; ++i) log.Note("line " + std::to_string(i));
  EXPECT_LE(std::filesystem::file_size(Path()), 2000u);
  EXPECT_LE(std::filesystem::file_size(Path() + ".1"), 2000u);
  EXPECT_NE(Contents(Path()).find("line 999\n"), std::string::npos);
  std::size_t files = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder_)) ++files;
  EXPECT_EQ(files, 2u);
  EXPECT_EQ(log.Failure(), "");
}

TEST_F(WireLogTest, NamesAFileThatCannotBeWritten) {
  try {
    serial::WireLog log(folder_ / "absent" / "x.log");
    FAIL();
  } catch (const orvik::HostError& error) {
    EXPECT_NE(error.Description().find("absent/x.log"), std::string::npos);
    EXPECT_NE(error.Description().find("--wire-log"), std::string::npos);
  }
}

TEST_F(WireLogTest, NeverChangesAFileWithOtherContent) {
  for (const auto* contents : {"<?xml version=\"1.0\"?>\n<OrvikDocument/>\n", "short", "\n",
                               "2026-11-22 my own notes", "2026-11-22T10:00:00.12345"}) {
    std::ofstream(Path()) << contents;
    try {
      serial::WireLog log(Path());
      ADD_FAILURE() << contents;
    } catch (const orvik::HostError& error) {
      EXPECT_NE(error.Description().find(Path() + ": the file has other content"), std::string::npos);
      EXPECT_NE(error.Description().find("--wire-log"), std::string::npos);
    }
    EXPECT_EQ(Contents(Path()), contents);
  }
}

TEST_F(WireLogTest, AppendsToAnEmptyFile) {
  std::ofstream(Path()).flush();
  serial::WireLog(Path()).Note("first");
  EXPECT_NE(Contents(Path()).find("note first"), std::string::npos);
}

TEST_F(WireLogTest, NeverReplacesAnOlderFileWithOtherContent) {
  std::ofstream(Path() + ".1") << "mine";
  serial::WireLog log(Path(), 100);
  for (int i = 0; i < 10; ++i) log.Note("line");
  EXPECT_EQ(Contents(Path() + ".1"), "mine");
  EXPECT_NE(log.Failure().find(".1 exists and is not a wire log"), std::string::npos) << log.Failure();
}

TEST_F(WireLogTest, DoesNotThrowOnAFullDisk) {
  serial::WireLog log("/dev/full");
  log.Note("x");
  EXPECT_NE(log.Failure(), "");
  log.Note("y");
}

}  // namespace
}  // namespace host
