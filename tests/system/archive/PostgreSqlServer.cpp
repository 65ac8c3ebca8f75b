#include "tests/system/archive/PostgreSqlServer.h"

#include <fcntl.h>
#include <grp.h>
#include <poll.h>
#include <pwd.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "host/archive/ArchiveError.h"
#include "host/archive/PostgreSqlDatabase.h"

namespace archive_tests {

namespace {

using Words = std::vector<std::string>;

std::filesystem::path ProgramFolder() {
  std::filesystem::path newest;
  std::error_code none;
  for (const auto& version : std::filesystem::directory_iterator("/usr/lib/postgresql", none)) {
    const auto programs = version.path() / "bin";
    if (std::filesystem::exists(programs / "postgres") && programs > newest) newest = programs;
  }
  if (newest.empty())
    throw std::runtime_error("no PostgreSQL below /usr/lib/postgresql: install \"postgresql\"");
  return newest;
}

/// The user that the server runs as.
const passwd& Owner() {
  static const passwd owner = [] {
    const auto* found = geteuid() != 0 ? getpwuid(geteuid()) : getpwnam("postgres");
    if (!found) found = getpwnam("nobody");
    if (!found) throw std::runtime_error("there is no user to run PostgreSQL as");
    return *found;
  }();
  return owner;
}

/// Replaces this process with the program, run as the owner; returns only when that fails.
void Become(Words words, const std::filesystem::path& log) {
  if (geteuid() == 0 &&
      (setgroups(0, nullptr) != 0 || setgid(Owner().pw_gid) != 0 || setuid(Owner().pw_uid) != 0))
    return;
  // After the change of user, which resets it: the server ends with its keeper.
  prctl(PR_SET_PDEATHSIG, SIGQUIT);
  const int out = open(log.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
  const int in = open("/dev/null", O_RDONLY | O_CLOEXEC);
  dup2(in, STDIN_FILENO);
  dup2(out, STDOUT_FILENO);
  dup2(out, STDERR_FILENO);
  if (chdir("/") != 0) return;
  setenv("LC_ALL", "C.UTF-8", 1);
  std::vector<char*> arguments;
  for (auto& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  execv(arguments[0], arguments.data());
}

pid_t Spawn(const Words& words, const std::filesystem::path& log) {
  const pid_t process = fork();
  if (process != 0) return process;
  Become(words, log);
  _exit(127);
}

std::string TextOf(const std::filesystem::path& file) {
  std::ifstream stream(file);
  std::stringstream text;
  text << stream.rdbuf();
  return text.str();
}

void Run(const Words& words, const std::filesystem::path& log) {
  int status = 0;
  const pid_t process = Spawn(words, log);
  if (process < 0 || waitpid(process, &status, 0) != process || status != 0)
    throw std::runtime_error(words[0] + " failed: " + TextOf(log));
}

/// Ends the server when the lifeline is closed, and removes the folder. Runs no code of the test program.
[[noreturn]] void Keep(int lifeline, pid_t server, const std::filesystem::path& folder) {
  char nothing = 0;
  while (read(lifeline, &nothing, 1) < 0 && errno == EINTR) {
  }
  kill(server, SIGQUIT);  // immediate shutdown: its data are not needed
  waitpid(server, nullptr, 0);
  std::error_code ignored;
  std::filesystem::remove_all(folder, ignored);
  _exit(0);
}

}  // namespace

PostgreSqlServer& PostgreSqlServer::Get() {
  static PostgreSqlServer server;
  return server;
}

PostgreSqlServer::PostgreSqlServer() : programs_(ProgramFolder()) {
  // The name of a socket must be short, so TMPDIR does not count.
  std::string pattern = "/tmp/orvik-pg-XXXXXX";
  if (!mkdtemp(pattern.data())) throw std::runtime_error("no folder can be made: " + pattern);
  folder_ = pattern;
  if (geteuid() == 0 && chown(folder_.c_str(), Owner().pw_uid, Owner().pw_gid) != 0)
    throw std::runtime_error("the folder cannot be given away");
  Start();
}

PostgreSqlServer::~PostgreSqlServer() { close(lifeline_); }

void PostgreSqlServer::Prepare() const {
  const auto data = (folder_ / "data").string();
  Run({programs_ / "initdb", "-D", data, "-U", "master", "-A", "trust", "-E", "UTF8", "--no-sync",
       "--no-instructions"},
      folder_ / "initdb.log");
  std::ofstream(folder_ / "data" / "pg_hba.conf") << "local all keyed scram-sha-256\nlocal all all trust\n";
}

void PostgreSqlServer::Start() {
  int ends[2], answers[2];
  if (pipe2(ends, O_CLOEXEC) != 0 || pipe2(answers, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  const pid_t first = fork();
  if (first == 0) {
    // The keeper is detached and in a session of its own, so a signal to the test program's processes does
    // not end it.
    setsid();
    if (fork() != 0) _exit(0);
    close(ends[1]);
    const int nowhere = open("/dev/null", O_RDWR | O_CLOEXEC);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(nowhere, stream);
    pid_t server = -1;
    try {
      Prepare();
      server = Spawn(
          {programs_ / "postgres", "-D", folder_ / "data", "-k", folder_, "-c", "listen_addresses=", "-c",
           "fsync=off", "-c", "full_page_writes=off", "-c", "synchronous_commit=off", "-c",
           "shared_buffers=16MB", "-c", "max_connections=20", "-c", "autovacuum=off"},
          folder_ / "postgres.log");
      (void)!write(answers[1], "+", 1);
    } catch (const std::exception& error) {
      (void)!write(answers[1], error.what(), std::string_view(error.what()).size());
    }
    close(answers[1]);
    if (server < 0) {
      std::error_code ignored;
      std::filesystem::remove_all(folder_, ignored);
      _exit(1);
    }
    Keep(ends[0], server, folder_);
  }
  close(ends[0]);
  close(answers[1]);
  waitpid(first, nullptr, 0);
  lifeline_ = ends[1];
  std::string answer;
  char letters[512];
  for (ssize_t count; (count = read(answers[0], letters, sizeof letters)) > 0;)
    answer.append(letters, static_cast<std::size_t>(count));
  close(answers[0]);
  if (answer != "+") throw std::runtime_error("PostgreSQL: " + answer);
  AwaitReadiness();
  Administer("postgres", "CREATE ROLE bench LOGIN");
  Administer("postgres", "CREATE ROLE keyed LOGIN PASSWORD 'Geheim#1'");
}

void PostgreSqlServer::AwaitReadiness() const {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::minutes(1);
  for (;;) {
    try {
      Administer("postgres", "SELECT 1");
      return;
    } catch (const host::archive::ArchiveError& error) {
      if (std::chrono::steady_clock::now() > deadline)
        throw std::runtime_error(std::string(error.what()) + TextOf(folder_ / "postgres.log"));
    }
    poll(nullptr, 0, 20);
  }
}

void PostgreSqlServer::Administer(const std::string& database, const std::string& statement) const {
  host::archive::PostgreSqlDatabase(UrlFor("master", database)).Run(statement, {});
}

std::string PostgreSqlServer::NewDatabase() {
  const auto name = "db" + std::to_string(++databases_);
  Administer("postgres", "CREATE DATABASE " + name + " OWNER bench");
  return name;
}

std::string PostgreSqlServer::UrlFor(const std::string& user, const std::string& database) const {
  return "postgresql://" + user + "@/" + database + "?host=" + folder_.string();
}

}  // namespace archive_tests
