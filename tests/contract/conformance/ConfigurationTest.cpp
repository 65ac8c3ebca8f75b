#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/IDialog.h"
#include "host/report/ReportObject.h"
#include "tests/contract/conformance/Asked.h"

namespace conformance {
namespace {

class Configuration : public KeldPlugInLoaded {
 protected:
  std::shared_ptr<orvik::IConfigData> New() {
    return library_.New<orvik::IConfigData>("orvikKELD.CKELDTestConfiguration");
  }
  /// What the configuration saves, as "options/filter"; "nothing" if it saves none.
  std::string Saved(const orvik::IConfigData& configuration) {
    const auto node = library_.NewNode("Configuration");
    configuration.Save(node);
    const auto data = node->FindChild("PlugInData");
    const auto saved = data ? data->FindChild("KELDConfig") : nullptr;
    return saved ? saved->Attribute("Options") + "/" + saved->Attribute("ValueFilter") : "nothing";
  }
  void Load(orvik::IConfigData& configuration, const std::string& keldConfig) {
    configuration.Load(library_.Parsed("<PlugInData>" + keldConfig + "</PlugInData>"));
  }
};

TEST_F(Configuration, SavesItsDefaults) { EXPECT_EQ(Saved(*New()), "3/No values"); }

TEST_F(Configuration, LoadsWhatItSaved) {
  const auto node = library_.NewNode("Configuration");
  const auto source = New();
  Load(*source, "<KELDConfig Options='20' ValueFilter='Maximum value'/>");
  source->Save(node);
  const auto loaded = New();
  loaded->Load(node);
  EXPECT_EQ(Saved(*loaded), "20/Maximum value");
  source->Save(node);
  EXPECT_EQ(node->ChildCount(), 1) << "a second save must not add a record";
}

TEST_F(Configuration, ClonesIndependently) {
  const auto source = New();
  Load(*source, "<KELDConfig Options='7' ValueFilter='All values'/>");
  const auto copy = source->Clone();
  EXPECT_EQ(Saved(*copy), "7/All values");
  Load(*copy, "<KELDConfig Options='1' ValueFilter='No values'/>");
  EXPECT_EQ(Saved(*source), "7/All values");
}

TEST_F(Configuration, KeepsItsOptionsForAMalformedText) {
  const auto configuration = New();
  Load(*configuration, "<KELDConfig Options='many' ValueFilter='Minimum value'/>");
  EXPECT_EQ(Saved(*configuration), "3/Minimum value");
}

TEST_F(Configuration, RaisesNoErrors) {
  const auto configuration = New();
  EXPECT_NO_THROW(configuration->Load(nullptr));
  EXPECT_NO_THROW(configuration->Save(nullptr));
  EXPECT_NO_THROW(configuration->PrintReport(nullptr));
  EXPECT_NO_THROW(configuration->Load(library_.NewNode("Alien")));
  EXPECT_NO_THROW(Load(*configuration, "<KELDConfig/><KELDConfig Options='' ValueFilter=''/>"));
  EXPECT_TRUE(configuration->HasDialog());
  EXPECT_NO_THROW(EXPECT_TRUE(configuration->CreateDialog()));
}

TEST_F(Configuration, PrintsItsLead) {
  const auto report = std::make_shared<host::report::ReportObject>();
  const auto configuration = New();
  Load(*configuration, "<KELDConfig Options='20' ValueFilter='No values'/>");
  configuration->PrintReport(report);
  EXPECT_FALSE(report->Tables().empty());
}

TEST_F(Configuration, OfACatalogueEntryHasItsTestsDefaults) {
  auto subject = KeldPlugIn();
  subject.catalogue =
      "<TemplateData><TestElement ID='1110'/><TestElement ID='910'/><TestElement ID='1166'/></TemplateData>";
  LoadedLibrary library(subject);
  EXPECT_EQ(Saved(*library.NewTest(1110)->Configuration()), "7/No values");
  EXPECT_EQ(Saved(*library.NewTest(910)->Configuration()), "4099/No values");
  EXPECT_EQ(Saved(*library.NewTest(1166)->Configuration()), "3/No values");
}

}  // namespace
}  // namespace conformance
