#include "tests/system/faults/FaultRun.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <thread>

#include "tests/support/Process.h"
#include "tests/system/faults/RunEvidence.h"

namespace faults {

namespace {

namespace fs = std::filesystem;

/// Readings come without a measuring time, so that a reply has the whole of its time on a slow machine.
constexpr char kProfile[] =
    "410 = 0.123 Ohm 0 ms\n420 = 0.131 Ohm 0 ms\n1010 = 2.5 MOhm 0 ms\n610 = 90 µA 0 ms\n210 = 231.4 V 0 "
    "ms\n";

/// Which one of its mnemonic the command is in a run.
struct Place {
  std::string mnemonic;
  int nth;
};

Place PlaceOf(Kind kind, const std::string& command) {
  const auto mnemonicOf = [](const std::string& text) { return text.substr(0, 4); };
  int nth = 0;
  for (const auto& other : CommandsOf(kind)) {
    if (mnemonicOf(other) == mnemonicOf(command)) ++nth;
    if (other == command) return {mnemonicOf(command), nth};
  }
  throw std::logic_error("the run has no command " + command);
}

std::string ScriptOf(const Case& what) {
  const Place place = PlaceOf(what.kind, what.command);
  std::ostringstream script;
  for (int attempt = 1; attempt <= what.attempt; ++attempt)
    script << "at " << place.mnemonic << " " << place.nth + attempt - 1 << " "
           << (attempt < what.attempt ? "drop" : what.fault) << "\n";
  return script.str();
}

}  // namespace

std::vector<std::string> CommandsOf(Kind kind) {
  if (kind == Kind::kSequence) return {"IREM", "STST 1", "GRES 1", "STST 2", "GRES 2", "STST end", "EREM"};
  return {"IREM", "STST 1", "GRES 1", "STST end", "EREM"};
}

std::string TextOf(const std::vector<std::string>& commands) {
  std::string text;
  for (auto at = commands.begin(); at != commands.end();) {
    const auto next =
        std::find_if(at, commands.end(), [&](const std::string& other) { return other != *at; });
    text += (text.empty() ? "" : ", ") + *at;
    if (next - at > 1) text += " x" + std::to_string(next - at);
    at = next;
  }
  return text;
}

std::vector<std::string> CommandsIn(const std::string& text) {
  std::vector<std::string> commands;
  std::istringstream parts(text);
  for (std::string part; std::getline(parts >> std::ws, part, ',');) {
    const auto times = part.find(" x");
    commands.insert(commands.end(), times == std::string::npos ? 1U : std::stoul(part.substr(times + 2)),
                    part.substr(0, times));
  }
  return commands;
}

FaultRig::FaultRig(int timeScale, std::size_t atOnce)
    : timeScale_(std::to_string(timeScale)), atOnce_(atOnce) {
  std::ofstream(folder_.Path() / "profile") << kProfile;
  MakeDocument(Kind::kTest, "410", {"1"}, {"--high", "300", "--unit", "mOhm"});
  MakeDocument(Kind::kLeakage, "610", {"1"}, {"--high", "500", "--unit", "µA"});
  MakeDocument(Kind::kInsulation, "1010", {"1"}, {"--low", "2", "--unit", "MOhm"});
  MakeDocument(Kind::kSequence, "400", {"2", "3"}, {"--high", "300", "--unit", "mOhm"});
}

std::string FaultRig::Document(Kind kind) const {
  return (folder_.Path() / (std::to_string(static_cast<int>(kind)) + ".orvik")).string();
}

void FaultRig::MakeDocument(Kind kind, const std::string& test, const std::vector<std::string>& elements,
                            const std::vector<std::string>& limit) const {
  const auto bench = [&](std::vector<std::string> words) {
    words.insert(words.end(), {"--state", (folder_.Path() / "state").string()});
    const auto done = support::Run(ORVIK_BENCH_PATH, words);
    if (done.status != 0) throw std::runtime_error(words[0] + ": " + done.error);
  };
  bench({"new", Document(kind), "--add", test});
  for (const auto& element : elements) {
    std::vector<std::string> words{"limit", Document(kind), "--element", element, "--standard", "IEC 62353"};
    words.insert(words.end(), limit.begin(), limit.end());
    bench(words);
  }
}

Observed FaultRig::Run(const Case& what) const {
  const support::TemporaryFolder script;
  const auto path = (script.Path() / "faults").string();
  std::ofstream(path) << ScriptOf(what);
  return Run(what.kind, {"--faults", path}, what.fault);
}

Observed FaultRig::Run(Kind kind, const std::vector<std::string>& testerWords,
                       const std::string& expected) const {
  const support::TemporaryFolder own;
  const auto path = [&](const char* name) { return (own.Path() / name).string(); };
  fs::copy_file(Document(kind), path("d.orvik"));
  std::vector<std::string> words{"--link",   path("tester"), "--time-scale",
                                 timeScale_, "--profile",    (folder_.Path() / "profile").string(),
                                 "--trace",  path("trace")};
  words.insert(words.end(), testerWords.begin(), testerWords.end());
  RunEvidence evidence;
  support::Process tester(KELD_SIM_PATH, words);
  if (!tester.AwaitOutput("ready")) throw std::runtime_error("keld-sim: " + tester.Wait().error);
  support::Process bench(ORVIK_BENCH_PATH, {"run", path("d.orvik"), "--port", path("tester"), "--time-scale",
                                            timeScale_, "--json", "--state", path("state")});
  const auto ended = bench.Wait();
  evidence.exitStatus = ended.status;
  evidence.json = ended.out;
  evidence.said = ended.error;
  evidence.wireLog = ReadLines(path("d.orvik.wire.log"));
  evidence.trace = ReadLines(path("trace"));
  return Judge(evidence, expected);
}

std::vector<Observed> FaultRig::RunAll(const std::vector<Case>& cases) const {
  return RunAll(cases.size(), [&](std::size_t at) { return Run(cases[at]); });
}

std::vector<Observed> FaultRig::RunAll(std::size_t count,
                                       const std::function<Observed(std::size_t)>& run) const {
  std::vector<Observed> observed(count);
  std::atomic<std::size_t> next{0};
  std::vector<std::thread> workers;
  for (std::size_t i = 0; i < std::min(atOnce_, count); ++i) {
    workers.emplace_back([&] {
      for (std::size_t at = next++; at < count; at = next++) {
        try {
          observed[at] = run(at);
        } catch (const std::exception& failure) {  // a hang, above all
          observed[at].offences = {failure.what()};
        }
      }
    });
  }
  for (auto& worker : workers) worker.join();
  return observed;
}

}  // namespace faults
