#include <gtest/gtest.h>

#include "OrvikTypeLib/IMessage.h"
#include "host/loop/EventLoop.h"
#include "host/run/DoubtTracker.h"
#include "host/serial/MemoryTransport.h"
#include "host/serial/Port.h"

namespace bench {
namespace {

using Texts = std::vector<std::string>;

class DoubtTrackerTest : public testing::Test {
 protected:
  void Send(const std::string& mnemonic, const Texts& parameters = {}) {
    port_->Send(port_->CreateMessage(mnemonic, parameters));
  }
  /// A reply that is taken as soon as it has come.
  void Answer(const std::string& line) {
    line_->Deliver(line + "\r\n");
    while (port_->ReceivedCount() > 0) port_->TakeMessage();
  }
  void Exchange(const std::string& mnemonic, const Texts& parameters, const std::string& reply) {
    Send(mnemonic, parameters);
    Answer(reply);
  }
  /// The doubt of a reading of test 410, setting 0.
  std::string DoubtOfReading(const std::string& reply) {
    tracker_.ElementStarts(1);
    Exchange("GRES", {"410", "0"}, reply);
    return tracker_.Of(1).empty() ? "" : tracker_.Of(1).front();
  }

  std::shared_ptr<EventLoop> loop_ = std::make_shared<EventLoop>(ClockKind::kVirtual, 1.0);
  std::shared_ptr<Wire> wire_ = std::make_shared<Wire>();
  DoubtTracker tracker_{*wire_};
  std::shared_ptr<MemoryLine> line_ = std::make_shared<MemoryLine>();
  std::shared_ptr<orvik::IPort> port_ =
      Port::Create(std::make_unique<MemoryTransport>(line_), loop_, wire_, "memory");
};

TEST_F(DoubtTrackerTest, AGoodRunIsBeyondDoubt) {
  tracker_.ElementStarts(1);
  Exchange("IREM", {}, "irem,KELD(IN),SIM-0001,3.10");
  Exchange("STST", {"410", "0"}, "stst,410,0");
  Exchange("GRES", {"410", "0"}, "gres,410,0,0.123,0,Ohm");
  Exchange("STST", {"210", "0"}, "stst,210,0");
  Exchange("EREM", {}, "erem");
  EXPECT_TRUE(tracker_.Of(1).empty());
}

TEST_F(DoubtTrackerTest, AReplyThatWasWaitingIsADoubt) {
  tracker_.ElementStarts(1);
  Exchange("GRES", {"410", "0"}, "gres,410,0,0.123,0,Ohm");
  line_->Deliver("gres,410,0,0.123,0,Ohm\r\n");
  EXPECT_TRUE(tracker_.Of(1).empty());
  Send("STST", {"210", "0"});
  ASSERT_EQ(tracker_.Of(1).size(), 1u);
  EXPECT_NE(tracker_.Of(1)[0].find("STST,210,0"), std::string::npos);
}

TEST_F(DoubtTrackerTest, AReplyThatNamesAnotherTestOrSettingIsADoubt) {
  EXPECT_NE(DoubtOfReading("gres,420,0,0.123,0,Ohm").find("another test"), std::string::npos);
  EXPECT_NE(DoubtOfReading("gres,410,1,0.123,0,Ohm").find("another test"), std::string::npos);
  tracker_.ElementStarts(1);
  Exchange("STST", {"410", "0"}, "stst,420,0");
  EXPECT_EQ(tracker_.Of(1).size(), 1u);
}

TEST_F(DoubtTrackerTest, ADroppedLineIsADoubt) {
  tracker_.ElementStarts(1);
  Send("GRES", {"410", "0"});
  line_->Deliver("gres,4\x01\r\n");
  ASSERT_EQ(tracker_.Of(1).size(), 1u);
  EXPECT_NE(tracker_.Of(1)[0].find("\\x01"), std::string::npos);
}

TEST_F(DoubtTrackerTest, AnOverloadIsADoubt) {
  EXPECT_NE(DoubtOfReading("gres,410,0,20,1,Ohm").find("OL"), std::string::npos);
}

TEST_F(DoubtTrackerTest, AReadingThatIsNotWholeIsADoubt) {
  for (const char* reply :
       {"gres", "gres,410", "gres,410,0,0.123", "gres,410,0,0.123,0", "gres,410,0,0.123,0,",
        "gres,410,0,0.123,0,Oh", "gres,410,0,0.123,0,ohm", "gres,410,0,0.123,0,Ohm,x", "gres,410,0,,0,Ohm",
        "gres,410,0,0.1x3,0,Ohm", "gres,410,0,nan,0,Ohm", "gres,410,0,>20,0,Ohm", "gres,410,0,0.123,2,Ohm",
        "gres,410,0,0.123,,Ohm"})
    EXPECT_NE(DoubtOfReading(reply), "") << reply;
}

TEST_F(DoubtTrackerTest, NumbersAsTestersWriteThemAreNone) {
  for (const char* value : {"0", "-0", "0.123", "+2", " 12", "1e-3", ".5"})
    EXPECT_EQ(DoubtOfReading(std::string("gres,410,0,") + value + ",0,Ohm"), "") << value;
  EXPECT_EQ(DoubtOfReading("gres,410,0,12,0,\xB5"
                           "A"),
            "");
}

// A tester measures magnitudes; below an upper limit a negative one would always be.
TEST_F(DoubtTrackerTest, ANegativeReadingIsADoubt) {
  for (const char* value : {"-1.5", "-0.001", "-1e-9", "-300"})
    EXPECT_NE(DoubtOfReading(std::string("gres,410,0,") + value + ",0,Ohm").find("negative"),
              std::string::npos)
        << value;
}

TEST_F(DoubtTrackerTest, ATestRefusedAsNotAllowedNowIsADoubtAndOneThatIsMissingIsNone) {
  tracker_.ElementStarts(1);
  Exchange("STST", {"410", "0"}, "ERRM,6002");
  EXPECT_TRUE(tracker_.Of(1).empty());
  Exchange("STST", {"410", "0"}, "ERRM,1003");
  EXPECT_EQ(tracker_.Of(1).size(), 1u);
}

TEST_F(DoubtTrackerTest, AnIncompleteIdentityIsADoubt) {
  tracker_.ElementStarts(1);
  Exchange("IREM", {}, "irem,KELD(IN)");
  EXPECT_EQ(tracker_.Of(1).size(), 1u);
}

TEST_F(DoubtTrackerTest, DoubtsBelongToTheElementThatRuns) {
  tracker_.ElementStarts(1);
  Exchange("GRES", {"410", "0"}, "gres,410,0,1,1,Ohm");
  tracker_.ElementStarts(2);
  Exchange("GRES", {"420", "0"}, "gres,420,0,1,0,Ohm");
  EXPECT_EQ(tracker_.Of(1).size(), 1u);
  EXPECT_TRUE(tracker_.Of(2).empty());
  tracker_.ElementStarts(1);
  EXPECT_TRUE(tracker_.Of(1).empty());
}

TEST_F(DoubtTrackerTest, NotesEachDoubtOnceAndTellsOfIt) {
  int told = 0;
  const auto watch = tracker_.Noted().Subscribe([&](std::int32_t, const std::string&) { ++told; });
  tracker_.ElementStarts(1);
  for (int i = 0; i < 3; ++i) Exchange("GRES", {"410", "0"}, "gres,410,0,1,1,Ohm");
  EXPECT_EQ(tracker_.Of(1).size(), 1u);
  EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace bench
