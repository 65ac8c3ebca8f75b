#include <gtest/gtest.h>

#include "OrvikTypeLib/IClassLibrary.h"
#include "OrvikTypeLib/Library.h"
#include "tests/support/HostOnly.h"

extern "C" {
orvik::ContractVersionEntry OrvikContractVersion;
orvik::OpenLibraryEntry OrvikOpenLibrary;
orvik::CloseLibraryEntry OrvikCloseLibrary;
}

namespace {

TEST(EntryPoints, ReportTheContractVersion) { EXPECT_EQ(OrvikContractVersion(), orvik::kContractVersion); }

TEST(EntryPoints, OpenTheLibraryAndReleaseTheHostOnClose) {
  support::HostOnly bench;
  keld::MKELDGlobalVars::Close();
  const auto holders = bench.SharedHost().use_count();
  std::shared_ptr<orvik::IClassLibrary> library;
  OrvikOpenLibrary(bench.SharedHost(), library);
  ASSERT_TRUE(library);
  EXPECT_EQ(&keld::MKELDGlobalVars::Host(), bench.SharedHost().get());
  EXPECT_GT(bench.SharedHost().use_count(), holders);
  EXPECT_TRUE(library->CreateObject("orvikKELD.CKELDPlugin"));
  library.reset();
  OrvikCloseLibrary();
  EXPECT_EQ(bench.SharedHost().use_count(), holders);
  EXPECT_THROW(keld::MKELDGlobalVars::Host(), orvik::HostError);
  OrvikCloseLibrary();
}

TEST(EntryPoints, ReturnNoLibraryWithoutAHost) {
  std::shared_ptr<orvik::IClassLibrary> library = std::make_shared<keld::plugin::ClassLibrary>();
  OrvikOpenLibrary(nullptr, library);
  EXPECT_FALSE(library);
}

}  // namespace
