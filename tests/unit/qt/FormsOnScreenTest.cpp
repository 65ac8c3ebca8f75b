#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "tests/unit/qt/ScreenTest.h"

namespace toolkit::headless {
namespace {

namespace person = support::person;
using Texts = std::vector<std::string>;

class FormsOnScreen : public ScreenTest {
 protected:
  /// A form with a button of its own.
  std::shared_ptr<platform::IForm> Window(const std::string& name) {
    button_ = NewForm(name).AddButton("cmd");
    return Column(name, {"cmd"});
  }
  static std::shared_ptr<platform::IButton> ButtonOf(const platform::IForm& form) {
    return std::dynamic_pointer_cast<platform::IButton>(form.Find("cmd"));
  }

 private:
  std::shared_ptr<platform::IButton> button_;
};

TEST_F(FormsOnScreen, AreVisibleWhileShown) {
  auto form = Window("First");
  EXPECT_TRUE(IsOnScreen(*form));
  EXPECT_EQ(WidgetOf(*form).windowTitle(), "First");
  EXPECT_TRUE(WidgetOf(*form).isWindow());
  form->Hide();
  Pump();
  EXPECT_FALSE(IsOnScreen(*form));
  form->Show();
  Pump();
  EXPECT_TRUE(IsOnScreen(*form));
  ExpectMirrored();
}

TEST_F(FormsOnScreen, HaveNoWindowBeforeTheyAreShown) {
  NewForm("Later").AddButton("cmd");
  Pump();
  EXPECT_EQ(QApplication::topLevelWidgets().size(), 0);
}

TEST_F(FormsOnScreen, DeleteTheirWidgetsWhenUnloaded) {
  auto form = Window("First");
  QPointer<QWidget> window = &WidgetOf(*form);
  QPointer<QWidget> button = &WidgetOf(*form->Find("cmd"));
  form->Unload();
  Pump();
  EXPECT_TRUE(window.isNull());
  EXPECT_TRUE(button.isNull());
  form->Show();
  Pump();
  EXPECT_TRUE(IsOnScreen(*form->Find("cmd")));
}

TEST_F(FormsOnScreen, DecideWhetherTheirWindowCloses) {
  auto form = Window("First");
  bool stays = true;
  On(form->CloseRequested(), [&](bool& keep) { keep = stays; });
  WidgetOf(*form).windowHandle()->close();
  Pump();
  EXPECT_TRUE(form->Visible());
  EXPECT_TRUE(IsOnScreen(*form));
  stays = false;
  WidgetOf(*form).windowHandle()->close();
  Pump();
  EXPECT_FALSE(form->Loaded());
}

TEST_F(FormsOnScreen, ShowControlsAddedLater) {
  auto form = Window("First");
  auto label = form->AddLabel("lblLate");
  label->SetBounds({0, 0, 1500, 300});
  label->SetCaption("late");
  Pump();
  EXPECT_TRUE(IsOnScreen(*label));
  ExpectMirrored();
}

TEST_F(FormsOnScreen, AreBlockedByAModalWindow) {
  auto first = Window("First");
  const auto clicks = Count(ButtonOf(*first)->Clicked());
  auto second = Window("Second");
  second->Hide();
  bool looked = false;
  app->Post([&] {
    Pump();
    auto& blocked = WidgetOf<QPushButton>(*ButtonOf(*first));
    bool reached = false;
    const auto pressed = QObject::connect(&blocked, &QPushButton::pressed, &blocked, [&] { reached = true; });
    EXPECT_NE(WidgetOf(*second).windowModality(), Qt::NonModal);
    person::Click(blocked);
    Pump();
    EXPECT_EQ(*clicks, 0);
    EXPECT_FALSE(reached) << "the window system should help";
    QObject::disconnect(pressed);
    EXPECT_FALSE(first->Active());
    looked = true;
    WidgetOf(*second).windowHandle()->close();
  });
  second->ShowModal(first);
  EXPECT_TRUE(looked);
  EXPECT_FALSE(second->Visible());
  Pump();
  person::Click(WidgetOf(*ButtonOf(*first)));
  Pump();
  EXPECT_EQ(*clicks, 1);
}

TEST_F(FormsOnScreen, CanBeUsedAboveAModalWindow) {
  auto modal = Window("Modal");
  modal->Hide();
  bool clicked = false;
  app->Post([&] {
    auto prompt = Window("Prompt");
    On(ButtonOf(*prompt)->Clicked(), [&] {
      clicked = true;
      modal->Hide();
    });
    prompt->SetTopmost(true);
    Pump();
    EXPECT_TRUE(WidgetOf(*prompt).windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(IsOnScreen(*prompt));
    person::Click(WidgetOf(*ButtonOf(*prompt)));
  });
  modal->ShowModal(nullptr);
  EXPECT_TRUE(clicked);
}

TEST_F(FormsOnScreen, BlockOthersWhenTheyBecomeModal) {
  auto first = Window("First");
  auto second = Window("Second");
  app->Post([&] {
    Pump();
    EXPECT_NE(WidgetOf(*second).windowModality(), Qt::NonModal);
    EXPECT_TRUE(IsOnScreen(*second));
    second->Hide();
  });
  second->ShowModal(first);
  Pump();
  second->Show();
  Pump();
  EXPECT_EQ(WidgetOf(*second).windowModality(), Qt::NonModal);
}

TEST_F(FormsOnScreen, AreDialogsOfTheHostWindow) {
  QWidget host;
  onScreen->SetHostWindow(&host);
  host.show();
  auto first = Window("First");
  auto second = Window("Second");
  // Only those are kept above their owner by window managers.
  EXPECT_EQ(WidgetOf(*first).windowHandle()->type(), Qt::Dialog);
  EXPECT_EQ(WidgetOf(*first).windowHandle()->transientParent(), host.windowHandle());
  EXPECT_EQ(WidgetOf(*second).windowHandle()->transientParent(), WidgetOf(*first).windowHandle());
}

TEST_F(FormsOnScreen, AreOwnedByAnOpenHostDialog) {
  QWidget host;
  onScreen->SetHostWindow(&host);
  host.show();
  QWidget question(&host, Qt::Dialog);
  question.setWindowModality(Qt::ApplicationModal);
  question.show();
  auto form = Window("First");
  EXPECT_EQ(WidgetOf(*form).windowHandle()->transientParent(), question.windowHandle());
}

TEST_F(FormsOnScreen, AreRestoredByAClickInTheHostWindow) {
  QWidget host;
  onScreen->SetHostWindow(&host);
  host.show();
  auto form = Window("First");
  WidgetOf(*form).showMinimized();
  ASSERT_TRUE(WidgetOf(*form).isMinimized());
  person::Click(host);
  EXPECT_FALSE(WidgetOf(*form).isMinimized());
}

TEST_F(FormsOnScreen, PreviewKeys) {
  auto form = Window("First");
  form->SetKeyPreview(true);
  std::vector<std::pair<int, int>> keys;
  On(form->KeyDown(), [&](int key, int shift) { keys.emplace_back(key, shift); });
  const auto clicks = Count(ButtonOf(*form)->Clicked());
  for (const Qt::Key key : {Qt::Key_Y, Qt::Key_Escape, Qt::Key_F1, Qt::Key_Return})
    person::Press(WidgetOf(*form), key);
  person::Press(WidgetOf(*form), Qt::Key_N, Qt::ShiftModifier);
  Pump();
  EXPECT_EQ(keys, (std::vector<std::pair<int, int>>{{89, 0}, {27, 0}, {13, 0}, {78, 1}}));
  EXPECT_EQ(*clicks, 1) << "Return clicks the button that has the focus";
}

TEST_F(FormsOnScreen, ClickNothingWhenAKeyHidesThem) {
  auto form = Window("First");
  form->SetKeyPreview(true);
  On(form->KeyDown(), [&](int, int) { form->Hide(); });
  const auto clicks = Count(ButtonOf(*form)->Clicked());
  person::Press(WidgetOf(*form), Qt::Key_Return);
  Pump();
  EXPECT_EQ(*clicks, 0);
}

TEST_F(FormsOnScreen, TypeEachPreviewedKeyOnce) {
  auto box = NewForm("First").AddTextBox("txt");
  auto form = Column("First", {"txt"});
  form->SetKeyPreview(true);
  const auto keys = Count(form->KeyDown());
  person::Press(WidgetOf(*form), Qt::Key_A);
  Pump();
  EXPECT_EQ(box->Text(), "a");
  EXPECT_EQ(*keys, 1);
}

TEST_F(FormsOnScreen, FollowTheFocusOfTheModel) {
  auto& form = NewForm("First");
  auto accept = form.AddButton("cmdAccept");
  auto decline = form.AddButton("cmdDecline");
  form.Load();
  decline->SetFocus();
  const auto accepted = Count(accept->Clicked());
  const auto declined = Count(decline->Clicked());
  auto shown = Column("First", {"cmdAccept", "cmdDecline"});
  EXPECT_EQ(QApplication::focusWidget(), &WidgetOf(*decline));
  person::Press(WidgetOf(*shown), Qt::Key_Return);
  Pump();
  EXPECT_EQ(*accepted, 0);
  EXPECT_EQ(*declined, 1);
  accept->SetFocus();
  Pump();
  EXPECT_EQ(QApplication::focusWidget(), &WidgetOf(*accept));
}

TEST_F(FormsOnScreen, IgnoreFocusSetByTheWindowSystem) {
  auto& form = NewForm("First");
  auto accept = form.AddButton("cmdAccept");
  auto decline = form.AddButton("cmdDecline");
  form.Load();
  decline->SetFocus();
  auto shown = Column("First", {"cmdAccept", "cmdDecline"});
  WidgetOf(*accept).setFocus(Qt::ActiveWindowFocusReason);
  Pump();
  EXPECT_TRUE(decline->HasFocus());
  EXPECT_EQ(QApplication::focusWidget(), &WidgetOf(*decline));
  WidgetOf(*accept).setFocus(Qt::MouseFocusReason);
  Pump();
  EXPECT_TRUE(accept->HasFocus());
}

TEST_F(FormsOnScreen, HaveTheModelsTabOrder) {
  auto& form = NewForm("First");
  auto serial = form.AddTextBox("txtSerial");
  auto unit = form.AddComboBox("cboUnit");
  const auto left = Count(unit->LostFocus());
  auto button = form.AddButton("cmd");
  auto shown = Column("First", {"cmd", "cboUnit", "txtSerial"});
  EXPECT_TRUE(serial->HasFocus());
  person::Press(WidgetOf(*shown), Qt::Key_Tab);
  Pump();
  EXPECT_TRUE(unit->HasFocus());
  person::Press(WidgetOf(*shown), Qt::Key_Tab);
  Pump();
  EXPECT_TRUE(button->HasFocus());
  EXPECT_EQ(*left, 1);
  person::Press(WidgetOf(*shown), Qt::Key_Backtab);
  Pump();
  EXPECT_TRUE(unit->HasFocus());
}

TEST_F(FormsOnScreen, AreActivatedByAClick) {
  auto first = Window("First");
  auto second = Window("Second");
  EXPECT_EQ(QApplication::activeWindow(), &WidgetOf(*second));
  person::Click(WidgetOf(*ButtonOf(*first)));
  Pump();
  EXPECT_TRUE(first->Active());
  EXPECT_EQ(QApplication::activeWindow(), &WidgetOf(*first));
  second->Hide();
  first->Hide();
  Pump();
  EXPECT_FALSE(IsOnScreen(*first));
}

TEST_F(FormsOnScreen, CanBeResizedByTheUser) {
  auto form = Window("First");
  const auto resized = Count(form->Resized());
  WidgetOf(*form).windowHandle()->resize(400, 300);
  Pump();
  EXPECT_EQ(form->InnerSize(), (platform::Size{400 * 15, 300 * 15}));
  EXPECT_EQ(*resized, 1);
  EXPECT_EQ(WidgetOf(*form->Find("cmd")).geometry().right() + 1, 400 - 8) << "the layout follows";
  ExpectMirrored();
}

TEST_F(FormsOnScreen, GrowWithTheirContentUntilResized) {
  auto form = Window("First");
  form->Find("cmd")->SetCaption("A caption that needs much more room than the column has to give");
  Pump();
  EXPECT_GE(WidgetOf(*form).width(), WidgetOf(*form->Find("cmd")).sizeHint().width());
  ExpectMirrored();
}

TEST_F(FormsOnScreen, ShowDockedControlsInTheirNewWindow) {
  auto home = Window("Home");
  auto site = home->AddControl("test.Probe", "ctl");
  site->SetBounds({0, 600, 3000, 900});
  auto other = Window("Other");
  Pump();
  EXPECT_EQ(WidgetOf(*site).window(), &WidgetOf(*home));
  app->SetParent(site->Handle(), other->Handle());
  Pump();
  EXPECT_EQ(WidgetOf(*site).window(), &WidgetOf(*other));
  EXPECT_TRUE(IsOnScreen(*site));
  auto inner = std::dynamic_pointer_cast<platform::ITextBox>(site->Panel()->Find("txtInner"));
  inner->SetBounds({0, 0, 1500, 300});
  Pump();
  person::Type(WidgetOf(*inner), "x");
  Pump();
  EXPECT_EQ(inner->Text(), "x");
  app->SetParent(site->Handle(), home->Handle());
  Pump();
  EXPECT_EQ(WidgetOf(*site).window(), &WidgetOf(*home));
  ExpectMirrored();
}

TEST_F(FormsOnScreen, ShowControlsDockedFromHiddenForms) {
  auto& hidden = NewForm("Hidden");
  auto site = hidden.AddControl("test.Probe", "ctl");
  auto other = Window("Other");
  app->SetParent(site->Handle(), other->Handle());
  site->SetBounds({0, 0, 1500, 900});
  Pump();
  EXPECT_TRUE(IsOnScreen(*site));
  EXPECT_EQ(WidgetOf(*site).window(), &WidgetOf(*other));
  other->Unload();
  Pump();
  EXPECT_FALSE(IsOnScreen(*site));
}

TEST_F(FormsOnScreen, CanBeEmbeddedInTheHostWindow) {
  QWidget host;
  QVBoxLayout layout(&host);
  auto& form = NewForm("Inside");
  auto button = form.AddButton("cmd");
  const auto clicks = Count(button->Clicked());
  platform::Grid grid;
  grid.rows = {{0, 1}};
  grid.columns = {{0, 1}};
  grid.cells = {{"cmd", 0, 0}};
  form.SetGrid(grid);
  QWidget* inside = onScreen->Embed(Newest(), &host);
  layout.addWidget(inside);
  form.Show();
  host.resize(600, 400);
  host.show();
  Pump();
  EXPECT_EQ(inside->window(), &host);
  EXPECT_TRUE(inside->isVisible());
  EXPECT_EQ(form.InnerSize(), (platform::Size{inside->width() * 15, inside->height() * 15}));
  person::Click(WidgetOf(*button));
  Pump();
  EXPECT_EQ(*clicks, 1);
  form.Hide();
  Pump();
  EXPECT_FALSE(inside->isVisible());
}

TEST_F(FormsOnScreen, SurviveDeletionOfTheirHostWindow) {
  auto host = std::make_unique<QWidget>();
  auto& form = NewForm("Inside");
  form.AddButton("cmd");
  onScreen->Embed(Newest(), host.get());
  form.Show();
  Pump();
  host.reset();
  form.SetCaption("still there");
  form.AddButton("another");
  form.Find("cmd")->SetCaption("x");
  Pump();
  EXPECT_TRUE(form.Visible());
}

TEST_F(FormsOnScreen, ThrowHandlerErrorsToTheCaller) {
  auto form = Window("First");
  On(ButtonOf(*form)->Clicked(), [] { throw orvik::HostError(5, "test", "refused"); });
  ExpectHostError(5, "refused", [&] {
    person::Click(WidgetOf(*ButtonOf(*form)));
    Pump();
  });
  Pump();
}

TEST_F(FormsOnScreen, PassHandlerErrorsToTheErrorHandler) {
  auto form = Window("First");
  On(ButtonOf(*form)->Clicked(), [] { throw orvik::HostError(5, "test", "refused"); });
  Texts errors;
  onScreen->SetErrorHandler([&](const std::string& error) { errors.push_back(error); });
  person::Click(WidgetOf(*ButtonOf(*form)));
  Pump();
  EXPECT_EQ(errors, Texts{"refused"});
}

TEST_F(FormsOnScreen, OutliveTheScreen) {
  auto form = Window("First");
  QPointer<QWidget> window = &WidgetOf(*form);
  // Still pending when the screen is destroyed.
  window->windowHandle()->close();
  screen.reset();
  onScreen.reset();
  EXPECT_TRUE(window.isNull());
  form->Find("cmd")->SetCaption("Other");
  app->ProcessMessages();
  EXPECT_TRUE(form->Visible());
}

TEST_F(FormsOnScreen, AreShownOnAScreenCreatedLater) {
  screen.reset();
  onScreen.reset();
  auto form = app->CreateForm("First");
  auto button = form->AddButton("cmd");
  form->SetGrid(OneColumn({"cmd"}));
  button->SetCaption("A long caption in real letters");
  form->Show();
  onScreen = std::make_shared<host::qt::Screen>(app);
  Pump();
  EXPECT_TRUE(IsOnScreen(*button));
  EXPECT_GE(WidgetOf(*button).width(), WidgetOf(*button).sizeHint().width());
  ExpectMirrored();
}

}  // namespace
}  // namespace toolkit::headless
