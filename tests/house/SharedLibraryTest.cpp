#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <string_view>

#include "tests/house/ElfFile.h"

namespace house {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

bool IsAllowedLibrary(std::string_view name) {
  for (const std::string_view allowed : {"libc.so", "libm.so", "libstdc++.so", "libgcc_s.so", "ld-linux"})
    if (name.starts_with(allowed)) return true;
#ifdef __SANITIZE_ADDRESS__
  for (const std::string_view sanitizer : {"libasan.so", "libubsan.so"})
    if (name.starts_with(sanitizer)) return true;
#endif
  return false;
}

TEST(SharedLibrary, ExportsItsEntryPointsAndNothingElse) {
  EXPECT_THAT(ElfFile::Read(PLUGIN_PATH).ExportedSymbols(),
              ElementsAre("OrvikCloseLibrary", "OrvikContractVersion", "OrvikOpenLibrary"));
}

TEST(SharedLibrary, NeedsTheStandardLibraryAlone) {
  const auto library = ElfFile::Read(PLUGIN_PATH);
  for (const std::string& name : library.NeededLibraries()) EXPECT_TRUE(IsAllowedLibrary(name)) << name;
}

// A build for finding faults is larger.
#if defined(NDEBUG) && !defined(__SANITIZE_ADDRESS__)
TEST(SharedLibrary, IsAtMostOneAndAHalfMegabytesWhenStripped) {
  EXPECT_LE(ElfFile::Read(PLUGIN_PATH).StrippedSize(), 1'500'000U);
}
#endif

// The reader itself, on files that are known to have more.
TEST(ElfFile, SeesThatAProgramNeedsTheStandardLibrary) {
  EXPECT_THAT(ElfFile::Read(KELD_SIM_PATH).NeededLibraries(), Contains(HasSubstr("libstdc++")));
}

TEST(ElfFile, CountsAFileThatIsNotStrippedAsSmallerThanItIs) {
  const auto file = ElfFile::Read(KELD_SIM_PATH);
  EXPECT_LT(file.StrippedSize(), std::filesystem::file_size(KELD_SIM_PATH));
  EXPECT_GT(file.StrippedSize(), 0U);
}

TEST(ElfFile, RefusesWhatIsNoElfFile) {
  try {
    ElfFile::Read(CATALOGUE_PATH);
    FAIL() << "a catalogue was taken for a library";
  } catch (const std::exception& error) {
    EXPECT_THAT(error.what(), HasSubstr("catalogue.xml"));
    EXPECT_THAT(error.what(), HasSubstr("no 64-bit ELF file"));
  }
}

}  // namespace
}  // namespace house
