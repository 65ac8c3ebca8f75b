#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "host/document/Document.h"
#include "host/document/Host.h"
#include "host/document/PlugInLibrary.h"
#include "host/elements/ElementFactory.h"
#include "tests/support/Errors.h"
#include "tests/support/TemporaryFolder.h"

namespace host {
namespace {

std::string ShippedCatalogue() {
  std::ostringstream text;
  text << std::ifstream(CATALOGUE_PATH).rdbuf();
  return text.str();
}

/// The plug-in as it is loaded in production, on a host without windows.
class PlugInLibraryTest : public ::testing::Test {
 protected:
  PlugInLibraryTest()
      : host_(document::Host::Create({folder_.Path(), "", ShippedCatalogue(), {}}, nullptr)) {}
  ~PlugInLibraryTest() override { host_->Close(); }

  static std::string UnitOf(const std::shared_ptr<orvik::ITestElement>& element) {
    return element->Limits()->CreateStandard("unit", "")->Limit(1)->Unit();
  }

  support::TemporaryFolder folder_;
  std::shared_ptr<document::Host> host_;
};

TEST_F(PlugInLibraryTest, OpensAndIsInitialised) {
  const auto plugIn = host_->OpenPlugIn(PLUGIN_PATH);
  EXPECT_EQ(plugIn->ID(), "KELD(IN)");
  EXPECT_EQ(plugIn->Flags(), 1);
  EXPECT_GT(plugIn->Tests()->Count(), 0);
  EXPECT_EQ(host_->Elements()->PlugIn("KELD(IN)"), plugIn);
  EXPECT_NE(host_->CreateObject("orvikkeld.ckeldresultdata"), nullptr);
}

TEST_F(PlugInLibraryTest, CanBeClosedAndOpenedAgain) {
  for (int i = 0; i < 3; ++i) {
    EXPECT_NE(host_->OpenPlugIn(PLUGIN_PATH)->CreateTest(410), nullptr);
    host_->Close();
  }
}

TEST_F(PlugInLibraryTest, ObjectsMayOutliveTheOpenLibrary) {
  auto element = host_->OpenPlugIn(PLUGIN_PATH)->CreateTest(100);
  host_->Close();
  element.reset();
}

TEST_F(PlugInLibraryTest, ItsWholeCatalogueReadsBackFromADocument) {
  host_->OpenPlugIn(PLUGIN_PATH);
  const auto document = document::Document::Create(host_, folder_.Path() / "a.orvik");
  const auto all = document->AddTest(100);
  const auto text = document->Text();
  document->Save();
  const auto again =
      document::Document::Open(host_, folder_.Path() / "a.orvik", document::DocumentFile::Use::kRead);
  EXPECT_EQ(again->Text(), text);
  EXPECT_GT(again->Elements()->FindElement(10)->ID(), 0);
}

TEST_F(PlugInLibraryTest, LoadedElementsHaveTheUnitsOfTheCatalogue) {
  host_->OpenPlugIn(PLUGIN_PATH);
  const auto document = document::Document::Create(host_, folder_.Path() / "a.orvik");
  const auto single = document->AddTest(410);
  const auto group = document->AddTest(400);
  document->Save();
  const auto again =
      document::Document::Open(host_, folder_.Path() / "a.orvik", document::DocumentFile::Use::kRead);
  for (const auto id : {single->ID(), group->ID(), group->ID() + 1})
    EXPECT_EQ(UnitOf(again->Find(id)), "mOhm") << "element " << id;
}

TEST_F(PlugInLibraryTest, DocumentWithoutThePlugInLosesNothing) {
  std::string text;
  {
    host_->OpenPlugIn(PLUGIN_PATH);
    const auto document = document::Document::Create(host_, folder_.Path() / "a.orvik");
    UnitOf(document->AddTest(400));
    document->Save();
    text = document->Text();
  }
  const auto other = document::Host::Create({folder_.Path(), "", {}, {}}, nullptr);
  EXPECT_EQ(
      document::Document::Open(other, folder_.Path() / "a.orvik", document::DocumentFile::Use::kRead)->Text(),
      text);
}

}  // namespace
}  // namespace host
