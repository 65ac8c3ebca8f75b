#pragma once

namespace host::bench {

/// How the program ends.
enum class ExitStatus {
  kPassed = 0,  ///< everything run passed or was not applicable; done
  kFailed = 1,  ///< something failed its limits
  kIncomplete =
      2,  ///< something was not completed: no tester, stopped, aborted, refused, doubtful; not written
  kBadInput = 3,  ///< the message names the file, the line or the option
  kInternal = 4,  ///< an error of the program itself
  kBusy = 5       ///< another program holds a file or the port; trying again later may succeed
};

}  // namespace host::bench
