#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <utility>
#include <vector>

#include "tester/UniqueFd.h"
#include "tests/tester/TestTools.h"

#ifndef KELD_SIM_PATH
#error "KELD_SIM_PATH is to be set by the build: the path of the keld-sim program"
#endif

namespace sim {
namespace {

using test::Stands;
using test::TempFolder;

/// Far more than anything here takes; only a hang reaches it.
constexpr int kPatience = 20000;  // ms

/// Reads until `text` ends with `end`; what came so far when nothing more comes.
std::string ReadUntil(int fd, std::string_view end) {
  std::string text;
  while (text.size() < end.size() || text.substr(text.size() - end.size()) != end) {
    pollfd watched{fd, POLLIN, 0};
    if (poll(&watched, 1, kPatience) <= 0) break;
    char byte = 0;
    if (read(fd, &byte, 1) != 1) break;
    text.push_back(byte);
  }
  return text;
}

std::string ReadToEnd(int fd) {
  std::string text;
  std::array<char, 4096> buffer;
  for (;;) {
    pollfd watched{fd, POLLIN, 0};
    if (poll(&watched, 1, kPatience) <= 0) return text + "(nothing more came)";
    const ssize_t count = read(fd, buffer.data(), buffer.size());
    if (count <= 0) return text;
    text.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

struct Pipe {
  Pipe() {
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC) == 0) {
      read = UniqueFd(ends[0]);
      write = UniqueFd(ends[1]);
    }
  }
  UniqueFd read;
  UniqueFd write;
};

/// The program as a child process. Killed at the end if it still runs.
class Program {
 public:
  explicit Program(const std::vector<std::string>& arguments) {
    std::vector<std::string> words{KELD_SIM_PATH};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (std::string& word : words) argv.push_back(word.data());
    argv.push_back(nullptr);
    pid_ = fork();
    if (pid_ == 0) {
      dup2(out_.write.Get(), STDOUT_FILENO);
      dup2(err_.write.Get(), STDERR_FILENO);
      execv(argv[0], argv.data());
      _exit(127);
    }
    out_.write.Close();
    err_.write.Close();
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program() {
    if (pid_ <= 0) return;
    kill(pid_, SIGKILL);
    waitpid(pid_, nullptr, 0);
  }

  int Id() const { return pid_; }
  std::string ReadyLine() { return ReadUntil(out_.read.Get(), "\n"); }
  std::string Output() { return ReadToEnd(out_.read.Get()); }
  std::string Errors() { return ReadToEnd(err_.read.Get()); }

  /// Waits for the end (told by its standard error being closed) and gives the exit status; -1 for a hang or
  /// signal.
  int Wait() {
    errors_ = Errors();
    if (errors_.find("(nothing more came)") != std::string::npos) return -1;
    int status = 0;
    const pid_t ended = waitpid(std::exchange(pid_, -1), &status, 0);
    return ended > 0 && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  /// What it wrote to standard error, after Wait.
  const std::string& Complaint() const { return errors_; }

 private:
  Pipe out_;
  Pipe err_;
  pid_t pid_ = -1;
  std::string errors_;
};

/// A client on the serial port.
class Client {
 public:
  explicit Client(const std::string& path) : port_(open(path.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC)) {}

  bool IsOpen() const { return static_cast<bool>(port_); }
  void Say(std::string_view bytes) {
    ASSERT_EQ(write(port_.Get(), bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
  }
  std::string Hear() { return ReadUntil(port_.Get(), "\r\n"); }
  std::string Ask(std::string_view bytes) {
    Say(bytes);
    return Hear();
  }

 private:
  UniqueFd port_;
};

class ProgramTest : public testing::Test {
 protected:
  const TempFolder folder_;
  const std::string link_ = folder_.Path("port");
};

TEST_F(ProgramTest, AnswersOnItsPortAndEndsCleanlyOnEachStopSignal) {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    Program program({"--link", link_, "--time-scale", "1000"});
    const std::string ready = program.ReadyLine();
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
    kill(program.Id(), signal);
    EXPECT_EQ(program.Wait(), 0) << signal;
    EXPECT_EQ(program.Complaint(), "");
    EXPECT_FALSE(Stands(link_));
  }
}

TEST_F(ProgramTest, ClientsComeAndGoAndTheSessionStays) {
  Program program({"--link", link_});
  program.ReadyLine();
  {
    Client first(link_);
    EXPECT_EQ(first.Ask("IREM\r"), "irem,KELD(IN),SIM-0001,3.10\r\n");
  }
  Client second(link_);
  EXPECT_EQ(second.Ask("STST,410,0\n"), "stst,410,0\r\n");
}

TEST_F(ProgramTest, ProfileSerialFaultsAndTraceAreObeyed) {
  const std::string profile = folder_.Write("mine.profile", "name = mine\n410 = 1.5 Ohm overload 0 ms\n");
  const std::string faults = folder_.Write("mine.faults", "at EREM error 77\n");
  const std::string trace = folder_.Path("trace");
  Program program(
      {"--link", link_, "--profile", profile, "--faults", faults, "--serial", "0417", "--trace", trace});
  EXPECT_NE(program.ReadyLine().find("profile mine, serial 0417\n"), std::string::npos);
  Client client(link_);
  EXPECT_EQ(client.Ask("IREM\r\n"), "irem,KELD(IN),0417,3.10\r\n");
  EXPECT_EQ(client.Ask("STST,410,0\r\n"), "stst,410,0\r\n");
  EXPECT_EQ(client.Ask("GRES,410,0\r\n"), "gres,410,0,1.5,1,Ohm\r\n");
  EXPECT_EQ(client.Ask("STST,610,0\r\n"), "ERRM,6002\r\n");
  EXPECT_EQ(client.Ask("EREM\r\n"), "ERRM,77\r\n");
  const std::string text = test::ReadAll(trace);
  EXPECT_NE(text.find(" recv STST,610,0\n"), std::string::npos) << text;
  EXPECT_NE(text.find(" sent ERRM,77\n"), std::string::npos) << text;
}

TEST_F(ProgramTest, AHangUpIsAPulledCable) {
  Program program({"--link", link_, "--faults", folder_.Write("f", "at STST 2 hang-up\n")});
  program.ReadyLine();
  Client client(link_);
  client.Ask("IREM\r\n");
  EXPECT_EQ(client.Ask("STST,410,0\r\n"), "stst,410,0\r\n");
  EXPECT_EQ(client.Ask("STST,410,0\r\n"), "") << "the port reads as failed, it does not wait";
  EXPECT_EQ(program.Wait(), 0);
  EXPECT_EQ(program.Output(), "keld-sim: hung up\n");
  EXPECT_FALSE(Stands(link_));
}

TEST_F(ProgramTest, AnUnpluggedCableComesBackAtTheSameLink) {
  const std::string trace = folder_.Path("trace");
  Program program({"--link", link_, "--time-scale", "100", "--trace", trace, "--faults",
                   folder_.Write("f", "at STST 1 unplug 1000\n")});
  program.ReadyLine();
  {
    Client client(link_);
    client.Ask("IREM\r\n");
    EXPECT_EQ(client.Ask("STST,410,0\r\n"), "") << "the port reads as failed, it does not wait";
  }
  EXPECT_EQ(program.ReadyLine(), "keld-sim: unplugged\n");
  const std::string ready = program.ReadyLine();
  EXPECT_EQ(ready, "keld-sim: ready on " + std::filesystem::read_symlink(link_).string() + " (" + link_ +
                       "), plugged in again\n");
  Client client(link_);
  EXPECT_EQ(client.Ask("GRES,410,0\r\n"), "gres,410,0,0.123,0,Ohm\r\n") << "the tester is as it was";
  kill(program.Id(), SIGTERM);
  EXPECT_EQ(program.Wait(), 0);
  const std::string text = test::ReadAll(trace);
  EXPECT_NE(text.find(" note fault: unplug 1000\n"), std::string::npos) << text;
  EXPECT_NE(text.find(" note plugged in again\n"), std::string::npos) << text;
}

TEST_F(ProgramTest, CanBeStoppedWhileUnplugged) {
  Program program({"--link", link_, "--faults", folder_.Write("f", "at IREM 1 unplug 600000\n")});
  program.ReadyLine();
  Client client(link_);
  client.Say("IREM\r\n");
  EXPECT_EQ(program.ReadyLine(), "keld-sim: unplugged\n");
  kill(program.Id(), SIGTERM);
  EXPECT_EQ(program.Wait(), 0);
  EXPECT_FALSE(Stands(link_));
}

TEST_F(ProgramTest, TheLinkOfATesterThatRunsIsNotTakenOver) {
  Program first({"--link", link_});
  first.ReadyLine();
  const auto device = std::filesystem::read_symlink(link_);
  std::filesystem::create_directory_symlink(folder_.Path("."), folder_.Path("again"));
  for (const std::string& path : {link_, folder_.Path("./port"), folder_.Path("again/port")}) {
    Program second({"--link", path});
    EXPECT_EQ(second.Wait(), 3);
    EXPECT_EQ(second.Complaint(), "keld-sim: --link " + path +
                                      ": another keld-sim is running there; end it or choose another path\n");
  }
  EXPECT_EQ(std::filesystem::read_symlink(link_), device);
  Client client(link_);
  EXPECT_EQ(client.Ask("IREM\r\n").substr(0, 5), "irem,") << "the first one goes on";
  Program beside({"--link", folder_.Path("port2")});
  EXPECT_EQ(beside.ReadyLine().substr(0, 15), "keld-sim: ready") << "another path is free";
}

TEST_F(ProgramTest, TheLinkOfATesterThatWasKilledIsReplaced) {
  Program first({"--link", link_});
  first.ReadyLine();
  kill(first.Id(), SIGKILL);
  first.Wait();
  ASSERT_TRUE(Stands(link_)) << "nobody took it away";
  Program second({"--link", link_});
  EXPECT_EQ(second.ReadyLine().substr(0, 15), "keld-sim: ready");
  Client client(link_);
  EXPECT_EQ(client.Ask("IREM\r\n").substr(0, 5), "irem,");
}

TEST_F(ProgramTest, WhoIsUnpluggedKeepsTheRightToItsLink) {
  Program first({"--link", link_, "--faults", folder_.Write("f", "at IREM 1 unplug 600000\n")});
  first.ReadyLine();
  Client client(link_);
  client.Say("IREM\r\n");
  first.ReadyLine();
  ASSERT_FALSE(Stands(link_));
  Program second({"--link", link_});
  EXPECT_EQ(second.Wait(), 3) << second.Complaint();
}

TEST_F(ProgramTest, RandomFaultsArePrintedSoThatTheyCanBeHadAgain) {
  Program program({"--link", link_, "--fault-seed", "3", "--fault-rate", "1"});
  EXPECT_NE(program.ReadyLine().find(", --fault-seed 3 --fault-rate 1\n"), std::string::npos);
  Client client(link_);
  client.Say("IREM\r\n");
  EXPECT_EQ(program.ReadyLine().substr(0, 25), "keld-sim: fault: at ANY 1");
}

TEST_F(ProgramTest, AWireLogIsReplayed) {
  const std::string log = folder_.Write("w.log",
                                        "2026-03-01T10:00:00.000000Z sent IREM\n"
                                        "2026-03-01T10:00:00.010000Z recv irem,KELD(IN),0417,2.71\n");
  Program program({"--link", link_, "--replay", log});
  EXPECT_NE(program.ReadyLine().find(", replay of " + log + "\n"), std::string::npos);
  Client client(link_);
  EXPECT_EQ(client.Ask("IREM\r\n"), "irem,KELD(IN),0417,2.71\r\n");
  EXPECT_EQ(client.Ask("EREM\r\n"), "erem\r\n");
  kill(program.Id(), SIGTERM);
  EXPECT_EQ(program.Wait(), 0);
  EXPECT_EQ(program.Complaint(),
            "keld-sim: EREM is not in " + log +
                " at this point (the log has ended); answered as the simulated tester does\n");
}

TEST_F(ProgramTest, EndsWithItsParentWhenAsked) {
  // A child in between starts the program and ends as soon as that is ready.
  Pipe watch;
  const pid_t between = fork();
  ASSERT_GE(between, 0);
  if (between == 0) {
    Pipe out;
    if (fork() == 0) {
      dup2(out.write.Get(), STDOUT_FILENO);
      fcntl(watch.write.Get(), F_SETFD, 0);  // stays open in the program: its end shows in `watch`
      execl(KELD_SIM_PATH, "keld-sim", "--link", link_.c_str(), "--exit-with-parent", nullptr);
      _exit(127);
    }
    ReadUntil(out.read.Get(), "\n");
    _exit(0);
  }
  watch.write.Close();
  waitpid(between, nullptr, 0);
  EXPECT_EQ(ReadToEnd(watch.read.Get()), "");
  EXPECT_FALSE(Stands(link_));
}

TEST_F(ProgramTest, BadUseEndsWith3AndLeavesNoLink) {
  folder_.Write("file", "precious");
  const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
      {{}, "--link PATH is missing"},
      {{"--link", link_, "--nonsense"}, "option --nonsense is unknown"},
      {{"--link", link_, "--profile", "none"}, "profile 'none' is neither a file nor a built-in profile"},
      {{"--link", link_, "--profile", folder_.Write("p", "410 = x\n")},
       folder_.Path("p") + ":1: 'x' is not a number"},
      {{"--link", link_, "--faults", folder_.Write("f", "at GRES vanish\n")},
       folder_.Path("f") + ":1: 'vanish' is no fault"},
      {{"--link", link_, "--replay", folder_.Write("w", "no log\n")}, folder_.Path("w") + ":1: no time"},
      {{"--link", link_, "--trace", folder_.Path("no/trace")}, "--trace " + folder_.Path("no/trace")},
      {{"--link", folder_.Path("file")}, "something else stands there"},
  };
  for (const auto& [arguments, message] : cases) {
    Program program(arguments);
    EXPECT_EQ(program.Wait(), 3) << message;
    EXPECT_EQ(program.Output(), "") << message;
    EXPECT_EQ(program.Complaint().substr(0, 10), "keld-sim: ");
    EXPECT_NE(program.Complaint().find(message), std::string::npos) << program.Complaint();
    EXPECT_FALSE(Stands(link_)) << message;
  }
  EXPECT_EQ(test::ReadAll(folder_.Path("file")), "precious");
}

TEST_F(ProgramTest, HelpAndVersionEndWith0) {
  Program help({"--help"});
  EXPECT_EQ(help.Wait(), 0);
  EXPECT_NE(help.Output().find("Usage: keld-sim --link PATH"), std::string::npos);
  Program version({"--version"});
  EXPECT_EQ(version.Wait(), 0);
  EXPECT_EQ(version.Output().substr(0, 9), "keld-sim ");
}

TEST_F(ProgramTest, ATraceThatCannotBeWrittenEndsWith4AndTakesTheLinkAway) {
  Program program({"--link", link_, "--trace", "/dev/full"});
  program.ReadyLine();
  Client client(link_);
  client.Say("IREM\r\n");
  EXPECT_EQ(program.Wait(), 4);
  EXPECT_NE(program.Complaint().find("--trace /dev/full could not be written"), std::string::npos)
      << program.Complaint();
  EXPECT_FALSE(Stands(link_));
}

}  // namespace
}  // namespace sim
