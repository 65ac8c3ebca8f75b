#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/ITestElement.h"
#include "plugin/CKELDPlugin.h"
#include "plugin/MKELDGlobalVars.h"
#include "plugin/MKELDLanguageConstants.h"
#include "tests/support/HostOnly.h"

namespace {

namespace Globals = keld::MKELDGlobalVars;

/// Passes everything on to the real host and counts what is created.
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

std::int32_t ErrorOf(const std::function<void()>& step) {
  try {
    step();
  } catch (const orvik::HostError& error) {
    return error.Number();
  }
  return 0;
}

TEST(MKELDGlobalVars, RefuseToWorkBeforeTheLibraryIsOpened) {
  Globals::Close();
  EXPECT_EQ(ErrorOf([] { Globals::Host(); }), orvik::HostError::kEmptyReference);
  EXPECT_EQ(ErrorOf([] { Globals::Application(); }), orvik::HostError::kEmptyReference);
  EXPECT_EQ(ErrorOf([] { Globals::LanguageService(); }), orvik::HostError::kEmptyReference);
  EXPECT_EQ(ErrorOf([] { Globals::Translated("1::&OK"); }), orvik::HostError::kEmptyReference);
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
  const std::map<std::string, int> once = {{orvik::HostClasses::kLanguageService, 1},
                                           {orvik::HostClasses::kErrorLog, 1},
                                           {orvik::HostClasses::kXmlDocument, 1},
                                           {orvik::HostClasses::kRegistryReader, 1},
                                           {orvik::HostClasses::kPersistence, 1}};
  EXPECT_EQ(host->created, once);
}

TEST(MKELDGlobalVars, ShareOneLanguageServiceAmongClasses) {
  support::HostOnly bench;
  const auto host = std::make_shared<CountingHost>(bench.SharedHost());
  Globals::Open(host);
  const auto plugin = keld::CKELDPlugin::Create();
  plugin->Initialize(nullptr);
  Globals::Translated("20702::No values");
  plugin->Initialize(nullptr);
  EXPECT_EQ(host->created[orvik::HostClasses::kLanguageService], 1);
}

TEST(MKELDGlobalVars, LetGoOfEverythingWhenClosed) {
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

/// An object that asks for a service on its way out.
class LateCaller final : public virtual orvik::IObject {
 public:
  explicit LateCaller(std::int32_t& error) : error_(error) {}
  ~LateCaller() override {
    error_ = ErrorOf([] { Globals::LanguageService(); });
  }

 private:
  std::int32_t& error_;
};

TEST(MKELDGlobalVars, AreEmptyForWhoeverAsksWhileTheyAreClosed) {
  support::HostOnly bench;
  std::int32_t error = 0;
  Globals::InstrumentDataSlot() = std::make_shared<LateCaller>(error);
  Globals::Close();
  EXPECT_EQ(error, orvik::HostError::kEmptyReference);
}

TEST(MKELDGlobalVars, StartAfreshWhenOpenedByAnotherHost) {
  support::HostOnly first;
  const auto language = Globals::LanguageService();
  support::HostOnly second;
  EXPECT_NE(Globals::LanguageService(), language);
  EXPECT_EQ(&Globals::Host(), second.SharedHost().get());
}

TEST(MKELDGlobalVars, RefuseAHostObjectOfAnotherKindOrAnUnknownClass) {
  support::HostOnly bench;
  EXPECT_EQ(
      ErrorOf([] { Globals::CreateHostObject<orvik::ITestElement>(orvik::HostClasses::kLanguageService); }),
      orvik::HostError::kClassNotRegistered);
  EXPECT_EQ(ErrorOf([] { Globals::CreateHostObject<orvik::ITestElement>("OrvikTypeLib.Unknown"); }),
            orvik::HostError::kClassNotRegistered);
}

TEST(MKELDGlobalVars, ShowTheEnglishTextOfANumberThatTheServiceDoesNotKnow) {
  support::HostOnly bench;
  EXPECT_EQ(Globals::Translated("29999::Some new text"), "Some new text");
  EXPECT_EQ(Globals::Translated(keld::MKELDLanguageConstants::kPlugInName), "KELD Safety Tester");
}

TEST(MKELDGlobalVars, PutBothValuesInTheirPlacesAndKeepTheDoubleBlank) {
  support::HostOnly bench;
  EXPECT_EQ(
      Globals::Translated(keld::MKELDLanguageConstants::kTestNotSupported, {"Earth leakage", "NC"}),
      "The connected KELD does not support the test  Earth leakage NC. The test will be recorded as Not "
      "Applicable.");
}

}  // namespace
