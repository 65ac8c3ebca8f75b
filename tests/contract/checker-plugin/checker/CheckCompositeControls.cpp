#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ITestElement.h"
#include "OrvikTypeLib/ITgContentPane.h"
#include "OrvikTypeLib/ITgProgressBar.h"
#include "OrvikTypeLib/ITgToolbar.h"
#include "OrvikTypeLib/ITgToolbarEvents.h"
#include "platform/IApplication.h"
#include "platform/IContainerSite.h"
#include "platform/IForm.h"
#include "platform/IUserControl.h"
#include "tests/contract/checker-plugin/checker/Checks.h"
#include "tests/contract/checker-plugin/checker/XCheckControl.h"
#include "tests/contract/checker-plugin/template/CInspection.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {
namespace {

using orvik::platform::IForm;

class Listener final : public orvik::ITgToolbarEvents {
 public:
  std::string Heard() const { return heard_; }

 private:
  std::string IObject_ClassID() const override { return {}; }
  void ITgToolbarEvents_OnCommand(std::int32_t command) override { heard_ += std::to_string(command) + " "; }

  std::string heard_;
};

template <class Interface>
std::shared_ptr<Interface> Place(IForm& form, const char* classId, const std::string& name) {
  auto control = orvik::As<Interface>(form.AddControl(classId, name)->Object());
  if (!control)
    throw orvik::HostError(orvik::HostError::kTypeMismatch, "CHECK",
                           std::string(classId) + " lacks its interface");
  return control;
}

void Toolbar(Findings& findings, IForm& form) {
  const auto bar = Place<orvik::ITgToolbar>(form, orvik::HostClasses::kToolbar, "xtbToolbar");
  auto listener = std::make_shared<Listener>();
  bar->Advise(listener);
  for (const auto command : {101, 102, 103, 201, 202, 301, 302, 501}) {
    bar->EnableCommand(command, true);
    findings.Expect(bar->IsEnabled(command), "button " + std::to_string(command) + " is enabled");
    bar->Click(command);
  }
  bar->AddEntry(501, 900, "Calibrate...");
  bar->Click(900);
  findings.Equal("101 102 103 201 202 301 302 501 900 ", listener->Heard(), "clicks heard");
  bar->EnableCommand(900, false);
  bar->Click(900);
  bar->EnableCommand(900, true);
  bar->ShowCommand(900, false);
  bar->Click(900);
  bar->EnableCommand(4711, true);
  bar->Click(4711);
  findings.Equal("101 102 103 201 202 301 302 501 900 ", listener->Heard(), "clicks that do nothing");
  findings.Expect(!bar->IsEnabled(4711), "an unknown command is not enabled");
  bar->SetStatusText("busy");
  findings.Equal("busy", bar->StatusText(), "status text");
  bar->SetToolTip(101, "tip");
  bar->SetToolTip(4711, "tip");
  listener.reset();
  bar->Click(101);  // the listener is gone
}

void ContentPane(Findings& findings, IForm& form) {
  const auto pane = Place<orvik::ITgContentPane>(form, orvik::HostClasses::kContentPane, "xtwWizard");
  pane->SetGuidance("Connect the lead.");
  findings.Equal("Connect the lead.", pane->Guidance(), "guidance");
  const auto object = pane->AddTab("tab:key", "Data", {}, XCheckControl::kClassId);
  findings.Expect(std::dynamic_pointer_cast<XCheckControl>(object) != nullptr,
                  "a tab holds a control of the class");
  findings.Expect(pane->Tab("tab:key") == object && !pane->Tab("tab:other"), "a tab is found by its key");
  findings.Refused("a second tab of a key",
                   [&] { pane->AddTab("tab:key", "Data", {}, XCheckControl::kClassId); });
  findings.Refused("a tab of an unknown class",
                   [&] { pane->AddTab("tab:no", "No", {}, "orvikCheck.NoSuchClass"); });
  findings.Expect(!pane->Tab("tab:no"), "a tab that could not be made is not there");
  const std::shared_ptr<orvik::ITestElement> element = CInspection::Create();
  pane->SetTestElement(element);
  findings.Expect(pane->TestElement() == element, "the pane returns its element");
  pane->Refresh();
  pane->SetTestElement(nullptr);
  findings.Expect(!pane->TestElement(), "the pane's element can be taken away");
}

void ProgressBar(Findings& findings, IForm& form) {
  const auto bar = Place<orvik::ITgProgressBar>(form, orvik::HostClasses::kProgressBar, "pbo");
  bar->SetRange(0, 10);
  bar->SetValue(4);
  findings.Equal(4, bar->Value(), "progress");
  bar->SetValue(99);
  findings.Equal(10, bar->Value(), "progress beyond the end");
  bar->SetValue(-99);
  findings.Equal(0, bar->Value(), "progress before the beginning");
  for (const std::int32_t end : {0, -1, 5})
    findings.Refused("an invalid range", [&] { bar->SetRange(5, end); });
  bar->SetValue(7);
  findings.Equal(7, bar->Value(), "progress after refused ranges");
}

}  // namespace

void CheckCompositeControls(Findings& findings, const HostParts&) {
  RunStepsOnForms(findings,
                  {{"toolbar", Toolbar}, {"content pane", ContentPane}, {"progress bar", ProgressBar}});
}

}  // namespace check
