#include "host/cli/Program.h"

#include <CLI/CLI.hpp>
#include <chrono>
#include <csignal>
#include <iostream>
#include <memory>
#include <utility>
#include <vector>

#include "OrvikTypeLib/HostError.h"
#include "host/base/FileErrors.h"
#include "host/base/Patience.h"
#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/cli/commands/AddCommand.h"
#include "host/cli/commands/ArchiveCommand.h"
#include "host/cli/commands/CalibrateCommand.h"
#include "host/cli/commands/CheckCommand.h"
#include "host/cli/commands/Command.h"
#include "host/cli/commands/ConfigCommand.h"
#include "host/cli/commands/EditCommand.h"
#include "host/cli/commands/GuiCommand.h"
#include "host/cli/commands/LimitCommand.h"
#include "host/cli/commands/MoveCommand.h"
#include "host/cli/commands/NewCommand.h"
#include "host/cli/commands/RemoveCommand.h"
#include "host/cli/commands/ReportCommand.h"
#include "host/cli/commands/RunCommand.h"
#include "host/cli/commands/ShowCommand.h"
#include "host/cli/commands/StandardsCommand.h"
#include "host/cli/commands/TestsCommand.h"
#include "host/cli/help/CheckArguments.h"
#include "host/cli/help/CompletionCommand.h"
#include "host/cli/help/ElementNumbersCommand.h"
#include "host/cli/help/HelpCommand.h"
#include "host/cli/help/HelpFormat.h"
#include "host/cli/help/ManualCommand.h"
#include "host/cli/help/ProgramLanguage.h"
#include "host/cli/help/UnknownWords.h"
#include "host/cli/options/NumberOption.h"

namespace host::cli {

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

void DeclareGlobal(CLI::App& program, bench::GlobalOptions& options) {
  program.add_option("--state", options.state, Tr("Folder of settings and error log; otherwise ORVIK_STATE"))
      ->type_name("DIR");
  program.add_option("--catalogue", options.catalogue, Tr("Take the catalogue of tests from this file"))
      ->type_name("FILE");
  program
      .add_option("--lang", options.language,
                  Tr("Language of texts, such as de; otherwise that of ORVIK_LANG or the locale"))
      ->type_name("L");
  WholeNumbers(program.add_option(
                   "--wait", options.wait,
                   Tr("Wait up to this long in total for a document, settings, an archive or a port that "
                      "another program uses; otherwise 0")))
      ->type_name("SECONDS");
  program.set_version_flag("-V,--version", "orvik-bench " ORVIK_VERSION, Tr("Show the version"));
  program.require_subcommand(
      0, 1);  // `RunChosen` reports a missing command, so that an unknown one is reported as unknown
}

/// Declared after the commands, which would otherwise inherit it.
void DeclareOwn(CLI::App& program) {
  program.set_help_all_flag("--help-all", Tr("Show the options of all commands"));
  program.footer(
      Tr("Exit status: 0 passed or done, 1 something failed its limits, 2 something was not "
         "completed\nor not written, 3 bad input, 4 internal error, 5 in use by another program.") +
      "\n\n" + Tr("Example:") +
      "\n"
      "  orvik-bench new pump.orvik --add 1700\n"
      "  orvik-bench limit pump.orvik --element 5 --standard \"IEC 62353\" --high 300\n"
      "  orvik-bench run pump.orvik --port /dev/ttyUSB0\n"
      "  orvik-bench run pump.orvik --simulate sound-class-1 --time-scale 100");
}

bench::ExitStatus Report(bench::ExitStatus status, const std::string& text) {
  std::cout << std::flush;
  std::cerr << "orvik-bench: " << text << "\n";
  return status;
}

/// The status, or a failure when the standard output could not be written.
bench::ExitStatus Written(bench::ExitStatus status) {
  std::cout.flush();
  if (std::cout) return status;
  return Report(status == bench::ExitStatus::kPassed ? bench::ExitStatus::kIncomplete : status,
                Tr("the standard output cannot be written"));
}

bench::ExitStatus RunChosen(const std::vector<Entry>& entries, const bench::GlobalOptions& options) {
  for (const auto& entry : entries) {
    if (!entry.declared->parsed()) continue;
    return Written(entry.command->Run(options));
  }
  throw bench::InputError(Tr("a command is missing; \"orvik-bench --help\" lists the commands"));
}

void WaitAsAsked(std::int32_t seconds) {
  if (seconds < 0)
    throw bench::InputError(Tr("--wait %%1: give a number of seconds from 0", {std::to_string(seconds)}));
  Patience::Set(std::chrono::seconds(seconds), [seconds](const std::string& reason) {
    std::cout << std::flush;
    std::cerr << "orvik-bench: "
              << Tr("%%1; waiting, at most %%2 s (Ctrl-C gives up)", {reason, std::to_string(seconds)})
              << std::endl;
  });
}

/// Errors of the host about files, arguments and classes come from what was given on the command line.
bench::ExitStatus StatusOf(const orvik::HostError& error) {
  switch (error.Number()) {
    case orvik::HostError::kPathError:
    case orvik::HostError::kInvalidArgument:
    case orvik::HostError::kTypeMismatch:
      return bench::ExitStatus::kBadInput;
    case orvik::HostError::kDeviceError:
      return bench::ExitStatus::kIncomplete;
    default:
      return bench::ExitStatus::kInternal;
  }
}

/// An unknown word explains the error better than the argument that is missing because of it.
std::string Refusal(const CLI::App& program, const CLI::ParseError& error) {
  const auto code = error.get_exit_code();
  const bool unknown = code == static_cast<int>(CLI::ExitCodes::ExtrasError) ||
                       code == static_cast<int>(CLI::ExitCodes::RequiredError);
  auto reason = unknown ? UnknownWords(program) : std::string();
  if (reason.empty()) reason = error.what();  // the library's own English sentence
  const auto help = Tr("\"%%1 --help\" shows the options", {CommandTyped(program)});
  return reason.back() == '?' ? reason + " " + help : Tr("%%1; %%2", {reason, help});
}

bench::ExitStatus ParseAndRun(int argumentCount, const char* const* arguments) {
  // Before the declarations, whose texts are in that language.
  const auto language = ChooseProgramLanguage(argumentCount, arguments);
  CLI::App program{Tr("Plans, runs and records electrical-safety tests with a KELD tester."), "orvik-bench"};
  program.set_help_flag("-h,--help", Tr("Print this help message and exit"));
  program.formatter(MakeHelpFormat());
  bench::GlobalOptions options;
  DeclareGlobal(program, options);
  const auto entries = Declare<TestsCommand, NewCommand, AddCommand, RemoveCommand, MoveCommand, EditCommand,
                               LimitCommand, StandardsCommand, CheckCommand, ConfigCommand, RunCommand,
                               GuiCommand, ShowCommand, ReportCommand, CalibrateCommand, ArchiveCommand,
                               HelpCommand, CompletionCommand, ManualCommand, ElementNumbersCommand>(program);
  DeclareOwn(program);
  try {
    program.parse(argumentCount, arguments);
  } catch (const CLI::Success& asked) {  // help and version
    program.exit(asked);
    return Written(bench::ExitStatus::kPassed);
  } catch (const CLI::ParseError& error) {
    return Report(bench::ExitStatus::kBadInput, Refusal(program, error));
  }
  CheckArguments(program);
  options.language = language;
  WaitAsAsked(options.wait);
  return RunChosen(entries, options);
}

}  // namespace

bench::ExitStatus RunProgram(int argumentCount, const char* const* arguments) {
  // Without this, a file that grows too large would end the program; ignored, the write fails instead.
  std::signal(SIGXFSZ, SIG_IGN);
  try {
    return ParseAndRun(argumentCount, arguments);
  } catch (const bench::InputError& error) {
    return Report(bench::ExitStatus::kBadInput, error.what());
  } catch (const bench::IncompleteError& error) {
    return Report(bench::ExitStatus::kIncomplete, error.what());
  } catch (const BusyError& error) {
    return Report(bench::ExitStatus::kBusy, error.Description());
  } catch (const StorageError& error) {
    return Report(bench::ExitStatus::kIncomplete, error.Description());
  } catch (const orvik::HostError& error) {
    return Report(StatusOf(error), error.Description());
  } catch (const std::exception& error) {
    return Report(bench::ExitStatus::kInternal, Tr("internal error: %%1", {error.what()}));
  }
}

}  // namespace host::cli
