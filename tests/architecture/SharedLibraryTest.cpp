#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>

#include "tests/architecture/SourceTree.h"
#include "tests/support/Process.h"
#include "tests/support/TemporaryFolder.h"

namespace house {
namespace {

using testing::UnorderedElementsAre;

TEST(SharedLibrary, ExportsItsEntryPointsOnly) {
  const auto symbols =
      support::RunWell("/usr/bin/nm", {"--dynamic", "--defined-only", "--format=just-symbols", PLUGIN_PATH});
  EXPECT_THAT(Lines(symbols.out),
              UnorderedElementsAre("OrvikCloseLibrary", "OrvikContractVersion", "OrvikOpenLibrary"));
}

TEST(SharedLibrary, NeedsTheStandardLibraryOnly) {
  const auto dynamic = support::RunWell("/usr/bin/readelf", {"--dynamic", "--wide", PLUGIN_PATH}).out;
  const std::regex needed("\\(NEEDED\\).*\\[(.*)\\]");
  std::string allowed = "(libc|libm|libstdc\\+\\+|libgcc_s|ld-linux";
#ifdef __SANITIZE_ADDRESS__
  allowed += "|libasan|libubsan";
#endif
  int count = 0;
  for (std::sregex_iterator found(dynamic.begin(), dynamic.end(), needed), end; found != end;
       ++found, ++count)
    EXPECT_TRUE(std::regex_match((*found)[1].str(), std::regex(allowed + ")[-.].*"))) << (*found)[1];
  EXPECT_GT(count, 0);
}

// A build for finding faults is larger.
#if defined(NDEBUG) && !defined(__SANITIZE_ADDRESS__)
TEST(SharedLibrary, IsSmall) {
  const support::TemporaryFolder folder;
  const auto stripped = folder.Path("stripped.so");
  support::RunWell("/usr/bin/strip", {"-o", stripped, PLUGIN_PATH});
  EXPECT_LE(std::filesystem::file_size(stripped), 1'500'000U);
}
#endif

}  // namespace
}  // namespace house
