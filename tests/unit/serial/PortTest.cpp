#include <gtest/gtest.h>

#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IMessage.h"
#include "host/serial/MemoryTransport.h"
#include "host/serial/Message.h"
#include "host/serial/Port.h"
#include "tests/support/WireLines.h"
#include "toolkit/loop/EventLoop.h"

namespace host {
namespace {

using orvik::HostError;
using Texts = std::vector<std::string>;

class PortTest : public testing::Test {
 protected:
  PortTest() {
    heard_ = line_->Sent().Subscribe([this](std::string_view bytes) { sent_ += bytes; });
    port_ = serial::Port::Create(std::make_unique<serial::MemoryTransport>(line_), loop_, wire_,
                                 "memory 9600,O,8,1");
  }

  std::string Take() { return port_->TakeMessage()->Mnemonic(); }

  template <class Action>
  static std::int32_t ErrorOf(Action action) {
    try {
      action();
    } catch (const HostError& error) {
      return error.Number();
    }
    return 0;
  }

  std::shared_ptr<toolkit::loop::EventLoop> loop_ =
      std::make_shared<toolkit::loop::EventLoop>(toolkit::loop::ClockKind::kVirtual, 1.0);
  std::shared_ptr<serial::Wire> wire_ = std::make_shared<serial::Wire>();
  support::WireLines record_{*wire_};
  std::shared_ptr<serial::MemoryLine> line_ = std::make_shared<serial::MemoryLine>();
  orvik::platform::Subscription heard_;
  std::string sent_;
  std::shared_ptr<orvik::IPort> port_;
};

TEST_F(PortTest, SendsWholeLines) {
  port_->Send(port_->CreateMessage("IREM", {}));
  port_->Send(port_->CreateMessage("STST", Texts{"410", "0"}));
  EXPECT_EQ(sent_, "IREM\r\nSTST,410,0\r\n");
  EXPECT_EQ(record_.Sent(), (Texts{"IREM", "STST,410,0"}));
}

TEST_F(PortTest, RejectsParametersOfAnotherType) {
  EXPECT_EQ(ErrorOf([&] { port_->CreateMessage("X", std::int32_t{1}); }), HostError::kTypeMismatch);
  EXPECT_EQ(ErrorOf([&] { port_->CreateMessage("X", std::string("1")); }), HostError::kTypeMismatch);
}

TEST_F(PortTest, QueuesReceivedMessages) {
  line_->Deliver("one\r\ntwo\r\nthr");
  EXPECT_EQ(port_->ReceivedCount(), 2);
  line_->Deliver("ee\r");
  EXPECT_EQ(port_->ReceivedCount(), 3);
  EXPECT_EQ(Take(), "one");
  EXPECT_EQ(Take(), "two");
  EXPECT_EQ(Take(), "three");
  EXPECT_EQ(port_->ReceivedCount(), 0);
  EXPECT_EQ(ErrorOf([&] { port_->TakeMessage(); }), HostError::kSubscriptOutOfRange);
}

TEST_F(PortTest, DiscardsAndCountsInvalidLines) {
  line_->Deliver("a\x01z\r\n" + std::string(1025, 'x') + "\r\nx,\"a\r\nok\r\n");
  EXPECT_EQ(port_->ReceivedCount(), 1);
  EXPECT_EQ(Take(), "ok");
  EXPECT_EQ(std::dynamic_pointer_cast<serial::Port>(port_)->LinesDropped(), 3u);
  EXPECT_EQ(record_.Count(serial::WireRecord::Kind::kDropped), 3u);
}

TEST_F(PortTest, LimitsTheQueue) {
  for (std::size_t i = 0; i < serial::Port::kMaxWaiting + 5; ++i) line_->Deliver("m\r\n");
  EXPECT_EQ(port_->ReceivedCount(), static_cast<std::int32_t>(serial::Port::kMaxWaiting));
  EXPECT_EQ(std::dynamic_pointer_cast<serial::Port>(port_)->LinesDropped(), 5u);
}

TEST_F(PortTest, RecordsRepliesReceivedBeforeACommand) {
  port_->Send(port_->CreateMessage("A", {}));
  line_->Deliver("late\r\n");
  port_->Send(port_->CreateMessage("B", {}));
  Take();
  line_->Deliver("begun");
  port_->Send(port_->CreateMessage("C", {}));
  line_->Deliver("\r\n");
  Take();
  port_->Send(port_->CreateMessage("D", {}));
  std::vector<bool> waiting;
  for (const auto& line : record_.All()) {
    if (line.kind == serial::WireRecord::Kind::kSent) waiting.push_back(line.replyWaiting);
  }
  EXPECT_EQ(waiting, (std::vector<bool>{false, true, true, false}));
}

TEST_F(PortTest, KeepsReceivedMessagesWhenUnplugged) {
  line_->Deliver("last\r\nhalf");
  line_->Unplug();
  EXPECT_FALSE(port_->IsOpen());
  EXPECT_EQ(port_->ReceivedCount(), 1);
  EXPECT_EQ(Take(), "last");
  EXPECT_EQ(ErrorOf([&] { port_->Send(port_->CreateMessage("A", {})); }), HostError::kDeviceError);
  EXPECT_EQ(record_.Count(serial::WireRecord::Kind::kFailed), 1u);
  EXPECT_TRUE(record_.Sent().empty());
}

TEST_F(PortTest, ClosesOnce) {
  line_->Deliver("waiting\r\n");
  port_->Close();
  port_->Close();
  EXPECT_FALSE(port_->IsOpen());
  EXPECT_FALSE(line_->Connected());
  EXPECT_EQ(port_->ReceivedCount(), 0);
  EXPECT_EQ(record_.Count(serial::WireRecord::Kind::kClosed), 1u);
}

TEST_F(PortTest, ClosesItsLineWhenReleased) {
  port_.reset();
  EXPECT_FALSE(line_->Connected());
}

TEST_F(PortTest, MayBeReleasedByAReceivedMessage) {
  const auto watch = wire_->Subscribe([this](const serial::WireRecord& record) {
    if (record.kind == serial::WireRecord::Kind::kReceived) port_.reset();
  });
  line_->Deliver("one\r\ntwo\r\n");
  EXPECT_FALSE(port_);
  EXPECT_FALSE(line_->Connected());
}

TEST_F(PortTest, AllowsOneNearEndOfALine) {
  EXPECT_EQ(ErrorOf([&] { serial::MemoryTransport second(line_); }), HostError::kDeviceError);
  line_->Unplug();
  serial::MemoryTransport second(line_);
  EXPECT_TRUE(second.IsOpen());
  port_.reset();  // the old near end closes, the new one stays
  EXPECT_TRUE(second.IsOpen());
}

}  // namespace
}  // namespace host
