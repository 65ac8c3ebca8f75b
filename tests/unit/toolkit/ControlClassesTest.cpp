#include "OrvikTypeLib/ILimitView.h"
#include "OrvikTypeLib/ITgContentPane.h"
#include "OrvikTypeLib/ITgProgressBar.h"
#include "OrvikTypeLib/ITgToolbar.h"
#include "tests/unit/toolkit/ControlTest.h"
#include "toolkit/controls/ControlClasses.h"

namespace toolkit::headless {
namespace {

using orvik::As;
namespace classes = orvik::HostClasses;
using ControlClassesTest = ControlTest;

TEST_F(ControlClassesTest, AreCreatedByTheHost) {
  EXPECT_TRUE(As<orvik::ITgToolbar>(host->CreateObject(classes::kToolbar)));
  EXPECT_TRUE(As<orvik::ITgContentPane>(host->CreateObject(classes::kContentPane)));
  EXPECT_TRUE(As<orvik::ITgProgressBar>(host->CreateObject(classes::kProgressBar)));
  EXPECT_TRUE(As<orvik::ILimitView>(host->CreateObject(classes::kLimitView)));
}

TEST_F(ControlClassesTest, ReturnTheirIdentifier) {
  for (const char* id :
       {classes::kToolbar, classes::kContentPane, classes::kProgressBar, classes::kLimitView})
    EXPECT_EQ(host->CreateObject(id)->ClassID(), id);
}

TEST_F(ControlClassesTest, ArePlacedOnPanels) {
  EXPECT_TRUE(Place<orvik::ITgToolbar>(classes::kToolbar));
  EXPECT_EQ(form->Find("ctl"), site);
}

TEST_F(ControlClassesTest, CreateOneControlForEachSite) {
  const auto first = form->AddControl(classes::kProgressBar, "a");
  const auto second = form->AddControl(classes::kProgressBar, "b");
  EXPECT_NE(first->Object(), second->Object());
}

TEST_F(ControlClassesTest, RejectASecondPlacement) {
  Place<orvik::ITgToolbar>(classes::kToolbar);
  ExpectHostError(5, "already placed", [&] { site->Object()->AttachTo(site); });
}

TEST_F(ControlClassesTest, RejectOtherClasses) {
  ExpectHostError(429, classes::kLimit, [&] { form->AddControl(classes::kLimit, "ctl"); });
  ExpectHostError(429, "orvikView.Unknown", [&] { form->AddControl("orvikView.Unknown", "ctl"); });
  EXPECT_FALSE(form->Find("ctl"));
}

TEST_F(ControlClassesTest, DoNotOwnTheHost) {
  std::weak_ptr<host::document::Host> weak = host;
  host.reset();
  EXPECT_TRUE(weak.expired());
  ExpectHostError(429, classes::kToolbar, [&] { form->AddControl(classes::kToolbar, "ctl"); });
}

}  // namespace
}  // namespace toolkit::headless
