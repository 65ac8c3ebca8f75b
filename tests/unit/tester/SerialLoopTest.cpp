#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include "tester/BuiltInProfiles.h"
#include "tester/FaultScript.h"
#include "tester/SerialLoop.h"
#include "tester/UniqueFd.h"
#include "tests/unit/tester/TestTools.h"

namespace sim {
namespace {

using support::TemporaryFolder;

/// A pair of sockets stands in for the line; the loop asks no more of it than that it can be read and
/// written.
class SerialLoopTest : public testing::Test {
 protected:
  SerialLoopTest() {
    int ends[2] = {-1, -1};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends) == 0) {
      near_ = UniqueFd(ends[0]);
      far_ = UniqueFd(ends[1]);
    }
  }

  void Say(std::string_view bytes) {
    ASSERT_EQ(write(far_.Get(), bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
  }

  std::string Heard() {
    std::string text(100000, '\0');
    const ssize_t count = read(far_.Get(), text.data(), text.size());
    text.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return text;
  }

  Tester tester_{MakeBuiltInProfile("sound-class-1").value(), 1000};
  UniqueFd near_;
  UniqueFd far_;
  UniqueFd stop_{eventfd(0, EFD_CLOEXEC)};
};

TEST_F(SerialLoopTest, AnswersUntilHungUp) {
  const TemporaryFolder folder;
  tester_.UseFaults(std::make_shared<FaultScript>("at EREM hang-up", "f"));
  Trace trace(folder.Path("trace"));
  SerialLoop loop(tester_, near_.Get(), stop_.Get(), &trace);
  Say("IREM\r\nSTST,410,0\r\nGRES,410,0\r\nA\x01\r\nEREM\r\n");
  EXPECT_EQ(loop.Run(), SerialLoop::End::HungUp);
  EXPECT_EQ(Heard(), "irem,KELD(IN),SIM-0001,3.10\r\nstst,410,0\r\ngres,410,0,0.123,0,Ohm\r\n");
  const std::string text = support::ReadFile(folder.Path("trace"));
  for (const char* line :
       {"recv IREM\n", "sent gres,410,0,0.123,0,Ohm\n", "lost A\\x01\n", "note hung up\n"}) {
    EXPECT_NE(text.find(line), std::string::npos) << line;
  }
}

TEST_F(SerialLoopTest, EndsWhenStopped) {
  SerialLoop loop(tester_, near_.Get(), stop_.Get(), nullptr);
  ASSERT_EQ(eventfd_write(stop_.Get(), 1), 0);
  EXPECT_EQ(loop.Run(), SerialLoop::End::Stopped);
}

TEST_F(SerialLoopTest, FailedLine_Throws) {
  SerialLoop loop(tester_, near_.Get(), stop_.Get(), nullptr);
  far_.Close();
  EXPECT_THROW(loop.Run(), SystemFailure);
}

TEST_F(SerialLoopTest, DropsReplies_WhenNoClientReads) {
  const TemporaryFolder folder;
  // Long replies, and the smallest send buffer that the system gives.
  const int smallest = 1;
  ASSERT_EQ(setsockopt(near_.Get(), SOL_SOCKET, SO_SNDBUF, &smallest, sizeof smallest), 0);
  tester_.UseFaults(
      std::make_shared<FaultScript>("at QMTI reply " + std::string(1000, 'r') + "\nat EREM hang-up", "f"));
  Trace trace(folder.Path("trace"));
  SerialLoop loop(tester_, near_.Get(), stop_.Get(), &trace);
  std::string commands;
  for (int i = 0; i < 200; ++i) commands += "QMTI\r\n";
  Say(commands + "EREM\r\n");
  EXPECT_EQ(loop.Run(), SerialLoop::End::HungUp);
  EXPECT_NE(support::ReadFile(folder.Path("trace")).find("note no client reads; the next reply is lost\n"),
            std::string::npos);
  EXPECT_EQ(Heard().substr(0, 1000), std::string(1000, 'r'));
}

}  // namespace
}  // namespace sim
