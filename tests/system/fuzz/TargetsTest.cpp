#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/support/ReadFile.h"
#include "tests/support/Seed.h"
#include "tests/system/fuzz/Mutator.h"
#include "tests/system/fuzz/Targets.h"

namespace fuzz {
namespace {

/// The input as it can be read in a message, its beginning at least.
std::string Shown(const std::string& input) {
  constexpr std::size_t kMost = 2000;
  std::ostringstream shown;
  for (const char c : input.substr(0, kMost)) {
    if (c >= ' ' && c <= '~' && c != '\\')
      shown << c;
    else
      shown << "\\x" << std::hex << (static_cast<unsigned char>(c) >> 4)
            << (static_cast<unsigned char>(c) & 15);
  }
  if (input.size() > kMost) shown << "... (" << std::dec << input.size() << " bytes)";
  return shown.str();
}

/// What the target has against the input; empty when every promise was kept.
std::string FaultOf(const Target& target, const std::string& input) {
  try {
    target.function(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
    return {};
  } catch (const std::exception& broken) {
    return broken.what();
  }
}

/// Keeps an input that broke a promise, so that it can go into the corpus: says where.
std::string Kept(const std::string& target, const std::string& input) {
  const auto file = testing::TempDir() + "broken-" + target + ".input";
  std::ofstream(file, std::ios::binary) << input;
  return "; all of it is in " + file;
}

class TargetTest : public testing::TestWithParam<std::string> {};

TEST_P(TargetTest, HoldsForCorpusAndMutations) {
  const auto target = LoadTarget(GetParam());
  ASSERT_TRUE(target.function);
  ASSERT_GE(target.corpus.size(), 5U);
  for (const auto& input : target.corpus) ASSERT_EQ(FaultOf(target, input), "") << Shown(input);
  Mutator mutator(target.corpus, target.dictionary, support::Seed());
  for (int round = 0; round < target.rounds; ++round) {
    const auto input = mutator.Next();
    ASSERT_EQ(FaultOf(target, input), "")
        << "round " << round << ": " << Shown(input) << Kept(GetParam(), input);
  }
}

std::string TestName(const testing::TestParamInfo<std::string>& target) {
  auto name = target.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(All, TargetTest, testing::ValuesIn(TargetNames()), TestName);

TEST(Targets, IncludeEveryEntryPoint) {
  std::size_t entries = 0;
  for (const auto& file : std::filesystem::directory_iterator(SOURCE_PATH "/fuzz")) {
    if (file.path().extension() != ".cpp") continue;
    if (support::ReadFile(file.path()).find("LLVMFuzzerTestOneInput") != std::string::npos) ++entries;
  }
  EXPECT_EQ(TargetNames().size(), entries);
}

TEST(Mutator, DependsOnTheSeedOnly) {
  const auto inputs = [](unsigned seed) {
    Mutator mutator({"one", "", std::string(3000, 'x')}, {"word"}, seed);
    std::vector<std::string> made;
    for (int i = 0; i < 200; ++i) made.push_back(mutator.Next());
    return made;
  };
  EXPECT_EQ(inputs(7), inputs(7));
  EXPECT_NE(inputs(7), inputs(8));
  for (const auto& input : inputs(7)) EXPECT_LE(input.size(), Mutator::kLargest);
}

}  // namespace
}  // namespace fuzz
