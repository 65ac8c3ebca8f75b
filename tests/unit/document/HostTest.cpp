#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IErrorLog.h"
#include "OrvikTypeLib/ILanguageService.h"
#include "OrvikTypeLib/IPersistence.h"
#include "OrvikTypeLib/IRegistryReader.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "host/base/RegistryStore.h"
#include "host/document/Host.h"
#include "host/elements/InformationRecord.h"
#include "tests/support/Errors.h"
#include "tests/support/HostFixture.h"

namespace host {
namespace {

using orvik::HostError;
using support::ErrorNumber;
using support::ErrorText;
using support::Holds;
namespace classes = orvik::HostClasses;

class HostTest : public support::HostFixture {};

TEST_F(HostTest, CreatesClassesIgnoringCase) {
  for (const auto* id :
       {classes::kTestElement, classes::kTestContainer, classes::kStandardColl, classes::kStandard,
        classes::kLimit, classes::kServiceRecord, classes::kInstrumentRecord, classes::kLanguageService,
        classes::kErrorLog, classes::kXmlDocument, classes::kRegistryReader, classes::kPersistence})
    EXPECT_NE(host_->CreateObject(id), nullptr) << id;
  EXPECT_NE(host_->CreateObject("ORVIKTYPELIB.testelement"), nullptr);
}

TEST_F(HostTest, ObjectsHaveTheInterfacesOfTheirClass) {
  EXPECT_NE(Make<orvik::IBaseElement>(classes::kTestElement), nullptr);
  EXPECT_EQ(Make<orvik::ITestContainer>(classes::kTestElement), nullptr);
  EXPECT_NE(Make<orvik::IBaseElement>(classes::kTestContainer), nullptr);
  EXPECT_NE(Make<orvik::ITestContainer>(classes::kTestContainer), nullptr);
  EXPECT_NE(Make<orvik::IErrorLog>(classes::kErrorLog), nullptr);
  EXPECT_NE(Make<orvik::ILanguageService>(classes::kLanguageService), nullptr);
  EXPECT_NE(Make<orvik::IPersistence>(classes::kPersistence), nullptr);
}

TEST_F(HostTest, DocumentsAndReadersAreNewEachTime) {
  EXPECT_NE(host_->CreateObject(classes::kXmlDocument), host_->CreateObject(classes::kXmlDocument));
  EXPECT_NE(host_->CreateObject(classes::kRegistryReader), host_->CreateObject(classes::kRegistryReader));
}

TEST_F(HostTest, UnknownClassIsNamed) {
  const auto text = support::ErrorText([&] { host_->CreateObject("nobody.Knows"); });
  EXPECT_TRUE(support::Holds(text, "\"nobody.Knows\" is not registered"));
  EXPECT_EQ(support::ErrorNumber([&] { host_->CreateObject(""); }), HostError::kClassNotRegistered);
}

TEST_F(HostTest, RegisteredClassIsCreatedAndCanBeReplaced) {
  const auto first = host_->CreateObject(classes::kLimit);
  host_->Register("a.B", [&] { return first; });
  EXPECT_EQ(host_->CreateObject("A.b"), first);
  host_->Register("A.B", [] { return nullptr; });
  EXPECT_EQ(host_->CreateObject("a.B"), nullptr);
}

TEST_F(HostTest, ClassesOfLibrariesAreCreatedToo) {
  EXPECT_NE(Make<orvik::IResultData>(sample::kResult), nullptr);
  EXPECT_NE(Make<orvik::ITestElement>(sample::kSequence), nullptr);
}

TEST_F(HostTest, GivenCatalogueReplacesTheRegistrys) {
  const auto other = document::Host::Create({folder_.Path(), "", "<TemplateData/>", {}}, nullptr);
  const auto reader = orvik::As<orvik::IRegistryReader>(other->CreateObject(classes::kRegistryReader));
  constexpr auto kHive = static_cast<std::int32_t>(0x80000002U);
  ASSERT_TRUE(reader->OpenKey(kHive, "Software\\Telvane\\orvik\\KELD(IN)"));
  EXPECT_EQ(reader->ReadValue("Configuration"), orvik::Variant("<TemplateData/>"));
  EXPECT_FALSE(std::filesystem::exists(folder_.Path() / "registry.json"));
  const auto plain = Make<orvik::IRegistryReader>(classes::kRegistryReader);
  EXPECT_FALSE(plain->OpenKey(kHive, "Software\\Telvane\\orvik\\KELD(IN)"));
}

TEST_F(HostTest, UsesTheLanguageOfTheSettings) {
  folder_.Write("KELD.da.po", "msgctxt \"1\"\nmsgid \"x\"\nmsgstr \"dansk\"\n");
  const auto danish = document::Host::Create({folder_.Path(), "da", {}, {folder_.Path()}}, nullptr);
  const auto service = orvik::As<orvik::ILanguageService>(danish->CreateObject(classes::kLanguageService));
  EXPECT_EQ(service->Translate("1::english", "KELD", {}), "dansk");
  EXPECT_EQ(Make<orvik::ILanguageService>(classes::kLanguageService)->Translate("1::english", "KELD", {}),
            "english");
}

TEST_F(HostTest, ClosedHostHasNoPlugIns) {
  EXPECT_NE(host_->Elements()->PlugIn(sample::kPlugInId), nullptr);
  host_->Close();
  EXPECT_EQ(host_->Elements()->PlugIn(sample::kPlugInId), nullptr);
  EXPECT_EQ(support::ErrorNumber([&] { host_->CreateObject(sample::kResult); }),
            HostError::kClassNotRegistered);
}

TEST_F(HostTest, IsReleasedWithItsLastReference) {
  const std::weak_ptr<document::Host> weak = host_;
  const auto element = Element(1);
  host_->Close();
  host_.reset();
  EXPECT_TRUE(weak.expired()) << "no element and no service holds the host";
  host_ = document::Host::Create({folder_.Path(), "", {}, {}}, nullptr);
}

TEST_F(HostTest, BaseElementIsFoundBehindItsOuterOne) {
  auto element = Element(1);
  const auto base = host_->Elements()->BaseOf(element);
  ASSERT_NE(base, nullptr);
  EXPECT_EQ(orvik::As<sample::ISampleTest>(element)->BaseElement, base);
  EXPECT_EQ(host_->Elements()->BaseOf(base), base);
  EXPECT_EQ(host_->Elements()->BaseOf(nullptr), nullptr);
  const auto copy = element->Clone();
  EXPECT_NE(host_->Elements()->BaseOf(copy), base);
  EXPECT_EQ(orvik::As<sample::ISampleTest>(copy)->BaseElement, host_->Elements()->BaseOf(copy));
}

TEST_F(HostTest, BaseElementIsFoundWithAnyOuterTexts) {
  const auto element = Element(1);
  const auto other = Element(2);
  const auto sample = orvik::As<sample::ISampleTest>(element);
  const auto base = sample->BaseElement;
  sample->OtherTexts = other->Information();
  EXPECT_EQ(host_->Elements()->BaseOf(element), base);
  sample->OtherTexts = std::make_shared<elements::InformationRecord>();
  EXPECT_EQ(host_->Elements()->BaseOf(element), base);
  sample->fRefusesTexts = true;
  EXPECT_EQ(host_->Elements()->BaseOf(element), base);
  EXPECT_NE(host_->Elements()->BaseOf(other), base);

  base->Terminate();
  EXPECT_EQ(host_->Elements()->BaseOf(element), nullptr);
  sample->fRefusesTexts = false;
  sample->OtherTexts = nullptr;
  EXPECT_EQ(host_->Elements()->BaseOf(element), nullptr) << "no longer inside, though its texts are shown";
  base->SetOuter(other);
  EXPECT_EQ(host_->Elements()->BaseOf(element), nullptr);
}

TEST_F(HostTest, TextsDoNotKeepTheElementAlive) {
  auto element = Element(1);
  const std::weak_ptr<orvik::ITestElement> weak = element;
  const std::weak_ptr<orvik::IBaseElement> base = orvik::As<sample::ISampleTest>(element)->BaseElement;
  const auto texts = element->Information();
  texts->SetDisplayName("kept");
  element.reset();
  EXPECT_TRUE(weak.expired() && base.expired());
  EXPECT_EQ(texts->DisplayName(), "kept");

  const auto other = Element(2);
  orvik::As<sample::ISampleTest>(other)->OtherTexts = texts;
  EXPECT_EQ(host_->Elements()->BaseOf(other), orvik::As<sample::ISampleTest>(other)->BaseElement);
}

TEST_F(HostTest, BaseElementsOfManyAreFoundWhileSomeAreReleased) {
  std::vector<std::shared_ptr<orvik::ITestElement>> elements;
  for (std::int32_t id = 1; id <= 9; ++id) elements.push_back(Element(id));
  for (const auto& element : elements) orvik::As<sample::ISampleTest>(element)->fRefusesTexts = true;
  for (const std::size_t released : {8, 0, 4, 5, 1}) {
    elements[released].reset();
    for (const auto& element : elements) {
      if (!element) continue;
      EXPECT_EQ(host_->Elements()->BaseOf(element), orvik::As<sample::ISampleTest>(element)->BaseElement);
    }
  }
}

TEST_F(HostTest, RejectsFilesThatAreNotPlugInsByName) {
  const std::filesystem::path text = folder_.Write("notes.so", "just text");
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { host_->OpenPlugIn(text); }),
                             "notes.so cannot be used as a plug-in"));
  EXPECT_TRUE(support::Holds(support::ErrorText([&] { host_->OpenPlugIn("/nowhere/x.so"); }),
                             "there is no such file"));
  EXPECT_TRUE(
      support::Holds(support::ErrorText([&] { host_->OpenPlugIn("/lib/x86_64-linux-gnu/libm.so.6"); }),
                     "OrvikContractVersion"));
}

}  // namespace
}  // namespace host
