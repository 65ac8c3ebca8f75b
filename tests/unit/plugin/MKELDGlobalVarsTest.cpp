#include <gtest/gtest.h>

#include <map>

#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ITestElement.h"
#include "plugin/CKELDPlugin.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MKELDLanguageConstants.h"
#include "tests/support/HostOnly.h"
#include "tests/unit/plugin/Recorders.h"

namespace {

namespace Globals = keld::MKELDGlobalVars;
namespace Classes = orvik::HostClasses;
using orvik::HostError;
using recorders::ErrorOf;

/// Forwards to the real host and counts the objects created.
class CountingHost final : public orvik::IHost {
 public:
  explicit CountingHost(std::shared_ptr<orvik::IHost> host) : host_(std::move(host)) {}
  std::map<std::string, int> created;

 private:
  std::shared_ptr<orvik::IObject> IHost_CreateObject(const std::string& sClassID) override {
    ++created[sClassID];
    return host_->CreateObject(sClassID);
  }
  std::shared_ptr<orvik::platform::IApplication> IHost_Application() const override {
    return host_->Application();
  }

  std::shared_ptr<orvik::IHost> host_;
};

TEST(MKELDGlobalVars, RaiseAnErrorBeforeTheLibraryIsOpened) {
  Globals::Close();
  EXPECT_EQ(ErrorOf([] { Globals::Host(); }), HostError::kEmptyReference);
  EXPECT_EQ(ErrorOf([] { Globals::Application(); }), HostError::kEmptyReference);
  EXPECT_EQ(ErrorOf([] { Globals::LanguageService(); }), HostError::kEmptyReference);
  EXPECT_EQ(ErrorOf([] { Globals::Translated("1::&OK"); }), HostError::kEmptyReference);
}

TEST(MKELDGlobalVars, CreateEachServiceOnFirstUseAndOnce) {
  support::HostOnly bench;
  const auto host = std::make_shared<CountingHost>(bench.SharedHost());
  Globals::Open(host);
  EXPECT_TRUE(host->created.empty());
  EXPECT_EQ(Globals::LanguageService(), Globals::LanguageService());
  EXPECT_EQ(Globals::ErrorLog(), Globals::ErrorLog());
  EXPECT_EQ(Globals::XmlDocument(), Globals::XmlDocument());
  EXPECT_EQ(Globals::RegistryReader(), Globals::RegistryReader());
  EXPECT_EQ(Globals::Persistence(), Globals::Persistence());
  EXPECT_EQ(host->created, (std::map<std::string, int>{{Classes::kLanguageService, 1},
                                                       {Classes::kErrorLog, 1},
                                                       {Classes::kXmlDocument, 1},
                                                       {Classes::kRegistryReader, 1},
                                                       {Classes::kPersistence, 1}}));
  // The plug-in's classes share them.
  keld::plugin::CKELDPlugin::Create()->Initialize(nullptr);
  Globals::Translated("20702::No values");
  EXPECT_EQ(host->created[Classes::kLanguageService], 1);
}

TEST(MKELDGlobalVars, ReleaseEverythingWhenClosed) {
  support::HostOnly bench;
  const std::weak_ptr<orvik::IXmlDocument> document = Globals::XmlDocument();
  const std::weak_ptr<orvik::IRegistryReader> registry = Globals::RegistryReader();
  const auto data = std::make_shared<orvik::IObject>();
  Globals::InstrumentDataSlot() = data;
  Globals::Close();
  EXPECT_TRUE(document.expired());
  EXPECT_TRUE(registry.expired());
  EXPECT_EQ(data.use_count(), 1);
  EXPECT_EQ(Globals::InstrumentDataSlot(), nullptr);
}

TEST(MKELDGlobalVars, AreEmptyBeforeTheirObjectsAreDestroyed) {
  support::HostOnly bench;
  std::int32_t error = 0;
  Globals::InstrumentDataSlot() =
      std::shared_ptr<orvik::IObject>(new orvik::IObject, [&](const orvik::IObject* object) {
        error = ErrorOf([] { Globals::LanguageService(); });
        delete object;
      });
  Globals::Close();
  EXPECT_EQ(error, HostError::kEmptyReference);
}

TEST(MKELDGlobalVars, AreRenewedWhenAnotherHostOpensThem) {
  support::HostOnly first;
  const auto language = Globals::LanguageService();
  support::HostOnly second;
  EXPECT_NE(Globals::LanguageService(), language);
  EXPECT_EQ(&Globals::Host(), second.SharedHost().get());
}

TEST(MKELDGlobalVars, RejectAHostObjectOfTheWrongClass) {
  support::HostOnly bench;
  for (const char* sClassID : {Classes::kLanguageService, "OrvikTypeLib.Unknown"})
    EXPECT_EQ(ErrorOf([&] { Globals::CreateHostObject<orvik::ITestElement>(sClassID); }),
              HostError::kClassNotRegistered);
}

TEST(MKELDGlobalVars, TranslateATextAndInsertItsValues) {
  support::HostOnly bench;
  EXPECT_EQ(Globals::Translated("29999::Some new text"), "Some new text") << "unknown to the service";
  EXPECT_EQ(Globals::Translated(keld::MKELDLanguageConstants::kPlugInName), "KELD Safety Tester");
  EXPECT_EQ(
      Globals::Translated(keld::MKELDLanguageConstants::kTestNotSupported, {"Earth leakage", "NC"}),
      "The connected KELD does not support the test  Earth leakage NC. The test will be recorded as Not "
      "Applicable.");
}

}  // namespace
