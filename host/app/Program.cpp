#include "host/app/Program.h"

#include <iostream>
#include <memory>
#include <utility>
#include <vector>

#include "OrvikTypeLib/HostError.h"
#include "host/app/CalibrateCommand.h"
#include "host/app/Command.h"
#include "host/app/ConfigCommand.h"
#include "host/app/InputError.h"
#include "host/app/LimitCommand.h"
#include "host/app/NewCommand.h"
#include "host/app/ReportCommand.h"
#include "host/app/RunCommand.h"
#include "host/app/ShowCommand.h"
#include "host/app/TestsCommand.h"

namespace bench {

namespace {

struct Entry {
  std::unique_ptr<Command> command;
  CLI::App* declared;
};

template <class... Commands>
std::vector<Entry> Declare(CLI::App& program) {
  std::vector<Entry> entries;
  const auto add = [&](std::unique_ptr<Command> command) {
    auto* declared = command->Declare(program);
    declared->fallthrough();  // the options of the program may follow the command's name
    entries.push_back({std::move(command), declared});
  };
  (add(std::make_unique<Commands>()), ...);
  return entries;
}

void DeclareGlobal(CLI::App& program, GlobalOptions& options) {
  program.add_option("--state", options.state, "Folder of settings and error log; otherwise ORVIK_STATE")
      ->type_name("DIR");
  program.add_option("--catalogue", options.catalogue, "Take the catalogue of tests from this file")
      ->type_name("FILE");
  program.add_option("--lang", options.language, "Language of texts, such as da; otherwise English")
      ->type_name("L");
  program.set_version_flag("--version", "orvik-bench " ORVIK_VERSION, "Show the version");
  program.set_help_all_flag("--help-all", "Show the options of all commands");
  program.footer(
      "Exit status: 0 passed or done, 1 something failed its limits, 2 something was not completed,\n"
      "3 bad input, 4 internal error.\n\n"
      "Example:\n"
      "  orvik-bench new pump.orvik --add 1700\n"
      "  orvik-bench limit pump.orvik --element 5 --standard \"IEC 62353\" --high 300\n"
      "  orvik-bench run pump.orvik --port /dev/ttyUSB0\n"
      "  orvik-bench run pump.orvik --simulate sound-class-1 --time-scale 100");
  program.require_subcommand(0, 1);  // a missing one is told below: an unknown one is then told as such
}

ExitStatus Tell(ExitStatus status, const std::string& text) {
  std::cout << std::flush;
  std::cerr << "orvik-bench: " << text << "\n";
  return status;
}

ExitStatus RunChosen(const std::vector<Entry>& entries, const GlobalOptions& options) {
  for (const auto& entry : entries) {
    if (!entry.declared->parsed()) continue;
    const auto status = entry.command->Run(options);
    std::cout.flush();
    if (std::cout) return status;
    return Tell(status == ExitStatus::kPassed ? ExitStatus::kIncomplete : status,
                "the standard output cannot be written");
  }
  throw InputError("a command is needed; \"orvik-bench --help\" shows those there are");
}

/// Errors of the host about files, arguments and classes come from what was given on the command line.
ExitStatus StatusOf(const orvik::HostError& error) {
  switch (error.Number()) {
    case orvik::HostError::kPathError:
    case orvik::HostError::kInvalidArgument:
    case orvik::HostError::kTypeMismatch:
      return ExitStatus::kBadInput;
    case orvik::HostError::kDeviceError:
      return ExitStatus::kIncomplete;
    default:
      return ExitStatus::kInternal;
  }
}

}  // namespace

ExitStatus RunProgram(int argumentCount, const char* const* arguments) {
  CLI::App program{"Plans, runs and records electrical-safety tests with a KELD tester.", "orvik-bench"};
  GlobalOptions options;
  DeclareGlobal(program, options);
  const auto entries = Declare<TestsCommand, NewCommand, LimitCommand, ConfigCommand, RunCommand, ShowCommand,
                               ReportCommand, CalibrateCommand>(program);
  try {
    program.parse(argumentCount, arguments);
  } catch (const CLI::Success& asked) {  // help and version
    program.exit(asked);
    return ExitStatus::kPassed;
  } catch (const CLI::ParseError& error) {
    return Tell(ExitStatus::kBadInput,
                std::string(error.what()) + "; \"orvik-bench --help\" shows what can be given");
  }
  try {
    return RunChosen(entries, options);
  } catch (const InputError& error) {
    return Tell(ExitStatus::kBadInput, error.what());
  } catch (const IncompleteError& error) {
    return Tell(ExitStatus::kIncomplete, error.what());
  } catch (const orvik::HostError& error) {
    return Tell(StatusOf(error), error.Description());
  } catch (const std::exception& error) {
    return Tell(ExitStatus::kInternal, std::string("internal error: ") + error.what());
  }
}

}  // namespace bench
