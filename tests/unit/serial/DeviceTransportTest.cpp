#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <chrono>
#include <filesystem>
#include <fstream>

#include "OrvikTypeLib/HostError.h"
#include "host/base/FileErrors.h"
#include "host/serial/DeviceTransport.h"
#include "tests/support/PseudoTerminal.h"
#include "toolkit/loop/EventLoop.h"

namespace host {
namespace {

using namespace std::chrono_literals;
using orvik::HostError;

class DeviceTransportTest : public testing::Test {
 protected:
  std::unique_ptr<serial::DeviceTransport> Open(const std::string& path) {
    auto transport =
        std::make_unique<serial::DeviceTransport>(path, serial::ParseLineSettings("9600,O,8,1"), loop_);
    transport->SetReceiver([this](std::string_view bytes) { received_ += bytes; });
    transport->SetFailureListener([this] { ++failures_; });
    return transport;
  }

  /// Waits until `done`, at most ten seconds.
  template <class Condition>
  bool WaitUntil(Condition done) {
    const auto deadline = loop_->Now() + 10s;
    while (!done() && loop_->Now() < deadline) loop_->Wait(deadline);
    return done();
  }

  std::string RefusalOf(const std::string& path) {
    try {
      Open(path);
    } catch (const HostError& error) {
      const bool held = error.Description().find("is held") != std::string::npos;
      EXPECT_EQ(error.Number(), held ? HostError::kDeviceError : HostError::kPathError);
      EXPECT_NE(error.Description().find(path), std::string::npos) << "the device is not named";
      return error.Description();
    }
    return "opened";
  }

  std::shared_ptr<toolkit::loop::EventLoop> loop_ =
      std::make_shared<toolkit::loop::EventLoop>(toolkit::loop::ClockKind::kReal, 1.0);
  support::PseudoTerminal terminal_;
  std::string received_;
  int failures_ = 0;
};

TEST_F(DeviceTransportTest, TransfersAllBytesUnchanged) {
  const auto transport = Open(terminal_.Path());
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
  transport->Write(all);
  EXPECT_EQ(terminal_.Receive(all.size()), all);
  terminal_.Send(all);
  EXPECT_TRUE(WaitUntil([&] { return received_.size() >= all.size(); }));
  EXPECT_EQ(received_, all);
}

// A pseudo-terminal drops the parity bit, and says so from the second time on.
TEST_F(DeviceTransportTest, OpensAPseudoTerminalRepeatedly) {
  for (int turn = 0; turn < 3; ++turn) {
    const auto transport = Open(terminal_.Path());
    EXPECT_TRUE(transport->IsOpen()) << turn;
    transport->Write("x");
    EXPECT_EQ(terminal_.Receive(1), "x");
  }
}

TEST_F(DeviceTransportTest, DiscardsBytesReceivedBeforeOpening) {
  terminal_.Send("old\r\n");
  const auto transport = Open(terminal_.Path());
  terminal_.Send("new\r\n");
  EXPECT_TRUE(WaitUntil([&] { return !received_.empty(); }));
  EXPECT_EQ(received_, "new\r\n");
}

TEST_F(DeviceTransportTest, ClosesWhenUnplugged) {
  const auto transport = Open(terminal_.Path());
  terminal_.Send("last");
  EXPECT_TRUE(WaitUntil([&] { return received_ == "last"; }));
  terminal_.HangUp();
  EXPECT_TRUE(WaitUntil([&] { return !transport->IsOpen(); }));
  EXPECT_EQ(failures_, 1);
  EXPECT_THROW(transport->Write("x"), HostError);
  EXPECT_EQ(failures_, 1);
}

TEST_F(DeviceTransportTest, ClosesWhenWritingToAnUnpluggedDevice) {
  const auto transport = Open(terminal_.Path());
  terminal_.HangUp();
  EXPECT_THROW(transport->Write("x"), HostError);
  EXPECT_FALSE(transport->IsOpen());
  EXPECT_EQ(failures_, 1);
}

TEST_F(DeviceTransportTest, FailsWhenTheDeviceAcceptsNothing) {
  const auto transport = Open(terminal_.Path());
  EXPECT_THROW(transport->Write(std::string(1'000'000, 'x')), HostError);
  EXPECT_FALSE(transport->IsOpen());
}

TEST_F(DeviceTransportTest, MayBeReleasedByItsReceiver) {
  auto transport = Open(terminal_.Path());
  bool heard = false;
  transport->SetReceiver([&](std::string_view) {
    heard = true;
    transport.reset();
  });
  terminal_.Send(std::string(5000, 'x').substr(0, 2000));
  EXPECT_TRUE(WaitUntil([&] { return heard; }));
  EXPECT_FALSE(transport);
}

TEST_F(DeviceTransportTest, RejectsASecondHolder) {
  auto first = Open(terminal_.Path());
  EXPECT_NE(RefusalOf(terminal_.Path()).find("held by another program"), std::string::npos);
  EXPECT_THROW(Open(terminal_.Path()), BusyError);
  first.reset();
  EXPECT_TRUE(Open(terminal_.Path())->IsOpen());
}

TEST_F(DeviceTransportTest, RejectsASecondProgram) {
  const auto first = Open(terminal_.Path());
  const pid_t child = fork();
  if (child == 0) {
    try {
      serial::DeviceTransport second(
          terminal_.Path(), serial::ParseLineSettings("9600,O,8,1"),
          std::make_shared<toolkit::loop::EventLoop>(toolkit::loop::ClockKind::kReal, 1.0));
      _exit(1);
    } catch (const HostError& error) {
      _exit(error.Description().find("held by another program") != std::string::npos ? 0 : 2);
    }
  }
  int status = -1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST_F(DeviceTransportTest, RejectsOtherFiles) {
  const auto folder = std::filesystem::path(testing::TempDir()) / ("serial-" + std::to_string(getpid()));
  std::filesystem::create_directories(folder);
  const auto file = folder / "file";
  std::ofstream(file) << "text";
  EXPECT_NE(RefusalOf(file).find("is not a serial device"), std::string::npos);
  EXPECT_NE(RefusalOf(folder).find("is a folder"), std::string::npos);
  EXPECT_NE(RefusalOf(folder / "absent").find("does not exist"), std::string::npos);
  EXPECT_NE(RefusalOf(file / "below").find("does not exist"), std::string::npos);
  EXPECT_NE(RefusalOf("/dev/null").find("is not a serial device"), std::string::npos);
  const auto pipe = folder / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_NE(RefusalOf(pipe).find("is not a serial device"), std::string::npos);  // and does not hang
  std::filesystem::remove_all(folder);
}

TEST_F(DeviceTransportTest, RejectsAnUnknownRate) {
  EXPECT_THROW(serial::DeviceTransport(terminal_.Path(), serial::ParseLineSettings("9601,N,8,1"), loop_),
               HostError);
}

TEST_F(DeviceTransportTest, RejectsUnsupportedStopBits) {
  EXPECT_THROW(serial::DeviceTransport(terminal_.Path(), serial::ParseLineSettings("9600,N,8,1.5"), loop_),
               HostError);
  EXPECT_THROW(serial::DeviceTransport(terminal_.Path(), serial::ParseLineSettings("9600,N,5,2"), loop_),
               HostError);
}

}  // namespace
}  // namespace host
