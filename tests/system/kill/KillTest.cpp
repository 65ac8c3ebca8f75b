#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <iostream>
#include <mutex>
#include <nlohmann/json.hpp>
#include <optional>
#include <random>
#include <thread>

#include "tests/support/Seed.h"
#include "tests/system/kill/Moment.h"
#include "tests/system/kill/Orphans.h"
#include "tests/system/kill/Workplace.h"

namespace kill_test {
namespace {

using Json = nlohmann::json;
using Words = std::vector<std::string>;

/// Divides all pauses and time-outs. A missed reply does no harm: only the killing matters here.
constexpr char kTimeScale[] = "100";

#ifdef __SANITIZE_ADDRESS__
constexpr int kMoments = 100;
#else
constexpr int kMoments = 1000;
#endif

int MomentsInAll() {
  const char* text = std::getenv("ORVIK_KILL_MOMENTS");
  return text ? std::atoi(text) : kMoments;
}

/// A command that is killed, and the check afterwards.
struct Row {
  const char* name;
  int share;  ///< percent of the moments
  Words words;
  /// Creates the files that the command works on.
  void (*prepare)(const Workplace&);
  /// @param old the place before the command
  /// @param changed the place after a complete command
  void (*verify)(const Workplace& place, const Finished& ended, const Workplace& old,
                 const Workplace& changed);
};

std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }

void Require(bool holds, const std::string& what) {
  if (!holds) throw std::runtime_error(what);
}

void PrepareRun(const Workplace& place) {
  place.Bench({"new", "@d.orvik", "--add", "400", "910"});
  place.Bench({"limit", "@d.orvik", "--from", "iec-60601-1-class-1-bf"});
  // An earlier run, in which everything passed.
  place.Bench({"run", "@d.orvik", "--simulate", "sound-class-1", "--time-scale", kTimeScale});
}

/// From the first command on, results of the earlier run no longer count.
void RequireNoEarlierResults(const Workplace& place, const Json& shown, const Finished& ended) {
  const auto runs = Json::parse(place.Bench({"show", "@d.orvik", "--runs", "--json"}))["runs"];
  const auto lines = Lines(ended);
  const bool commanded = std::any_of(lines.begin(), lines.end(), [](const std::string& line) {
    return Json::parse(line)["event"] == "command";
  });
  Require(runs.size() == 2 || (runs.size() == 1 && !commanded), "no record of the run: " + runs.dump());
  const int current = static_cast<int>(runs.size());
  for (const auto& run : runs) Require(run["intact"] == true, "a record is damaged: " + run.dump());
  for (const auto& element : shown["elements"]) {
    const bool counts = element["verdict"] != "not tested";
    Require(!counts || element["run"] == current, "a result of the earlier run counts: " + element.dump());
  }
  Require(WasKilled(ended) || current == 2, "the run ended without a record");
}

/// The document contains every element as it was reported when it finished.
void VerifyRun(const Workplace& place, const Finished& ended, const Workplace& old, const Workplace&) {
  place.Bench({"check", "@d.orvik"});
  const auto shown = Json::parse(place.Bench({"show", "@d.orvik", "--json"}));
  static const auto elements = Json::parse(old.Bench({"show", "@d.orvik", "--json"}))["elements"].size();
  Require(shown["elements"].size() == elements, "elements are missing");
  for (const auto& line : Lines(ended)) {
    const auto event = Json::parse(line);
    if (event["event"] != "finished") continue;
    const auto& all = shown["elements"];
    const auto element =
        std::find_if(all.begin(), all.end(), [&](const Json& one) { return one["id"] == event["element"]; });
    Require(element != all.end(), "not in the document: " + line);
    Require((*element)["status"] == event["status"], "the document has " + element->dump() + " for " + line);
    // A fault while the session is closed may make it doubtful, with a further reason.
    const bool doubtedLater = (*element)["verdict"] == "doubtful" && event["verdict"] != "failed" &&
                              (*element)["reasons"].size() > event["reasons"].size();
    Require(doubtedLater || (*element)["verdict"] == event["verdict"],
            "the document has " + element->dump() + " for " + line);
    const auto& measurement = (*element)["measurement"];
    const auto value = measurement.is_null() ? Json() : measurement["value"];
    Require(value == event["value"], "the document has " + element->dump() + " for " + line);
    for (const auto& reason : event["reasons"]) {
      const auto& reasons = (*element)["reasons"];
      Require(std::find(reasons.begin(), reasons.end(), reason) != reasons.end(),
              "the document has " + element->dump() + " for " + line);
    }
  }
  RequireNoEarlierResults(place, shown, ended);
}

void PrepareLimit(const Workplace& place) {
  place.Bench({"new", "@d.orvik", "--add", "100"});
  place.Bench({"limit", "@d.orvik", "--from", "iec-60601-1-class-1-b"});
}

/// The file is unchanged or completely changed; changed if the command reported it.
void RequireOldOrNew(const Workplace& place, const Finished& ended, const Workplace& old,
                     const Workplace& changed, const std::string& file) {
  const auto contents = place.Contents(file);
  Require(old.Contents(file) != changed.Contents(file), "the row changes nothing");
  Require(contents == changed.Contents(file) || (contents == old.Contents(file) && ended.out.empty()),
          file + " is neither unchanged nor as reported, \"" + ended.out + "\"; it is\n" + contents);
}

void VerifyLimit(const Workplace& place, const Finished& ended, const Workplace& old,
                 const Workplace& changed) {
  RequireOldOrNew(place, ended, old, changed, "d.orvik");
  place.Bench({"check", "@d.orvik"});
}

/// Another tester's leads are stored already.
void PrepareCalibrate(const Workplace& place) {
  place.Bench({"calibrate", "--simulate", "sound-class-1", "--time-scale", kTimeScale, "--serial", "OTHER"});
}

void VerifyCalibrate(const Workplace& place, const Finished& ended, const Workplace& old,
                     const Workplace& changed) {
  const auto settings = [](const Workplace& from) {
    auto all = Json::parse(from.Contents("state/registry.json")).flatten();
    // The time differs from run to run, so only the value beside a date is compared.
    for (auto& [name, value] : all.items())
      if (name.find("Leads/") != std::string::npos)
        value = value.get<std::string>().substr(0, value.get<std::string>().find(' '));
    return all;
  };
  // Several settings are written in turn: each is either old or new.
  const auto before = settings(old), after = settings(changed), now = settings(place);
  Require(before != after, "the row changes nothing");
  if (!ended.out.empty()) Require(now == after, "the reported value is not stored");
  for (const auto& [name, value] : before.items()) Require(now.contains(name), name + " is lost");
  for (const auto& [name, value] : now.items())
    Require(value == before.value(name, Json()) || value == after.value(name, Json()), name + " is neither");
  place.Bench({"tests"});
}

void PrepareArchive(const Workplace& place) {
  for (const auto* name : {"a", "b", "c", "d"})
    place.Bench({"new", std::string("@") + name + ".orvik", "--add", "410", "--asset", name});
  place.Bench({"archive", "add", "--incomplete", "@a.orvik"});
}

/// The archive contains every document reported as added, in order and complete.
void VerifyArchive(const Workplace& place, const Finished& ended, const Workplace& old,
                   const Workplace& changed) {
  const auto read = [](const Workplace& from) {
    std::vector<std::string> kept;
    const auto listed = Json::parse(from.Bench({"archive", "list", "--json"}));
    for (const auto& document : listed["documents"])
      kept.insert(kept.begin(), document["asset"].get<std::string>() + document["sha256"].get<std::string>());
    return kept;
  };
  // The same for every moment, since the commands are the same.
  static const auto before = read(old), after = read(changed);
  const auto kept = read(place);
  Require(before.size() < after.size(), "the row changes nothing");
  Require(kept.size() >= before.size() + Lines(ended).size(), "an added document is missing:\n" + ended.out);
  Require(kept.size() <= after.size() && std::equal(kept.begin(), kept.end(), after.begin()),
          "the archive contains something else");
  place.Bench({"archive", "export", std::to_string(kept.size()), "--to", "@last.orvik"});
  place.Bench({"check", "@last.orvik"});
}

const Row kRows[] = {
    {"run",
     60,
     {"run", "@d.orvik", "--simulate", "sound-class-1", "--time-scale", kTimeScale, "--events"},
     PrepareRun,
     VerifyRun},
    {"archive",
     10,
     {"archive", "add", "--incomplete", "@b.orvik", "@c.orvik", "@d.orvik"},
     PrepareArchive,
     VerifyArchive},
    {"limit", 15, {"limit", "@d.orvik", "--from", "iec-62353-class-1-b"}, PrepareLimit, VerifyLimit},
    {"calibrate",
     15,
     {"calibrate", "--simulate", "sound-class-1", "--time-scale", kTimeScale, "--json"},
     PrepareCalibrate,
     VerifyCalibrate},
};

/// Kills one command at many moments, several at a time.
class Killings {
 public:
  Killings(const Row& row, unsigned seed, int count)
      : row_(row),
        seed_(seed),
        count_(count),
        old_(folder_.Path() / "old"),
        changed_(folder_.Path() / "new") {
    row_.prepare(old_);
    changed_ = old_.CopyTo(changed_.Folder());
    const auto begin = std::chrono::steady_clock::now();
    const auto whole = Run(changed_.Words(row_.words));
    duration_ =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - begin);
    lines_ = static_cast<int>(Lines(whole).size());
    if (whole.status < 0 || whole.status > 2 || lines_ == 0)
      throw std::runtime_error(std::string(row_.name) + " failed: " + whole.error);
  }

  /// @return how many were killed; the others ended before
  int Perform() {
    std::vector<std::thread> workers;
    for (int worker = 0; worker < kWorkers; ++worker) workers.emplace_back([this, worker] { Work(worker); });
    for (auto& worker : workers) worker.join();
    if (!fault_.empty()) throw std::runtime_error(fault_);
    return killed_;
  }

 private:
  static constexpr int kWorkers = 6;
  /// Attempts for each moment: a command may end before it if the machine was busier when the duration was
  /// measured.
  static constexpr int kAttemptsForEach = 4;

  void Work(int worker) {
    while (killed_ < count_ && Fault().empty()) {
      const int attempt = next_++;
      if (attempt >= count_ * kAttemptsForEach) return;
      try {
        Kill(folder_.Path() / std::to_string(worker), attempt);
      } catch (const std::exception& error) {
        const std::lock_guard hold(lock_);
        fault_ = std::string(row_.name) + ", moment " + std::to_string(attempt) + ": " + error.what();
      }
    }
  }

  void Kill(const std::filesystem::path& folder, int attempt) {
    const auto place = old_.CopyTo(folder);
    const auto ended = RunUntil(MomentOf(attempt, place), place.Words(row_.words));
    row_.verify(place, ended, old_, changed_);
    // The leftovers of a killed command do not hinder the next one.
    if (attempt % 16 == 0) {
      const auto again = Run(place.Words(row_.words));
      Require(again.status >= 0 && again.status <= 2, "it does not run again: " + again.error);
    }
    if (WasKilled(ended)) ++killed_;
  }

  /// Many moments are soon after a line of output or a change to a file, when something can be lost.
  Moment MomentOf(int attempt, const Workplace& place) const {
    std::seed_seq seeds{seed_, static_cast<unsigned>(attempt)};
    std::mt19937 random(seeds);
    const auto within = [&](auto most) {
      return std::uniform_int_distribution<long>(0, static_cast<long>(most))(random);
    };
    const auto kind = within(2);
    if (kind == 0)
      return {.touches = static_cast<int>(1 + within(5)),
              .folders = {place.Path("state"), place.Folder().string()},
              .delay = std::chrono::microseconds(within(1) * within(200))};
    if (kind == 1 && lines_ > 1)
      return {.lines = static_cast<int>(within(lines_ - 1)),
              .delay = std::chrono::microseconds(within(1) * within(2000))};
    return {.delay = std::chrono::microseconds(within(duration_.count()))};
  }

  std::string Fault() {
    const std::lock_guard hold(lock_);
    return fault_;
  }

  const Row& row_;
  const unsigned seed_;
  const int count_;
  FastFolder folder_;
  Workplace old_, changed_;
  std::chrono::microseconds duration_{0};
  int lines_ = 0;
  std::atomic<int> next_ = 0, killed_ = 0;
  std::mutex lock_;
  std::string fault_;
};

class KillTest : public testing::TestWithParam<Row> {};

TEST_P(KillTest, LosesNothingAndLeavesNoProcess) {
  const auto seed = support::Seed();
  const auto moments = MomentsInAll() * GetParam().share / 100;
  std::cout << GetParam().name << ": " << moments << " moments" << std::endl;
  const Orphans orphans;
  Killings killings(GetParam(), seed, moments);
  int killed = 0;
  EXPECT_NO_THROW(killed = killings.Perform());
  EXPECT_GE(killed, moments);
  std::vector<std::string> names;
  ASSERT_NO_THROW(names = orphans.AwaitEnd());
  // The simulated testers were running, or the test shows nothing.
  const bool simulated = std::count(GetParam().words.begin(), GetParam().words.end(), "--simulate") > 0;
  EXPECT_EQ(std::count(names.begin(), names.end(), "keld-sim") > 0, simulated);
}

INSTANTIATE_TEST_SUITE_P(Commands, KillTest, testing::ValuesIn(kRows),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST(SimulatedTesterTest, EndsWithItsParent) {
  const Orphans orphans;
  const FastFolder folder;
  const Workplace place(folder.Path() / "place");
  place.Bench({"new", "@d.orvik", "--add", "410"});
  // During a session: the command that begins it has been sent.
  const auto ended =
      RunUntil({.lines = 4}, place.Words({"run", "@d.orvik", "--simulate", "sound-class-1", "--events"}));
  EXPECT_TRUE(WasKilled(ended)) << ended.out << ended.error;
  std::vector<std::string> names;
  ASSERT_NO_THROW(names = orphans.AwaitEnd());
  EXPECT_EQ(names, std::vector<std::string>{"keld-sim"});
}

/// The folder for temporary files of the programs while this object lives.
class TemporaryPlace {
 public:
  explicit TemporaryPlace(std::string folder) : folder_(std::move(folder)) {
    std::filesystem::create_directory(folder_);
    if (const char* before = std::getenv("TMPDIR")) before_ = before;
    setenv("TMPDIR", folder_.c_str(), 1);
  }
  TemporaryPlace(const TemporaryPlace&) = delete;
  TemporaryPlace& operator=(const TemporaryPlace&) = delete;
  ~TemporaryPlace() { before_ ? setenv("TMPDIR", before_->c_str(), 1) : unsetenv("TMPDIR"); }

  const std::string& Folder() const { return folder_; }
  std::vector<std::string> Left() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_))
      names.push_back(entry.path().filename());
    return names;
  }

 private:
  const std::string folder_;
  std::optional<std::string> before_;
};

TEST(SimulatedTesterTest, LeavesNoTemporaryFiles) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGKILL}) {
    const Orphans orphans;
    const FastFolder folder;
    const Workplace place(folder.Path() / "place");
    place.Bench({"new", "@d.orvik", "--add", "410"});
    const TemporaryPlace temporary((folder.Path() / "tmp").string());
    // At the first file in the folder, perhaps shortly before, shortly after, and during the session.
    for (const Moment& moment : {Moment{.touches = 1, .folders = {temporary.Folder()}, .signal = signal},
                                 Moment{.delay = std::chrono::milliseconds(10), .signal = signal},
                                 Moment{.touches = 1,
                                 .folders = {temporary.Folder()},
                                 .delay = std::chrono::milliseconds(3),
                                 .signal = signal},
                                 Moment{.lines = 3, .signal = signal}}) {
      RunUntil(moment, place.Words({"run", "@d.orvik", "--simulate", "--time-scale", "100", "--events"}));
      ASSERT_NO_THROW(orphans.AwaitEnd());
      EXPECT_EQ(temporary.Left(), std::vector<std::string>{}) << strsignal(signal);
    }
  }
}

}  // namespace
}  // namespace kill_test
