#include "platform/Controls.h"
#include "platform/IApplication.h"
#include "platform/IForm.h"
#include "tests/contract/checker-plugin/checker/Checks.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {
namespace {

using FormPtr = std::shared_ptr<orvik::platform::IForm>;

FormPtr PlainForm(const std::string& name) { return TheHost().Application()->CreateForm(name); }

/// Shows the form modally and runs the work once it is shown.
template <class Work>
void ShowModalAnd(const FormPtr& form, const FormPtr& owner, Work work) {
  TheHost().Application()->Post(work);
  form->ShowModal(owner);
}

void Blocking(Findings& findings) {
  const auto owner = PlainForm("FOwner");
  const auto behind = owner->AddButton("cmd");
  int clicks = 0;
  const auto onClick = behind->Clicked().Subscribe([&] { ++clicks; });
  owner->Show();
  const auto modal = PlainForm("FModal");
  bool reached = false;
  ShowModalAnd(modal, owner, [&] {
    reached = true;
    findings.Expect(modal->Visible() && modal->Active(), "a modal form is shown and active");
    behind->Click();
    owner->Activate();
    owner->Close();
    findings.Expect(modal->Active() && owner->Loaded(),
                    "a form behind a modal one does not answer the operator");
    findings.Refused("showing a form modally twice", [&] { modal->ShowModal(nullptr); });
    modal->Hide();
  });
  findings.Expect(reached, "messages are processed while a form is shown modally");
  findings.Equal(0, clicks, "clicks heard behind a modal form");
  findings.Expect(modal->Loaded() && owner->Active(), "hiding ends the wait, and the owner is active again");
  behind->Click();
  findings.Equal(1, clicks, "clicks heard after the modal form was hidden");
  modal->Unload();
  owner->Unload();
}

void Ending(Findings& findings) {
  const auto unloaded = PlainForm("FUnloaded");
  ShowModalAnd(unloaded, nullptr, [&] { unloaded->Unload(); });
  findings.Expect(!unloaded->Loaded(), "unloading ends the wait");
  const auto closed = PlainForm("FClosed");
  ShowModalAnd(closed, nullptr, [&] { closed->Close(); });
  findings.Expect(!closed->Loaded(), "closing by the cross ends the wait");
}

void Nesting(Findings& findings) {
  const auto outer = PlainForm("FOuter");
  const auto inner = PlainForm("FInner");
  std::string order;
  ShowModalAnd(outer, nullptr, [&] {
    ShowModalAnd(inner, outer, [&] {
      // The outer one ends first: its wait must last until the inner one has come back.
      outer->Hide();
      order += "outer hidden, ";
      inner->Hide();
    });
    order += "inner back, ";
  });
  order += "outer back";
  findings.Equal("outer hidden, inner back, outer back", order, "order in which nested waits end");
  inner->Unload();
  outer->Unload();
}

}  // namespace

void CheckModality(Findings& findings, const HostParts&) {
  RunSteps(findings, {{"blocking", Blocking}, {"ending", Ending}, {"nesting", Nesting}});
}

}  // namespace check
