#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <exception>

namespace support {

/// Starts a child process that carries out the step; what changes the process does not change the tests then.
template <class Step>
pid_t StartChild(Step step) {
  const pid_t child = fork();
  if (child != 0) return child;
  bool succeeded = false;
  try {
    step();
    succeeded = !::testing::Test::HasFailure();
  } catch (const std::exception&) {
    succeeded = false;
  }
  _exit(succeeded ? 0 : 1);
}

/// Waits for the child; whether its step ended without an error and without a failed expectation.
inline bool ChildSucceeded(pid_t child) {
  int status = 0;
  return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace support
