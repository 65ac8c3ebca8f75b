#include <gtest/gtest.h>

#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IMessage.h"
#include "OrvikTypeLib/IPort.h"
#include "host/run/LinkWatch.h"
#include "host/serial/MemoryTransport.h"
#include "toolkit/loop/EventLoop.h"

namespace host {
namespace {

class LinkWatchTest : public testing::Test {
 protected:
  LinkWatchTest() { ports_.Assign("KELD(IN)", "/dev/tester"); }

  /// Opens the port, in the place of the one that was open.
  void Open() {
    port_.reset();
    port_ = static_cast<orvik::IPortManager&>(ports_).OpenPort(1, "9600,O,8,1");
  }
  void Ask(const std::string& mnemonic) { port_->Send(port_->CreateMessage(mnemonic, {})); }
  /// A session that the tester has taken part in.
  void HaveSession() {
    Open();
    Ask("IREM");
    line_->Deliver("irem,KELD(IN),1,3.10\r\n");
  }

  std::shared_ptr<toolkit::loop::EventLoop> loop_ =
      std::make_shared<toolkit::loop::EventLoop>(toolkit::loop::ClockKind::kVirtual, 1.0);
  std::shared_ptr<serial::MemoryLine> line_ = std::make_shared<serial::MemoryLine>();
  serial::PortManager ports_{loop_, [this](const std::string&, const serial::LineSettings&) {
                               return std::make_unique<serial::MemoryTransport>(line_);
                             }};
  run::LinkWatch watch_{ports_};
  std::shared_ptr<orvik::IPort> port_;
};

TEST_F(LinkWatchTest, ReportsNothingWhileTheTesterAnswers) {
  EXPECT_EQ(watch_.Loss(), "");
  HaveSession();
  EXPECT_EQ(watch_.Loss(), "");
  port_->Close();
  EXPECT_EQ(watch_.Loss(), "");
}

TEST_F(LinkWatchTest, ReportsAnUnpluggedTesterUntilThePortIsOpenAgain) {
  HaveSession();
  line_->Unplug();
  EXPECT_NE(watch_.Loss().find("unplugged"), std::string::npos) << watch_.Loss();
  HaveSession();
  EXPECT_EQ(watch_.Loss(), "");
}

TEST_F(LinkWatchTest, ReportsATesterThatDoesNotReply) {
  Open();
  Ask("IREM");
  EXPECT_NE(watch_.Loss().find("no tester answers"), std::string::npos) << watch_.Loss();
  line_->Deliver("noise\r\n");
  EXPECT_EQ(watch_.Loss(), "") << "something is there";
  Open();
  Ask("STST");
  EXPECT_EQ(watch_.Loss(), "") << "only a session that starts is checked";
}

TEST_F(LinkWatchTest, ReportsAPortThatCannotBeOpened) {
  EXPECT_THROW(static_cast<orvik::IPortManager&>(ports_).OpenPort(7, "9600,O,8,1"), orvik::HostError);
  EXPECT_NE(watch_.Loss().find("port 7"), std::string::npos) << watch_.Loss();
  HaveSession();
  EXPECT_EQ(watch_.Loss(), "");
}

}  // namespace
}  // namespace host
