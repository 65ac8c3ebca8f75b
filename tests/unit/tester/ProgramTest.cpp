#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <filesystem>
#include <utility>
#include <vector>

#include "tester/UniqueFd.h"
#include "tests/support/Process.h"
#include "tests/unit/tester/TestTools.h"

namespace sim {
namespace {

using support::TemporaryFolder;
using test::Exists;

constexpr int kPatience = 20000;  ///< in milliseconds; only a hang takes longer

/// The program, and its output line by line.
class Program : public support::Process {
 public:
  explicit Program(std::vector<std::string> arguments) : Process(KELD_SIM_PATH, std::move(arguments)) {}

  /// Its next line with the line end; empty if it ends first.
  std::string Line() {
    if (!AwaitOutput("\n", ++lines_)) return {};
    const auto end = Output().find('\n', read_) + 1;
    return Output().substr(std::exchange(read_, end), end - read_);
  }

 private:
  int lines_ = 0;
  std::size_t read_ = 0;
};

/// A client on the serial port.
class Client {
 public:
  explicit Client(const std::string& path) : port_(open(path.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC)) {}

  bool IsOpen() const { return static_cast<bool>(port_); }
  void Say(std::string_view bytes) {
    ASSERT_EQ(write(port_.Get(), bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
  }
  /// The next line; what there is of it if no more comes.
  std::string Hear() {
    std::string line;
    for (char byte = 0; !line.ends_with("\r\n"); line.push_back(byte)) {
      pollfd readable{port_.Get(), POLLIN, 0};
      if (poll(&readable, 1, kPatience) <= 0 || read(port_.Get(), &byte, 1) != 1) break;
    }
    return line;
  }
  std::string Ask(std::string_view bytes) {
    Say(bytes);
    return Hear();
  }

 private:
  UniqueFd port_;
};

class ProgramTest : public testing::Test {
 protected:
  const TemporaryFolder folder_;
  const std::string link_ = folder_.Path("port");
};

TEST_F(ProgramTest, EndsCleanlyOnEachStopSignal) {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    Program program({"--link", link_, "--time-scale", "1000"});
    const std::string ready = program.Line();
    const std::string device = std::filesystem::read_symlink(link_).string();
    EXPECT_EQ(ready,
              "keld-sim: ready on " + device + " (" + link_ + "), profile sound-class-1, serial SIM-0001\n");
    Client client(link_);
    ASSERT_TRUE(client.IsOpen());
    EXPECT_EQ(client.Ask("IREM\r\n"), "irem,KELD(IN),SIM-0001,3.10\r\n");
    EXPECT_EQ(client.Ask("STST,410,0\r\n"), "stst,410,0\r\n");
    EXPECT_EQ(client.Ask("GRES,410,0\r\n"), "gres,410,0,0.123,0,Ohm\r\n");
    EXPECT_EQ(client.Ask("STST,630,0\r\n"), "stst,630,0\r\n");
    EXPECT_EQ(client.Ask("GRES,630,0\r\n"),
              "gres,630,0,341,0,\xB5"
              "A\r\n");
    EXPECT_EQ(client.Ask("EREM\r\n"), "erem\r\n");
    program.Signal(signal);
    const auto ended = program.Wait();
    EXPECT_EQ(ended.status, 0) << signal;
    EXPECT_EQ(ended.error, "");
    EXPECT_FALSE(Exists(link_));
  }
}

TEST_F(ProgramTest, KeepsTheSession_WhenClientsChange) {
  Program program({"--link", link_});
  program.Line();
  {
    Client first(link_);
    EXPECT_EQ(first.Ask("IREM\r"), "irem,KELD(IN),SIM-0001,3.10\r\n");
  }
  Client second(link_);
  EXPECT_EQ(second.Ask("STST,410,0\n"), "stst,410,0\r\n");
}

TEST_F(ProgramTest, UsesProfileSerialFaultsAndTrace) {
  const std::string profile = folder_.Write("mine.profile", "name = mine\n410 = 1.5 Ohm overload 0 ms\n");
  const std::string faults = folder_.Write("mine.faults", "at EREM error 77\n");
  const std::string trace = folder_.Path("trace");
  Program program(
      {"--link", link_, "--profile", profile, "--faults", faults, "--serial", "0417", "--trace", trace});
  EXPECT_NE(program.Line().find("profile mine, serial 0417\n"), std::string::npos);
  Client client(link_);
  EXPECT_EQ(client.Ask("IREM\r\n"), "irem,KELD(IN),0417,3.10\r\n");
  EXPECT_EQ(client.Ask("STST,410,0\r\n"), "stst,410,0\r\n");
  EXPECT_EQ(client.Ask("GRES,410,0\r\n"), "gres,410,0,1.5,1,Ohm\r\n");
  EXPECT_EQ(client.Ask("STST,610,0\r\n"), "ERRM,6002\r\n");
  EXPECT_EQ(client.Ask("EREM\r\n"), "ERRM,77\r\n");
  const std::string text = support::ReadFile(trace);
  EXPECT_NE(text.find(" recv STST,610,0\n"), std::string::npos) << text;
  EXPECT_NE(text.find(" sent ERRM,77\n"), std::string::npos) << text;
}

TEST_F(ProgramTest, HangUp_EndsTheProgram) {
  Program program({"--link", link_, "--faults", folder_.Write("f", "at STST 2 hang-up\n")});
  program.Line();
  Client client(link_);
  client.Ask("IREM\r\n");
  EXPECT_EQ(client.Ask("STST,410,0\r\n"), "stst,410,0\r\n");
  EXPECT_EQ(client.Ask("STST,410,0\r\n"), "") << "the port reads as failed, it does not wait";
  EXPECT_EQ(program.Line(), "keld-sim: hung up\n");
  EXPECT_EQ(program.Wait().status, 0);
  EXPECT_FALSE(Exists(link_));
}

TEST_F(ProgramTest, Unplug_ReturnsAtTheSameLink) {
  const std::string trace = folder_.Path("trace");
  Program program({"--link", link_, "--time-scale", "100", "--trace", trace, "--faults",
                   folder_.Write("f", "at STST 1 unplug 1000\n")});
  program.Line();
  {
    Client client(link_);
    client.Ask("IREM\r\n");
    EXPECT_EQ(client.Ask("STST,410,0\r\n"), "") << "the port reads as failed, it does not wait";
  }
  EXPECT_EQ(program.Line(), "keld-sim: unplugged\n");
  const std::string ready = program.Line();
  EXPECT_EQ(ready, "keld-sim: ready on " + std::filesystem::read_symlink(link_).string() + " (" + link_ +
                       "), plugged in again\n");
  Client client(link_);
  EXPECT_EQ(client.Ask("GRES,410,0\r\n"), "gres,410,0,0.123,0,Ohm\r\n") << "the tester is as it was";
  program.Signal(SIGTERM);
  EXPECT_EQ(program.Wait().status, 0);
  const std::string text = support::ReadFile(trace);
  EXPECT_NE(text.find(" note fault: unplug 1000\n"), std::string::npos) << text;
  EXPECT_NE(text.find(" note plugged in again\n"), std::string::npos) << text;
}

TEST_F(ProgramTest, StopsWhileUnplugged) {
  Program program({"--link", link_, "--faults", folder_.Write("f", "at IREM 1 unplug 600000\n")});
  program.Line();
  Client client(link_);
  client.Say("IREM\r\n");
  EXPECT_EQ(program.Line(), "keld-sim: unplugged\n");
  program.Signal(SIGTERM);
  EXPECT_EQ(program.Wait().status, 0);
  EXPECT_FALSE(Exists(link_));
}

TEST_F(ProgramTest, RefusesTheLinkOfARunningTester) {
  Program first({"--link", link_});
  first.Line();
  const auto device = std::filesystem::read_symlink(link_);
  std::filesystem::create_directory_symlink(folder_.Path("."), folder_.Path("again"));
  for (const std::string& path : {link_, folder_.Path("./port"), folder_.Path("again/port")}) {
    Program second({"--link", path});
    const auto ended = second.Wait();
    EXPECT_EQ(ended.status, 3);
    EXPECT_EQ(ended.error, "keld-sim: --link " + path +
                               ": another keld-sim is running there; end it or choose another path\n");
  }
  EXPECT_EQ(std::filesystem::read_symlink(link_), device);
  Client client(link_);
  EXPECT_EQ(client.Ask("IREM\r\n").substr(0, 5), "irem,") << "the first one goes on";
  Program beside({"--link", folder_.Path("port2")});
  EXPECT_EQ(beside.Line().substr(0, 15), "keld-sim: ready") << "another path is free";
}

TEST_F(ProgramTest, ReplacesTheLinkOfAKilledTester) {
  Program first({"--link", link_});
  first.Line();
  first.Signal(SIGKILL);
  first.Wait();
  ASSERT_TRUE(Exists(link_));
  Program second({"--link", link_});
  EXPECT_EQ(second.Line().substr(0, 15), "keld-sim: ready");
  Client client(link_);
  EXPECT_EQ(client.Ask("IREM\r\n").substr(0, 5), "irem,");
}

TEST_F(ProgramTest, Unplugged_KeepsItsLinkReserved) {
  Program first({"--link", link_, "--faults", folder_.Write("f", "at IREM 1 unplug 600000\n")});
  first.Line();
  Client client(link_);
  client.Say("IREM\r\n");
  first.Line();
  ASSERT_FALSE(Exists(link_));
  Program second({"--link", link_});
  EXPECT_EQ(second.Wait().status, 3);
}

TEST_F(ProgramTest, PrintsRandomFaultsAsAScript) {
  Program program({"--link", link_, "--fault-seed", "3", "--fault-rate", "1"});
  EXPECT_NE(program.Line().find(", --fault-seed 3 --fault-rate 1\n"), std::string::npos);
  Client client(link_);
  client.Say("IREM\r\n");
  EXPECT_EQ(program.Line().substr(0, 25), "keld-sim: fault: at ANY 1");
}

TEST_F(ProgramTest, ReplaysAWireLog) {
  const std::string log = folder_.Write("w.log",
                                        "2026-03-01T10:00:00.000000Z sent IREM\n"
                                        "2026-03-01T10:00:00.010000Z recv irem,KELD(IN),0417,2.71\n");
  Program program({"--link", link_, "--replay", log});
  EXPECT_NE(program.Line().find(", replay of " + log + "\n"), std::string::npos);
  Client client(link_);
  EXPECT_EQ(client.Ask("IREM\r\n"), "irem,KELD(IN),0417,2.71\r\n");
  EXPECT_EQ(client.Ask("EREM\r\n"), "erem\r\n");
  program.Signal(SIGTERM);
  const auto ended = program.Wait();
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.error, "keld-sim: EREM is not in " + log +
                             " at this point (the log has ended); answered as the simulated tester does\n");
}

TEST_F(ProgramTest, EndsWithItsParent) {
  // The shell ends as soon as the program is ready. The program keeps the standard error, so its end is
  // awaited.
  const auto ready = folder_.Path("ready");
  support::RunShell("mkfifo " + ready + "\n" KELD_SIM_PATH " --link " + link_ + " --exit-with-parent > " +
                    ready + " & read line < " + ready);
  EXPECT_FALSE(Exists(link_));
}

TEST_F(ProgramTest, BadUse_EndsWith3WithoutALink) {
  folder_.Write("file", "precious");
  const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
      {{}, "--link PATH is missing"},
      {{"--link", link_, "--nonsense"}, "option --nonsense is unknown"},
      {{"--link", link_, "--profile", "none"}, "profile 'none' is neither a file nor a built-in profile"},
      {{"--link", link_, "--profile", folder_.Write("p", "410 = x\n")},
       folder_.Path("p") + ":1: 'x' is not a number"},
      {{"--link", link_, "--faults", folder_.Write("f", "at GRES vanish\n")},
       folder_.Path("f") + ":1: 'vanish' is not a fault"},
      {{"--link", link_, "--replay", folder_.Write("w", "no log\n")}, folder_.Path("w") + ":1: no time"},
      {{"--link", link_, "--trace", folder_.Path("no/trace")}, "--trace " + folder_.Path("no/trace")},
      {{"--link", folder_.Path("file")}, "something else is there"},
  };
  for (const auto& [arguments, message] : cases) {
    const auto ended = Program(arguments).Wait();
    EXPECT_EQ(ended.status, 3) << message;
    EXPECT_EQ(ended.out, "") << message;
    EXPECT_EQ(ended.error.substr(0, 10), "keld-sim: ");
    EXPECT_NE(ended.error.find(message), std::string::npos) << ended.error;
    EXPECT_FALSE(Exists(link_)) << message;
  }
  EXPECT_EQ(support::ReadFile(folder_.Path("file")), "precious");
}

TEST_F(ProgramTest, HelpAndVersion_EndWith0) {
  const auto help = Program({"--help"}).Wait();
  EXPECT_EQ(help.status, 0);
  EXPECT_NE(help.out.find("Usage: keld-sim --link PATH"), std::string::npos);
  const auto version = Program({"--version"}).Wait();
  EXPECT_EQ(version.status, 0);
  EXPECT_EQ(version.out.substr(0, 9), "keld-sim ");
}

TEST_F(ProgramTest, UnwritableTrace_EndsWith4WithoutALink) {
  Program program({"--link", link_, "--trace", "/dev/full"});
  program.Line();
  Client client(link_);
  client.Say("IREM\r\n");
  const auto ended = program.Wait();
  EXPECT_EQ(ended.status, 4);
  EXPECT_NE(ended.error.find("--trace /dev/full could not be written"), std::string::npos) << ended.error;
  EXPECT_FALSE(Exists(link_));
}

}  // namespace
}  // namespace sim
