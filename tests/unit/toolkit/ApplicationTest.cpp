#include "tests/unit/toolkit/ToolkitTest.h"

namespace toolkit::headless {
namespace {

using ApplicationTest = ToolkitTest;

TEST_F(ApplicationTest, ListsFormsInLoadingOrder) {
  auto a = app->CreateForm("A");
  auto b = app->CreateForm("B");
  EXPECT_TRUE(app->Forms().empty());
  b->Load();
  a->Load();
  a->Load();
  EXPECT_EQ(app->Forms(), (std::vector{b, a}));
  b->Unload();
  EXPECT_EQ(app->Forms(), (std::vector{a}));
}

TEST_F(ApplicationTest, ProcessMessagesReturnsAtOnceWithoutWork) {
  app->ProcessMessages();
  EXPECT_EQ(app->Now(), 0s);
}

TEST_F(ApplicationTest, PostedWorkRunsWhenMessagesAreProcessed) {
  int ran = 0;
  app->Post([&] { ++ran; });
  EXPECT_EQ(ran, 0);
  app->ProcessMessages();
  EXPECT_EQ(ran, 1);
}

TEST_F(ApplicationTest, RaisesPumpedBeforeProcessing) {
  int ran = 0;
  std::vector<int> seen;
  On(app->Pumped(), [&] { seen.push_back(ran); });
  app->Post([&] { ++ran; });
  app->ProcessMessages();
  app->WaitMessages(1s);
  EXPECT_EQ(seen, (std::vector<int>{0, 1}));
}

TEST_F(ApplicationTest, ReturnsAtOnceAfterAnActionInPumped) {
  auto form = Shown("A");
  auto button = form->AddButton("cmd");
  auto timer = form->AddTimer("tmr");
  Start(*timer, 1000);
  On(app->Pumped(), [&] { button->Click(); });
  app->WaitMessages(platform::Time::max());
  EXPECT_EQ(app->Now(), 0s);
}

TEST_F(ApplicationTest, ReportsAnEndlessWaitWithTheOpenForms) {
  Shown("FTestGuide");
  Shown("FYesNoPrompt");
  app->CreateForm("FHidden")->Load();
  // The first time the caller may look once more at what it waits for.
  app->WaitMessages(platform::Time::max());
  try {
    app->WaitMessages(platform::Time::max());
    FAIL() << "it waited for nothing";
  } catch (const std::logic_error& error) {
    const std::string text = error.what();
    EXPECT_NE(text.find("FTestGuide, FYesNoPrompt"), std::string::npos) << text;
    EXPECT_EQ(text.find("FHidden"), std::string::npos) << text;
  }
}

TEST_F(ApplicationTest, LetsAStallHandlerEndTheWait) {
  auto form = app->CreateForm("F");
  app->SetStallHandler([&] { form->Hide(); });
  form->ShowModal(nullptr);
  EXPECT_FALSE(form->Visible());
}

TEST_F(ApplicationTest, DoesNotStallWithADeadline) {
  for (int round = 1; round <= 5; ++round) app->WaitMessages(round * 1s);
  EXPECT_EQ(app->Now(), 5s);
}

TEST_F(ApplicationTest, WakeRaisesWoken) {
  auto woken = Count(app->Woken());
  app->Wake();
  app->WaitMessages(platform::Time::max());
  EXPECT_EQ(*woken, 1);
}

TEST_F(ApplicationTest, IsAnEventLoopForDevices) {
  loop::ILoop& loop = *app;
  int calls = 0;
  loop.CallAt(1s, [&] { ++calls; });
  const auto forgotten = loop.CallAt(1s, [&] { calls += 10; });
  loop.Forget(forgotten);
  app->WaitMessages(1h);
  EXPECT_EQ(loop.Now(), 1s);
  EXPECT_EQ(calls, 1);
}

TEST_F(ApplicationTest, ReleasesLoadedFormsAtItsEnd) {
  std::weak_ptr<platform::IForm> form = Shown("A");
  EXPECT_FALSE(form.expired());
  // A screen shares the application.
  screen.reset();
  app.reset();
  EXPECT_TRUE(form.expired());
}

TEST_F(ApplicationTest, MayBeOutlivedByAForm) {
  auto form = Shown("A");
  auto button = form->AddButton("cmd");
  auto clicks = Count(button->Clicked());
  app.reset();
  button->Click();
  form->Unload();
  EXPECT_FALSE(form->Loaded());
  EXPECT_EQ(*clicks, 1);
}

}  // namespace
}  // namespace toolkit::headless
