#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "tests/support/Process.h"
#include "tests/support/ReadFile.h"
#include "tests/support/TemporaryFolder.h"

namespace cli {

using support::Finished;
using testing::HasSubstr;
using testing::Not;

/// A command line that must be refused.
struct Refusal {
  const char* name;
  std::vector<std::string> words;  ///< "@x" is the file x in the test's folder
  std::vector<std::string> named;  ///< parts of the message, "@x" as in `words`
};

inline std::ostream& operator<<(std::ostream& out, const Refusal& refusal) { return out << refusal.name; }

/// Names a case of a table.
constexpr auto kNamed = [](const auto& tested) { return std::string(tested.param.name); };

/// The real program, with its own folder and state.
class CliTest : public testing::Test {
 protected:
  using Words = std::vector<std::string>;

  CliTest() {
    setenv("ORVIK_STATE", Path("state").c_str(), 1);
    // The machine's language must not matter.
    setenv("LC_ALL", "C", 1);
    unsetenv("ORVIK_LANG");
  }

  /// Pauses are divided by this; a reply may still take 200 ms.
  static constexpr char kTimeScale[] = "10";

  std::string Path(const std::string& name) const { return (folder_.Path() / name).string(); }

  std::unique_ptr<support::Process> Start(Words arguments) const {
    return std::make_unique<support::Process>(ORVIK_BENCH_PATH, std::move(arguments));
  }
  Finished Bench(Words arguments) const { return Start(std::move(arguments))->Wait(); }
  /// What the command prints, which must succeed.
  std::string Done(const Words& words) const {
    const auto done = Bench(words);
    EXPECT_EQ(done.status, 0) << done.error;
    return done.out;
  }
  /// What the command prints as JSON, whatever its status.
  nlohmann::json Json(const Words& words) const { return nlohmann::json::parse(Bench(words).out); }

  static Words Join(Words words, const Words& more) {
    words.insert(words.end(), more.begin(), more.end());
    return words;
  }

  /// The command is refused with a message that names these, and d.orvik is unchanged.
  void ExpectRefused(Words words, const Words& named) const {
    const auto resolved = [this](const std::string& word) {
      return word.starts_with("@") ? Path(word.substr(1)) : word;
    };
    const auto before = Contents(Path("d.orvik"));
    for (auto& word : words) word = resolved(word);
    const auto refused = Bench(words);
    EXPECT_EQ(refused.status, 3) << refused.error;
    EXPECT_EQ(refused.out, "");
    EXPECT_THAT(refused.error, Not(HasSubstr("\n\n")));
    for (const auto& part : named) EXPECT_THAT(refused.error, HasSubstr(resolved(part)));
    EXPECT_EQ(Contents(Path("d.orvik")), before) << "the document was changed";
  }

  /// A document with these tests; returns its path.
  std::string NewDocument(const Words& tests) const {
    const auto file = Path("d.orvik");
    Done(Join({"new", file, "--add"}, tests));
    return file;
  }

  /// The words that run the document on a simulated tester.
  static Words Simulated(const std::string& file, const std::string& profile, const Words& more = {}) {
    return Join({"run", file, "--simulate", profile, "--time-scale", kTimeScale}, more);
  }
  /// Runs the document on sound equipment.
  Finished RunSound(const std::string& file, const Words& more = {}) const {
    return Bench(Simulated(file, "sound-class-1", more));
  }

  void SetLimit(const std::string& file, const std::string& element, const std::string& high) const {
    Done({"limit", file, "--element", element, "--standard", "IEC 62353", "--high", high});
  }

  /// Sets limits that every reading of sound equipment is within.
  void SetWideLimits(const std::string& file, const Words& elements) const {
    for (const auto& element : elements) SetLimit(file, element, "100000");
  }

  nlohmann::json Show(const std::string& file) const {
    return nlohmann::json::parse(Done({"show", file, "--json"}));
  }

  void Write(const std::string& name, const std::string& text) const { std::ofstream(Path(name)) << text; }

  static std::string Contents(const std::string& path) { return support::ReadFile(path); }

  /// The texts of the commands in a wire log, in order.
  static Words SentIn(const std::string& wireLog) {
    Words sent;
    std::ifstream file(wireLog);
    for (std::string line; std::getline(file, line);) {
      const auto at = line.find(" sent ");
      if (at != std::string::npos) sent.push_back(line.substr(at + 6));
    }
    return sent;
  }

  /// The command sent at that place, from 0; empty if fewer were sent.
  static std::string SentIn(const std::string& wireLog, std::size_t place) {
    const auto sent = SentIn(wireLog);
    return place < sent.size() ? sent[place] : "";
  }

  support::TemporaryFolder folder_;
};

}  // namespace cli
