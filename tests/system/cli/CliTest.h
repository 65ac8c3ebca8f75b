#pragma once

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

/// The real program, in a folder and with a state of its own.
class CliTest : public testing::Test {
 protected:
  using Words = std::vector<std::string>;

  CliTest() {
    setenv("ORVIK_STATE", Path("state").c_str(), 1);
    // The machine's language has no say.
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

  /// A document with these tests; returns its path.
  std::string NewDocument(const Words& tests) const {
    const auto file = Path("d.orvik");
    Words words{"new", file, "--add"};
    words.insert(words.end(), tests.begin(), tests.end());
    const auto made = Bench(words);
    EXPECT_EQ(made.status, 0) << made.error;
    return file;
  }

  /// The words that run the document on a simulated tester.
  static Words Simulated(const std::string& file, const std::string& profile, const Words& more = {}) {
    Words words{"run", file, "--simulate", profile, "--time-scale", kTimeScale};
    words.insert(words.end(), more.begin(), more.end());
    return words;
  }

  void SetLimit(const std::string& file, const std::string& element, const std::string& high) const {
    const auto set = Bench({"limit", file, "--element", element, "--standard", "IEC 62353", "--high", high});
    EXPECT_EQ(set.status, 0) << set.error;
  }

  /// Limits that every reading of a sound piece of equipment holds.
  void SetWideLimits(const std::string& file, const Words& elements) const {
    for (const auto& element : elements) SetLimit(file, element, "100000");
  }

  nlohmann::json Show(const std::string& file) const {
    const auto shown = Bench({"show", file, "--json"});
    EXPECT_EQ(shown.status, 0) << shown.error;
    return nlohmann::json::parse(shown.out);
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

  /// The text of the command that was sent in that place, from 0; empty when there were fewer.
  static std::string SentIn(const std::string& wireLog, std::size_t place) {
    const auto sent = SentIn(wireLog);
    return place < sent.size() ? sent[place] : "";
  }

  support::TemporaryFolder folder_;
};

}  // namespace cli
