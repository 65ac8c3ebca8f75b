#include "tests/system/history/Bench.h"

#include <fstream>
#include <iostream>
#include <sstream>

#include "OrvikTypeLib/HostError.h"
#include "host/bench/InputError.h"
#include "host/cli/Program.h"
#include "host/elements/ElementFactory.h"
#include "tests/system/history/Edits.h"
#include "tests/system/history/Model.h"
#include "tests/system/history/Run.h"

namespace history {
namespace {

/// Captures what is printed during its lifetime.
class Printed {
 public:
  explicit Printed(std::ostream& stream) : stream_(stream), before_(stream.rdbuf(text_.rdbuf())) {}
  Printed(const Printed&) = delete;
  Printed& operator=(const Printed&) = delete;
  ~Printed() { stream_.rdbuf(before_); }

  std::string Text() const { return text_.str(); }

 private:
  std::ostringstream text_;
  std::ostream& stream_;
  std::streambuf* before_;
};

}  // namespace

Bench::Bench() : folder_(bench_.Only().Folder()) {
  bench_.Host().Elements()->AddPlugIn(bench_.PlugIn());
  bench_.Application().SetStallHandler([] { throw std::logic_error("the run waits for ever"); });
}

Bench::~Bench() { bench_.Host().Elements()->ReleasePlugIns(); }

void Bench::Clear() {
  for (const auto& file : std::filesystem::directory_iterator(folder_)) std::filesystem::remove_all(file);
  for (const auto& set : LimitSets()) std::ofstream(folder_ / (set.name + ".xml")) << set.xml;
  keld::MKELDGlobalVars::InstrumentDataSlot().reset();
}

std::shared_ptr<host::document::Document> Bench::Open(const std::string& file) {
  return host::document::Document::Open(bench_.Only().SharedHost(), PathOf(file),
                                        host::document::DocumentFile::Use::kRead);
}

std::optional<std::string> Bench::Perform(const Operation& operation, World& world, bool byCommand) {
  using Kind = Operation::Kind;
  const auto arguments = ArgumentsOf(operation, Folder());
  if (arguments.empty() || operation.kind == Kind::kRun) byCommand = false;
  try {
    if (byCommand) {
      const auto told = Command(arguments);
      return told.status == 0 ? std::nullopt : std::optional(told.error);
    }
    if (operation.kind == Kind::kRun)
      return RunOf(bench_, Folder()).Perform(operation, world);
    else
      EditsOf(bench_, Folder()).Perform(operation);
    return {};
  } catch (const orvik::HostError& error) {
    return error.Description();
  } catch (const host::bench::InputError& error) {
    return error.what();
  }
}

Bench::Told Bench::Command(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "orvik-bench");
  arguments.insert(arguments.end(), {"--state", folder_.string()});
  std::vector<const char*> typed;
  for (const auto& argument : arguments) typed.push_back(argument.c_str());
  Printed out(std::cout), error(std::cerr);
  Told told;
  told.status = static_cast<int>(host::cli::RunProgram(static_cast<int>(typed.size()), typed.data()));
  told.out = out.Text();
  told.error = error.Text();
  return told;
}

}  // namespace history
