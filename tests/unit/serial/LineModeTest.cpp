#include <gtest/gtest.h>

#include "host/serial/LineMode.h"
#include "tests/support/PseudoTerminal.h"

namespace host {
namespace {

class LineModeTest : public testing::Test {
 protected:
  UniqueFd Open() { return UniqueFd(open(terminal_.Path().c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK)); }

  support::PseudoTerminal terminal_;
};

// A pseudo-terminal treated as a real line simulates a device whose driver drops the parity bit: a line
// without the parity asked for must never pass for one with it.
TEST_F(LineModeTest, RejectsARealLineThatDropsTheParityBit) {
  const auto device = Open();
  const auto odd = serial::ParseLineSettings("9600,O,8,1");
  EXPECT_NE(serial::SetLineMode(device.Get(), odd, false), "");
  EXPECT_NE(serial::SetLineMode(device.Get(), odd, false), "");
}

TEST_F(LineModeTest, AcceptsAPseudoTerminalThatDropsIt) {
  const auto device = Open();
  const auto odd = serial::ParseLineSettings("9600,O,8,1");
  EXPECT_EQ(serial::SetLineMode(device.Get(), odd, true), "");
  EXPECT_EQ(serial::SetLineMode(device.Get(), odd, true), "");
}

TEST_F(LineModeTest, SetsRateAndRawMode) {
  const auto device = Open();
  EXPECT_EQ(serial::SetLineMode(device.Get(), serial::ParseLineSettings("19200,N,8,2"), true), "");
  termios mode{};
  ASSERT_EQ(tcgetattr(device.Get(), &mode), 0);
  EXPECT_EQ(cfgetospeed(&mode), static_cast<speed_t>(B19200));
  EXPECT_NE(mode.c_cflag & CSTOPB, 0u);
  EXPECT_EQ(mode.c_lflag & (ICANON | ECHO | ISIG), 0u);
  EXPECT_EQ(mode.c_iflag & (IXON | IXOFF | ICRNL), 0u);
  EXPECT_EQ(mode.c_cflag & CRTSCTS, 0u);
}

TEST_F(LineModeTest, ChecksTheParityOfInput) {
  const auto device = Open();
  EXPECT_EQ(serial::SetLineMode(device.Get(), serial::ParseLineSettings("9600,O,8,1"), true), "");
  termios mode{};
  ASSERT_EQ(tcgetattr(device.Get(), &mode), 0);
  EXPECT_NE(mode.c_iflag & INPCK, 0u);
  EXPECT_EQ(mode.c_iflag & (IGNPAR | PARMRK), 0u);
}

TEST_F(LineModeTest, RejectsOtherDevices) {
  UniqueFd nothing(open("/dev/null", O_RDWR));
  EXPECT_NE(serial::SetLineMode(nothing.Get(), serial::ParseLineSettings("9600,O,8,1"), false), "");
}

}  // namespace
}  // namespace host
