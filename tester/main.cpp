#include <signal.h>
#include <unistd.h>

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "tester/Errors.h"
#include "tester/Manual.h"
#include "tester/Options.h"
#include "tester/Program.h"

int main(int argc, char** argv) {
  const int parent = getppid();
  signal(SIGPIPE, SIG_IGN);  // the reader of the ready line may end first
  try {
    const sim::Options options = sim::ParseOptions(std::vector<std::string>(argv + 1, argv + argc));
    if (options.action == sim::Options::Action::ShowHelp) {
      std::fputs(sim::HelpText().c_str(), stdout);
    } else if (options.action == sim::Options::Action::ShowManual) {
      std::fputs(sim::ManualPage().c_str(), stdout);
    } else if (options.action == sim::Options::Action::ShowVersion) {
      std::fputs(sim::VersionText().c_str(), stdout);
    } else {
      sim::RunTester(options, parent);
    }
    return sim::kExitDone;
  } catch (const sim::InputError& error) {
    std::fprintf(stderr, "keld-sim: %s\n", error.what());
    return sim::kExitBadInput;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "keld-sim: %s\n", error.what());
    return sim::kExitSystemFailure;
  }
}
