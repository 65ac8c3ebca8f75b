#include <fcntl.h>
#include <gtest/gtest.h>
#include <termios.h>
#include <unistd.h>

#include <filesystem>

#include "tester/PseudoTerminal.h"
#include "tests/unit/tester/TestTools.h"

namespace sim {
namespace {

using support::TemporaryFolder;
using test::Exists;
using test::InputErrorOf;

std::string TargetOf(const std::string& path) { return std::filesystem::read_symlink(path).string(); }

TEST(PseudoTerminalTest, PassesBytesUnchanged) {
  const PseudoTerminal terminal;
  const UniqueFd client(open(terminal.DevicePath().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC));
  ASSERT_TRUE(client);
  termios mode{};
  ASSERT_EQ(tcgetattr(client.Get(), &mode), 0);
  EXPECT_EQ(mode.c_lflag & static_cast<tcflag_t>(ECHO | ICANON | ISIG), 0u);
  EXPECT_EQ(mode.c_iflag & static_cast<tcflag_t>(ICRNL | IXON | ISTRIP), 0u);
  EXPECT_EQ(mode.c_oflag & static_cast<tcflag_t>(OPOST), 0u);
}

TEST(PseudoTerminalTest, StaysUsable_AfterAClientLeft) {
  const PseudoTerminal terminal;
  for (int round = 0; round < 2; ++round) {
    const UniqueFd client(open(terminal.DevicePath().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC));
    ASSERT_TRUE(client);
  }
  char byte = 0;
  EXPECT_EQ(read(terminal.Fd(), &byte, 1), -1);
  EXPECT_EQ(errno, EAGAIN) << "no hang-up";
}

TEST(DeviceLinkTest, ExistsAsLongAsItsObject) {
  const TemporaryFolder folder;
  {
    const DeviceLink link(folder.Path("port"), "/dev/pts/99999");
    EXPECT_EQ(TargetOf(folder.Path("port")), "/dev/pts/99999");
  }
  EXPECT_FALSE(Exists(folder.Path("port")));
}

TEST(DeviceLinkTest, ReplacesAnEarlierTestersLink) {
  const TemporaryFolder folder;
  std::filesystem::create_symlink("/dev/pts/88888", folder.Path("port"));
  const DeviceLink link(folder.Path("port"), "/dev/pts/99999");
  EXPECT_EQ(TargetOf(folder.Path("port")), "/dev/pts/99999");
}

TEST(DeviceLinkTest, ReplacesNothingElse) {
  const TemporaryFolder folder;
  folder.Write("file", "precious");
  std::filesystem::create_directory(folder.Path("directory"));
  std::filesystem::create_symlink(folder.Path("file"), folder.Path("link"));
  std::filesystem::create_symlink("/nowhere", folder.Path("dangling"));
  for (const char* name : {"file", "directory", "link", "dangling"}) {
    const std::string path = folder.Path(name);
    EXPECT_EQ(InputErrorOf([&] { DeviceLink(path, "/dev/pts/99999"); }),
              "--link " + path + ": something else is there; remove it or choose another path");
    EXPECT_TRUE(Exists(path)) << name;
  }
  EXPECT_EQ(support::ReadFile(folder.Path("file")), "precious");
}

TEST(DeviceLinkTest, ReportsAMissingFolder) {
  const TemporaryFolder folder;
  EXPECT_EQ(InputErrorOf([&] { DeviceLink(folder.Path("no/port"), "/dev/pts/99999"); }),
            "--link " + folder.Path("no/port") +
                ": the link cannot be made: No such file or directory; choose a path in a folder that exists "
                "and that "
                "you may write to");
}

TEST(DeviceLinkTest, KeepsALinkThatWasReplaced) {
  const TemporaryFolder folder;
  {
    const DeviceLink link(folder.Path("port"), "/dev/pts/88888");
    const DeviceLink other(folder.Path("other"), "/dev/pts/77777");
    std::filesystem::remove(folder.Path("port"));
    std::filesystem::create_symlink("/dev/pts/99999", folder.Path("port"));
  }
  EXPECT_EQ(TargetOf(folder.Path("port")), "/dev/pts/99999");
  EXPECT_FALSE(Exists(folder.Path("other")));
}

}  // namespace
}  // namespace sim
