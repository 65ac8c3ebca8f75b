#include <gtest/gtest.h>

#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IPort.h"
#include "host/serial/MemoryTransport.h"
#include "host/serial/PortManager.h"
#include "toolkit/loop/EventLoop.h"

namespace host {
namespace {

class PortManagerTest : public testing::Test {
 protected:
  std::shared_ptr<toolkit::loop::EventLoop> loop_ =
      std::make_shared<toolkit::loop::EventLoop>(toolkit::loop::ClockKind::kVirtual, 1.0);
  std::shared_ptr<serial::MemoryLine> line_ = std::make_shared<serial::MemoryLine>();
  std::string device_;
  serial::LineSettings settings_;
  std::shared_ptr<serial::PortManager> manager_ = std::make_shared<serial::PortManager>(
      loop_, [this](const std::string& device, const serial::LineSettings& settings) {
        device_ = device;
        settings_ = settings;
        return std::make_unique<serial::MemoryTransport>(line_);
      });
};

TEST_F(PortManagerTest, FindsNoPortForAnUnknownInstrument) { EXPECT_LT(manager_->FindPort("KELD(IN)"), 1); }

TEST_F(PortManagerTest, FindsAndOpensTheAssignedDevice) {
  manager_->Assign("OTHER", "/dev/other");
  manager_->Assign("KELD(IN)", "/dev/tester");
  const auto number = manager_->FindPort("KELD(IN)");
  EXPECT_EQ(number, 2);
  const auto port = manager_->OpenPort(number, "9600,O,8,1");
  EXPECT_TRUE(port->IsOpen());
  EXPECT_EQ(device_, "/dev/tester");
  EXPECT_EQ(settings_, (serial::LineSettings{9600, serial::Parity::kOdd, 8, serial::StopBits::kOne}));
}

TEST_F(PortManagerTest, KeepsThePortNumberOnReassignment) {
  manager_->Assign("KELD(IN)", "/dev/first");
  manager_->Assign("KELD(IN)", "/dev/second");
  EXPECT_EQ(manager_->FindPort("KELD(IN)"), 1);
  manager_->OpenPort(1, "9600,O,8,1");
  EXPECT_EQ(device_, "/dev/second");
}

TEST_F(PortManagerTest, UnassignsTheDevice) {
  manager_->Assign("KELD(IN)", "/dev/tester");
  manager_->Unassign("KELD(IN)");
  EXPECT_LT(manager_->FindPort("KELD(IN)"), 1);
  EXPECT_THROW(manager_->OpenPort(1, "9600,O,8,1"), orvik::HostError);
}

TEST_F(PortManagerTest, ReturnsTheReasonOfTheLastFailure) {
  manager_->Assign("KELD(IN)", "/dev/tester");
  EXPECT_THROW(manager_->OpenPort(0, "9600,O,8,1"), orvik::HostError);
  EXPECT_NE(manager_->LastError().find("port 0"), std::string::npos);
  EXPECT_THROW(manager_->OpenPort(1, "9600,Q,8,1"), orvik::HostError);
  EXPECT_NE(manager_->LastError().find("parity \"Q\""), std::string::npos);
  const auto held = manager_->OpenPort(1, "9600,O,8,1");
  EXPECT_EQ(manager_->LastError(), "");
  EXPECT_THROW(manager_->OpenPort(1, "9600,O,8,1"), orvik::HostError);
  EXPECT_NE(manager_->LastError().find("held by another"), std::string::npos);
}

}  // namespace
}  // namespace host
