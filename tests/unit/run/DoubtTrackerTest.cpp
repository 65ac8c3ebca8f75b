#include <gtest/gtest.h>

#include "OrvikTypeLib/IMessage.h"
#include "host/run/DoubtTracker.h"
#include "host/serial/MemoryTransport.h"
#include "host/serial/Port.h"
#include "toolkit/loop/EventLoop.h"

namespace host {
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
  /// The codes of what is noted for the element.
  Texts Codes(std::int32_t id = 1) const {
    Texts codes;
    for (const auto& doubt : tracker_.Of(id)) codes.push_back(doubt.code);
    return codes;
  }
  /// What is noted for element 1 after one exchange.
  Texts CodesOf(const std::string& mnemonic, const Texts& parameters, const std::string& reply) {
    tracker_.ElementStarts(1);
    Exchange(mnemonic, parameters, reply);
    return Codes();
  }
  /// ... in a session of its own.
  Texts CodesOfIdentity(const std::string& reply) {
    Raise(serial::WireRecord::Kind::kOpened);
    const auto codes = CodesOf("IREM", {}, reply);
    Raise(serial::WireRecord::Kind::kClosed);
    return codes;
  }
  void Raise(serial::WireRecord::Kind kind) {
    serial::WireRecord record{};
    record.kind = kind;
    wire_->Raise(record);
  }
  /// What is noted of a reading of test 410, setting 0.
  Texts CodesOfReading(const std::string& reply) { return CodesOf("GRES", {"410", "0"}, reply); }

  std::shared_ptr<toolkit::loop::EventLoop> loop_ =
      std::make_shared<toolkit::loop::EventLoop>(toolkit::loop::ClockKind::kVirtual, 1.0);
  std::shared_ptr<serial::Wire> wire_ = std::make_shared<serial::Wire>();
  run::DoubtTracker tracker_{*wire_};
  std::shared_ptr<serial::MemoryLine> line_ = std::make_shared<serial::MemoryLine>();
  std::shared_ptr<orvik::IPort> port_ =
      serial::Port::Create(std::make_unique<serial::MemoryTransport>(line_), loop_, wire_, "memory");
};

TEST_F(DoubtTrackerTest, AcceptsAValidRun) {
  tracker_.ElementStarts(1);
  Exchange("IREM", {}, "irem,KELD(IN),SIM-0001,3.10");
  Exchange("STST", {"410", "0"}, "stst,410,0");
  Exchange("GRES", {"410", "0"}, "gres,410,0,0.123,0,Ohm");
  Exchange("STST", {"210", "0"}, "stst,210,0");
  Exchange("EREM", {}, "erem");
  EXPECT_EQ(Codes(), Texts());
}

TEST_F(DoubtTrackerTest, DoubtsAReplyReceivedBeforeItsCommand) {
  tracker_.ElementStarts(1);
  Exchange("GRES", {"410", "0"}, "gres,410,0,0.123,0,Ohm");
  line_->Deliver("gres,410,0,0.123,0,Ohm\r\n");
  EXPECT_EQ(Codes(), Texts());
  Send("STST", {"210", "0"});
  EXPECT_EQ(tracker_.Of(1), (std::vector<document::Reason>{{"late-reply", {"STST,210,0"}}}));
}

TEST_F(DoubtTrackerTest, DoubtsAReplyForAnotherTestOrSetting) {
  EXPECT_EQ(CodesOfReading("gres,420,0,0.123,0,Ohm"), Texts{"other-test-named"});
  EXPECT_EQ(CodesOfReading("gres,410,1,0.123,0,Ohm"), Texts{"other-test-named"});
  EXPECT_EQ(CodesOf("STST", {"410", "0"}, "stst,420,0"), Texts{"other-test-named"});
  EXPECT_EQ(tracker_.Of(1),
            (std::vector<document::Reason>{{"other-test-named", {"stst,420,0", "STST,410,0"}}}));
}

// The protocol lets a tester confirm a command by its name alone.
TEST_F(DoubtTrackerTest, AcceptsAReplyWithoutTestAndSetting) {
  EXPECT_EQ(CodesOf("STST", {"410", "0"}, "stst"), Texts());
  EXPECT_EQ(CodesOf("STST", {"410", "0"}, "stst,410"), Texts());
  EXPECT_EQ(CodesOf("STST", {"410", "0"}, "stst, 410 ,0"), Texts());
}

TEST_F(DoubtTrackerTest, DoubtsAnInvalidLine) {
  tracker_.ElementStarts(1);
  Send("GRES", {"410", "0"});
  line_->Deliver("gres,4\x01\r\n");
  EXPECT_EQ(tracker_.Of(1), (std::vector<document::Reason>{{"invalid-line", {"gres,4\\x01"}}}));
}

TEST_F(DoubtTrackerTest, DoubtsAnOverload) {
  EXPECT_EQ(CodesOfReading("gres,410,0,20,1,Ohm"), Texts{"overload"});
}

TEST_F(DoubtTrackerTest, DoubtsAnInvalidReading) {
  const std::pair<const char*, Texts> rows[] = {
      {"gres", {"reading-fields"}},
      {"gres,410", {"reading-fields"}},
      {"gres,410,0,0.123", {"reading-fields"}},
      {"gres,410,0,0.123,0", {"reading-fields"}},
      {"gres,410,0,0.123,0,Ohm,x", {"reading-fields"}},
      {"gres,410,0,0.123,0,", {"unknown-unit"}},
      {"gres,410,0,0.123,0,Oh", {"unknown-unit"}},
      {"gres,410,0,0.123,0,ohm", {"unknown-unit"}},
      {"gres,410,0,,0,Ohm", {"not-a-number"}},
      {"gres,410,0,0.1x3,0,Ohm", {"not-a-number"}},
      {"gres,410,0,nan,0,Ohm", {"not-a-number"}},
      {"gres,410,0,>20,0,Ohm", {"not-a-number"}},
      {"gres,410,0,0.123,2,Ohm", {"overload-mark"}},
      {"gres,410,0,0.123,,Ohm", {"overload-mark"}},
      {"gres,410,0,x,1,Volt", {"not-a-number", "overload", "unknown-unit"}}};
  for (const auto& [reply, codes] : rows) EXPECT_EQ(CodesOfReading(reply), codes) << reply;
}

TEST_F(DoubtTrackerTest, AcceptsEveryNumberFormatOfTesters) {
  for (const char* value : {"0", "-0", "0.123", "+2", " 12", "1e-3", ".5"})
    EXPECT_EQ(CodesOfReading(std::string("gres,410,0,") + value + ",0,Ohm"), Texts()) << value;
  EXPECT_EQ(CodesOfReading("gres,410,0,12,0,\xB5"
                           "A"),
            Texts());
}

// A tester measures magnitudes; below an upper limit a negative one would always be.
TEST_F(DoubtTrackerTest, DoubtsANegativeReading) {
  for (const char* value : {"-1.5", "-0.001", "-1e-9", "-300"})
    EXPECT_EQ(CodesOfReading(std::string("gres,410,0,") + value + ",0,Ohm"), Texts{"negative-reading"})
        << value;
}

TEST_F(DoubtTrackerTest, DoubtsErrorsOtherThanNotSupported) {
  EXPECT_EQ(CodesOf("STST", {"410", "0"}, "ERRM,6002"), Texts());
  EXPECT_EQ(CodesOf("STST", {"410", "0"}, "ERRM,1003"), Texts{"refused-now"});
  EXPECT_EQ(CodesOf("GRES", {"410", "0"}, "ERRM,1003"), Texts());
  EXPECT_EQ(CodesOf("GRES", {"410", "0"}, "ERRM,6002"), Texts{"refused-elsewhere"});
}

// The number is the second field, as the plug-in reads it; of a single field, that one.
TEST_F(DoubtTrackerTest, ReadsTheErrorNumberAsThePlugInDoes) {
  EXPECT_EQ(CodesOf("STST", {"410", "0"}, "ERRM,text,1003"), Texts{"refused-now"});
  EXPECT_EQ(CodesOf("STST", {"410", "0"}, "ERRM,1003,text"), Texts());
  EXPECT_EQ(CodesOf("GRES", {"410", "0"}, "ERRM,text,6002,1003"), Texts{"refused-elsewhere"});
  EXPECT_EQ(CodesOf("GRES", {"410", "0"}, "ERRM,+6002.0"), Texts{"refused-elsewhere"});
}

TEST_F(DoubtTrackerTest, DoubtsAnIncompleteIdentity) {
  EXPECT_EQ(CodesOfIdentity("irem,KELD(IN)"), Texts{"identity-incomplete"});
  EXPECT_EQ(CodesOfIdentity("irem,KELD(IN),,3.10"), Texts{"no-serial-number"});
  EXPECT_EQ(CodesOfIdentity("irem,KELD(IN), ,3.10"), Texts{"no-serial-number"});
  EXPECT_EQ(CodesOfIdentity("irem,OTHER,1,3.10"), Texts{"other-tester"});
}

// The session's tester answers for each test of a sequence, though it names itself once.
TEST_F(DoubtTrackerTest, DoubtsTheTesterForEachElementOfASession) {
  Raise(serial::WireRecord::Kind::kOpened);
  EXPECT_EQ(CodesOf("IREM", {}, "irem,KELD(IN),,3.10"), Texts{"no-serial-number"});
  tracker_.ElementStarts(2);
  EXPECT_EQ(Codes(2), Texts{"no-serial-number"});
}

// An element starts before its port is opened: what the tester before it lacked is none of its business.
TEST_F(DoubtTrackerTest, EndsDoubtsOfTheTesterWithTheSession) {
  for (const auto end : {serial::WireRecord::Kind::kClosed, serial::WireRecord::Kind::kFailed}) {
    Raise(serial::WireRecord::Kind::kOpened);
    EXPECT_EQ(CodesOf("IREM", {}, "irem,KELD(IN),,3.10"), Texts{"no-serial-number"});
    Raise(end);
    tracker_.ElementStarts(2);
    EXPECT_EQ(Codes(2), Texts());
  }
}

TEST_F(DoubtTrackerTest, RecordsDoubtsForTheRunningElement) {
  tracker_.ElementStarts(1);
  Exchange("GRES", {"410", "0"}, "gres,410,0,1,1,Ohm");
  tracker_.ElementStarts(2);
  Exchange("GRES", {"420", "0"}, "gres,420,0,1,0,Ohm");
  EXPECT_EQ(Codes(1), Texts{"overload"});
  EXPECT_EQ(Codes(2), Texts());
  tracker_.ElementStarts(1);
  EXPECT_EQ(Codes(1), Texts());
}

TEST_F(DoubtTrackerTest, RecordsAndReportsEachDoubtOnce) {
  std::vector<std::pair<std::int32_t, std::string>> reported;
  const auto watch = tracker_.Noted().Subscribe(
      [&](std::int32_t id, const document::Reason& doubt) { reported.emplace_back(id, doubt.code); });
  tracker_.ElementStarts(1);
  for (int i = 0; i < 3; ++i) Exchange("GRES", {"410", "0"}, "gres,410,0,1,1,Ohm");
  EXPECT_EQ(Codes(), Texts{"overload"});
  EXPECT_EQ(reported, (std::vector<std::pair<std::int32_t, std::string>>{{1, "overload"}}));
}

TEST_F(DoubtTrackerTest, RecordsRepliesOfTheRunningElement) {
  Exchange("GRES", {"410", "0"}, "gres,410,0,9,0,Ohm");  // no element runs
  tracker_.ElementStarts(1);
  Exchange("IREM", {}, "irem,KELD(IN),SIM-0001,3.10");
  Exchange("STST", {"610", "0"}, "stst,610,0");
  Exchange("GRES", {"610", "0"}, "ERRM,77");
  Exchange("GRES", {"610", "0"},
           "gres,610,0,90,0,\xB5"
           "A");
  tracker_.ElementStarts(2);
  Exchange("GRES", {"420", "0"}, "gres,420,0,1,0,Ohm");
  EXPECT_EQ(tracker_.Said(1), (Texts{"ERRM,77",
                                     "gres,610,0,90,0,\xC2\xB5"
                                     "A"}));
  EXPECT_EQ(tracker_.Said(2), Texts{"gres,420,0,1,0,Ohm"});
  tracker_.Forget(1);
  EXPECT_EQ(tracker_.Said(1), Texts());
}

TEST_F(DoubtTrackerTest, RecordsAtMostEightReplies) {
  tracker_.ElementStarts(1);
  for (int i = 0; i < 100; ++i) Exchange("GRES", {"410", "0"}, "gres,410,0," + std::to_string(i) + ",0,Ohm");
  ASSERT_EQ(tracker_.Said(1).size(), 8u);
  EXPECT_EQ(tracker_.Said(1).front(), "gres,410,0,0,0,Ohm");
}

}  // namespace
}  // namespace host
