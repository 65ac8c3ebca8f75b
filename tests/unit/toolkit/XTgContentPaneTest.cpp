#include "OrvikTypeLib/ITestElement.h"
#include "OrvikTypeLib/ITgContentPane.h"
#include "OrvikTypeLib/ITgProgressBar.h"
#include "tests/unit/toolkit/ControlTest.h"
#include "toolkit/headless/Tabs.h"

namespace toolkit::headless {
namespace {

namespace classes = orvik::HostClasses;

class XTgContentPaneTest : public ControlTest {
 protected:
  std::shared_ptr<orvik::ITgContentPane> pane = Place<orvik::ITgContentPane>(classes::kContentPane);
};

TEST_F(XTgContentPaneTest, ShowsGuidance) {
  const auto label = Inner<platform::ILabel>("lblGuidance");
  EXPECT_FALSE(label->Visible());
  pane->SetGuidance("Connect the clip.");
  EXPECT_EQ(pane->Guidance(), "Connect the clip.");
  EXPECT_EQ(label->Caption(), "Connect the clip.");
  EXPECT_TRUE(label->Visible());
}

TEST_F(XTgContentPaneTest, CreatesTheControlOfATab) {
  const std::vector<std::byte> picture(4, std::byte{9});
  const auto object = pane->AddTab("tab:MtiData", "MTI Data", picture, classes::kProgressBar);
  EXPECT_TRUE(orvik::As<orvik::ITgProgressBar>(object));
  EXPECT_EQ(pane->Tab("tab:MtiData"), object);
  const auto tabs = Inner<Tabs>("tabPages");
  EXPECT_TRUE(tabs->Visible());
  EXPECT_EQ(tabs->Keys(), (std::vector<std::string>{"tab:MtiData"}));
  EXPECT_EQ(tabs->PageCaption("tab:MtiData"), "MTI Data");
  EXPECT_EQ(tabs->PageBitmap("tab:MtiData"), picture);
  EXPECT_TRUE(tabs->Page("tab:MtiData")->Find("tab:MtiData"));
}

TEST_F(XTgContentPaneTest, ReturnsEmptyForAnUnknownTab) { EXPECT_FALSE(pane->Tab("tab:None")); }

TEST_F(XTgContentPaneTest, RejectsADuplicateKey) {
  pane->AddTab("a", "A", {}, classes::kProgressBar);
  ExpectHostError(5, "\"a\"", [&] { pane->AddTab("a", "A", {}, classes::kProgressBar); });
}

TEST_F(XTgContentPaneTest, FillsATabWhoseControlFailedLater) {
  ExpectHostError(429, "orvikKELD.Unknown", [&] { pane->AddTab("a", "A", {}, "orvikKELD.Unknown"); });
  EXPECT_FALSE(pane->Tab("a"));
  EXPECT_TRUE(pane->AddTab("a", "A", {}, classes::kProgressBar));
}

TEST_F(XTgContentPaneTest, DoesNotOwnTheElement) {
  auto element = orvik::As<orvik::ITestElement>(host->CreateObject(classes::kTestElement));
  ASSERT_TRUE(element);
  pane->SetTestElement(element);
  EXPECT_EQ(pane->TestElement(), element);
  element.reset();
  EXPECT_FALSE(pane->TestElement());
}

TEST_F(XTgContentPaneTest, RepaintsTheControlsOnItsTabs) {
  pane->AddTab("a", "A", {}, classes::kProgressBar);
  const auto onTab = Inner<platform::ITabs>("tabPages")->Page("a")->Find("a");
  pane->Refresh();
  pane->Refresh();
  EXPECT_EQ(onTab->RefreshCount(), 2);
  EXPECT_EQ(site->Panel()->RefreshCount(), 2);
}

TEST_F(XTgContentPaneTest, NeedsToBePlaced) {
  const auto loose = orvik::As<orvik::ITgContentPane>(host->CreateObject(classes::kContentPane));
  ExpectHostError(91, "", [&] { loose->SetGuidance("x"); });
  ExpectHostError(91, "", [&] { loose->Refresh(); });
  ExpectHostError(91, "", [&] { loose->AddTab("a", "A", {}, classes::kProgressBar); });
}

}  // namespace
}  // namespace toolkit::headless
