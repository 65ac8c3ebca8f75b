#pragma once

#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "host/serial/UniqueFd.h"

namespace cli {

/// Runs a program on a terminal of its own to its end; what it showed, escape sequences included.
/// @param environment variables to set, or to remove when the value is empty
inline std::string ShownOnTerminal(const std::string& path, std::vector<std::string> arguments,
                                   const std::vector<std::pair<std::string, std::string>>& environment) {
  int master = -1;
  winsize size{};
  size.ws_row = 40;
  size.ws_col = 160;
  const pid_t process = forkpty(&master, nullptr, nullptr, &size);
  if (process < 0) throw std::runtime_error("no terminal");
  if (process == 0) {
    for (const auto& [name, value] : environment) {
      if (value.empty())
        unsetenv(name.c_str());
      else
        setenv(name.c_str(), value.c_str(), 1);
    }
    std::vector<char*> words{const_cast<char*>(path.c_str())};
    for (auto& argument : arguments) words.push_back(argument.data());
    words.push_back(nullptr);
    execv(words[0], words.data());
    _exit(127);
  }
  const bench::UniqueFd terminal(master);
  std::string shown;
  char buffer[4096];
  // The read fails when the program, the last one that holds the terminal, has gone.
  for (ssize_t count; (count = read(terminal.Get(), buffer, sizeof buffer)) > 0;)
    shown.append(buffer, static_cast<std::size_t>(count));
  waitpid(process, nullptr, 0);
  return shown;
}

}  // namespace cli
