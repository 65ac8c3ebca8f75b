#include <algorithm>

#include "platform/Controls.h"
#include "platform/IApplication.h"
#include "platform/IForm.h"
#include "tests/contract/checker-plugin/checker/Checks.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {
namespace {

using FormPtr = std::shared_ptr<orvik::platform::IForm>;

FormPtr NewForm(const std::string& name) { return TheHost().Application()->CreateForm(name); }

bool IsLoaded(const FormPtr& form) {
  const auto forms = TheHost().Application()->Forms();
  return std::find(forms.begin(), forms.end(), form) != forms.end();
}

void Loading(Findings& findings) {
  const auto form = NewForm("FLoading");
  findings.Equal("FLoading", form->Name(), "name of a form");
  findings.Expect(!form->Loaded() && !form->Visible() && !IsLoaded(form),
                  "a new form is neither loaded nor shown");
  int unloading = 0;
  const auto subscription = form->Unloading().Subscribe([&] { ++unloading; });
  form->Unload();
  findings.Equal(0, unloading, "unloadings of a form that was not loaded");
  form->Load();
  form->Load();
  findings.Expect(form->Loaded() && !form->Visible() && IsLoaded(form),
                  "a loaded form is in the list, hidden");
  form->Unload();
  form->Unload();
  findings.Equal(1, unloading, "unloadings");
  findings.Expect(!form->Loaded() && !IsLoaded(form), "an unloaded form is gone from the list");
}

void Showing(Findings& findings) {
  const auto application = TheHost().Application();
  const auto form = NewForm("FShowing");
  int shown = 0;
  int activated = 0;
  const auto onShown =
      application->FormShown().Subscribe([&](const FormPtr& which) { shown += which == form; });
  const auto onActivated = form->Activated().Subscribe([&] { ++activated; });
  form->Show();
  findings.Expect(form->Loaded() && form->Visible(), "a shown form is loaded and visible");
  findings.Expect(form->Active() && application->ActiveForm() == form, "a shown form is the active one");
  findings.Equal(1, shown, "notices that the form was shown");
  findings.Equal(1, activated, "activations of the form");

  const auto other = NewForm("FOther");
  other->Show();
  findings.Expect(!form->Active() && other->Active(), "one form is active at a time");
  form->Activate();
  findings.Expect(form->Active() && activated == 2, "a form is activated by the operator");
  other->Activate();
  other->Unload();
  findings.Expect(form->Active() && activated == 3, "a form becomes active again when another closes");

  findings.Expect(!form->Topmost(), "a new form is not topmost");
  form->SetTopmost(true);
  findings.Expect(form->Topmost(), "a form is kept on top");
  form->Hide();
  findings.Expect(form->Loaded() && !form->Visible() && application->ActiveForm() != form,
                  "a hidden form is loaded still, and not active");
  form->Unload();
}

void Keys(Findings& findings) {
  const auto form = NewForm("FKeys");
  std::string keys;
  const auto onKey = form->KeyDown().Subscribe(
      [&](int key, int shift) { keys += std::to_string(key) + "/" + std::to_string(shift) + " "; });
  form->PressKey(orvik::platform::kKeyY, 0);
  form->Show();
  form->PressKey(orvik::platform::kKeyY, 0);
  findings.Equal("", keys, "keys seen by a form that is hidden or does not preview them");
  findings.Expect(!form->KeyPreview(), "a new form leaves the keys to its controls");
  form->SetKeyPreview(true);
  findings.Expect(form->KeyPreview(), "a form previews keys");
  form->PressKey(orvik::platform::kKeyY, 0);
  form->PressKey(orvik::platform::kKeyN, 1);
  findings.Equal("89/0 78/1 ", keys, "keys seen by a form that previews them");
  form->Unload();
}

void Focus(Findings& findings) {
  const auto form = NewForm("FFocus");
  const auto box = form->AddTextBox("txt");
  int got = 0;
  const auto onFocus = form->GotFocus().Subscribe([&] { ++got; });
  form->Show();
  findings.Expect(got == 0 && box->HasFocus(), "the first control gets the focus, and not the form");
  form->SetFocus();
  findings.Expect(got == 1 && form->HasFocus() && !box->HasFocus(), "the form itself gets the focus");
  form->Unload();
}

void Closing(Findings& findings) {
  const auto form = NewForm("FClosing");
  bool keep = true;
  int asked = 0;
  const auto onClose = form->CloseRequested().Subscribe([&](bool& kept) {
    ++asked;
    kept = keep;
  });
  form->Close();
  findings.Equal(0, asked, "questions of a hidden form");
  form->Show();
  form->Close();
  findings.Expect(form->Loaded() && form->Visible() && asked == 1, "a handler can keep a form open");
  keep = false;
  form->Close();
  findings.Expect(!form->Loaded() && asked == 2, "a form is closed by its cross");
}

void Resizing(Findings& findings) {
  const auto form = NewForm("FResizing");
  form->AddLabel("lbl")->SetCaption("a caption");
  form->SetGrid({{{0, 1}}, {{0, 1}}, {{"lbl", 0, 0}}});
  int resized = 0;
  const auto onResized = form->Resized().Subscribe([&] { ++resized; });
  form->Show();
  resized = 0;
  form->Resize({9000, 6000});
  findings.Expect(form->InnerSize() == orvik::platform::Size{9000, 6000}, "a form is resized by its border");
  findings.Equal(1, resized, "notices of the new size");
  const auto place = form->Find("lbl")->Bounds();
  findings.Equal(9000 - 2 * 120, place.width, "width of a control that takes all space but the margins");
  findings.Refused("a grid with a control outside its rows", [&] {
    form->SetGrid({{{0, 1}}, {{0, 1}}, {{"lbl", 5, 0}}});
  });
  form->Unload();
}

void Lifetime(Findings& findings) {
  auto form = NewForm("FLifetime");
  const std::weak_ptr<orvik::platform::IForm> watched = form;
  auto button = form->AddButton("cmd");
  // The handler releases the form whose control raises the event.
  const auto onClick = button->Clicked().Subscribe([&] {
    form->Unload();
    form.reset();
  });
  form->Show();
  button->Click();
  button.reset();
  findings.Expect(!form, "a form can be released inside its own handler");
  TheHost().Application()->ProcessMessages();
  findings.Expect(watched.expired(), "an unloaded form without references is released");
}

}  // namespace

void CheckForms(Findings& findings, const HostParts&) {
  RunSteps(findings, {{"loading", Loading},
                      {"showing", Showing},
                      {"keys", Keys},
                      {"focus", Focus},
                      {"closing", Closing},
                      {"resizing", Resizing},
                      {"lifetime", Lifetime}});
}

}  // namespace check
