#include "tester/StopSignal.h"

#include <signal.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <cerrno>

#include "tester/Errors.h"

namespace sim {

StopSignal::StopSignal() {
  sigset_t signals;
  sigemptyset(&signals);
  for (const int number : {SIGINT, SIGTERM}) sigaddset(&signals, number);
  // A blocked signal arrives even when it is ignored; who started us with nohup does not want that.
  struct sigaction hangUp {};
  sigaction(SIGHUP, nullptr, &hangUp);
  if (hangUp.sa_handler != SIG_IGN) sigaddset(&signals, SIGHUP);
  if (sigprocmask(SIG_BLOCK, &signals, nullptr) != 0)
    throw SystemFailure("signals could not be blocked", errno);
  fd_ = UniqueFd(signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK));
  if (!fd_) throw SystemFailure("signals could not be watched", errno);
}

void ExitWithParent(int parent) {
  if (prctl(PR_SET_PDEATHSIG, SIGTERM) != 0)
    throw SystemFailure("--exit-with-parent: the system cannot watch the parent", errno);
  if (getppid() != parent) raise(SIGTERM);  // it ended before the system watched it
}

}  // namespace sim
