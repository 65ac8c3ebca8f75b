#include <dlfcn.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <limits>
#include <set>
#include <sstream>

#include "OrvikTypeLib/Library.h"
#include "tests/contract/conformance/Asked.h"
#include "tests/support/Process.h"

namespace conformance {
namespace {

class ClassLibrary : public EveryPlugIn {};
FOR_EVERY_PLUG_IN(ClassLibrary);

TEST_P(ClassLibrary, NamesEachClassOnceWithItsPurpose) {
  auto& classes = library_.Classes();
  ASSERT_GT(classes.Count(), 0);
  std::set<std::string> seen;
  for (std::int32_t index = 1; index <= classes.Count(); ++index) {
    const auto id = classes.ClassIdentifier(index);
    EXPECT_NE(id.find('.'), std::string::npos) << id << " has no prefix of its own";
    EXPECT_TRUE(seen.insert(id).second) << id << " occurs twice in the table";
    EXPECT_FALSE(classes.Purpose(index).empty()) << id;
  }
}

TEST_P(ClassLibrary, RefusesIndexesOutside) {
  auto& classes = library_.Classes();
  for (const auto index : {0, -1, classes.Count() + 1, std::numeric_limits<std::int32_t>::max(),
                           std::numeric_limits<std::int32_t>::min()}) {
    EXPECT_EQ(ErrorNumberOf([&] { classes.ClassIdentifier(index); }), orvik::HostError::kSubscriptOutOfRange);
    EXPECT_EQ(ErrorNumberOf([&] { classes.Purpose(index); }), orvik::HostError::kSubscriptOutOfRange);
  }
}

TEST_P(ClassLibrary, CreatesEveryClassInAnyCase) {
  auto& classes = library_.Classes();
  for (std::int32_t index = 1; index <= classes.Count(); ++index) {
    auto id = classes.ClassIdentifier(index);
    const auto object = classes.CreateObject(id);
    ASSERT_TRUE(object) << id;
    EXPECT_EQ(object->ClassID(), id);
    EXPECT_NE(classes.CreateObject(id), object) << id << " is created once only";
    std::transform(id.begin(), id.end(), id.begin(), [](unsigned char c) { return std::toupper(c); });
    EXPECT_TRUE(classes.CreateObject(id)) << id;
  }
}

TEST_P(ClassLibrary, CreatesNothingForUnknownIdentifiers) {
  for (const std::string id : {"", ".", "orvikKELD", "orvikKELD.", "orvikKELD.CKELDPlugi",
                               "OrvikTypeLib.TestElement", "\xFF\xFE", "a\nb"}) {
    EXPECT_FALSE(library_.Classes().CreateObject(id)) << id;
  }
  EXPECT_FALSE(library_.Classes().CreateObject(std::string(1'000'000, 'x')));
  EXPECT_FALSE(library_.Classes().CreateObject(library_.PlugInClass() + std::string(1, '\0')));
}

TEST_P(ClassLibrary, HasOnePlugInObject) {
  int plugIns = 0;
  auto& classes = library_.Classes();
  for (std::int32_t index = 1; index <= classes.Count(); ++index) {
    if (orvik::As<orvik::IPlugIn>(classes.CreateObject(classes.ClassIdentifier(index)))) ++plugIns;
  }
  EXPECT_EQ(plugIns, 1);
  EXPECT_TRUE(orvik::As<orvik::IPlugIn>(classes.CreateObject(library_.PlugInClass())));
}

/// The names that a shared library defines for others.
std::set<std::string> ExportedNames(const std::string& path) {
  std::istringstream lines(
      support::Run("/usr/bin/nm", {"--dynamic", "--defined-only", "--format=just-symbols", path}).out);
  std::set<std::string> names;
  for (std::string name; std::getline(lines, name);) names.insert(name);
  return names;
}

class EntryPoints : public testing::TestWithParam<Subject> {
 protected:
  EntryPoints() : handle_(dlopen(GetParam().path.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE)) {}

  template <class Entry>
  Entry* Find(const char* name) const {
    return handle_ ? reinterpret_cast<Entry*>(dlsym(handle_, name)) : nullptr;
  }

  void* handle_;
};
FOR_EVERY_PLUG_IN(EntryPoints);

TEST_P(EntryPoints, AreTheOnlyExports) {
  EXPECT_EQ(ExportedNames(GetParam().path),
            (std::set<std::string>{orvik::kContractVersionEntry, orvik::kOpenLibraryEntry,
                                   orvik::kCloseLibraryEntry}));
}

TEST_P(EntryPoints, ReturnTheContractVersion) {
  const auto version = Find<orvik::ContractVersionEntry>(orvik::kContractVersionEntry);
  ASSERT_TRUE(version);
  EXPECT_EQ(version(), orvik::kContractVersion);
}

TEST_P(EntryPoints, OpenNothingWithoutAHost) {
  const auto open = Find<orvik::OpenLibraryEntry>(orvik::kOpenLibraryEntry);
  ASSERT_TRUE(open);
  std::shared_ptr<orvik::IClassLibrary> classes;
  EXPECT_NO_THROW(open(nullptr, classes));
  EXPECT_FALSE(classes);
}

TEST_P(EntryPoints, CloseMoreThanOnce) {
  const auto close = Find<orvik::CloseLibraryEntry>(orvik::kCloseLibraryEntry);
  ASSERT_TRUE(close);
  EXPECT_NO_THROW(close());
  EXPECT_NO_THROW(close());
}

TEST_P(EntryPoints, ReleaseTheHostOnClose) {
  std::weak_ptr<toolkit::headless::Application> watched;
  {
    const support::TemporaryFolder folder;
    const auto application =
        std::make_shared<toolkit::headless::Application>(toolkit::loop::ClockKind::kVirtual);
    watched = application;
    const auto host =
        host::document::Host::Create({folder.Path(), {}, GetParam().catalogue, {}}, application);
    ASSERT_TRUE(host->OpenPlugIn(GetParam().path));
    host->Close();
  }
  EXPECT_TRUE(watched.expired());
}

TEST_P(EntryPoints, OpenAgainAfterClosing) {
  for (int round = 0; round < 3; ++round) {
    LoadedLibrary library(GetParam());
    EXPECT_EQ(library.PlugIn()->ID(), GetParam().plugInId);
    EXPECT_TRUE(library.NewTest());
  }
}

/// The library whose objects outlive it: what the host did wrong must not take the process down.
TEST_P(EntryPoints, LeaveObjectsHarmlessAfterClosing) {
  std::shared_ptr<orvik::ITestElement> element;
  std::shared_ptr<orvik::IPlugIn> plugIn;
  {
    LoadedLibrary library(GetParam());
    element = library.NewTest();
    plugIn = library.PlugIn();
  }
  element.reset();
  plugIn.reset();
}

}  // namespace
}  // namespace conformance
