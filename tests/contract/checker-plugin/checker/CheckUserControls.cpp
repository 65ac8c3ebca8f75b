#include "platform/Controls.h"
#include "platform/IApplication.h"
#include "platform/IContainerSite.h"
#include "platform/IForm.h"
#include "tests/contract/checker-plugin/checker/Checks.h"
#include "tests/contract/checker-plugin/checker/XCheckControl.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {
namespace {

using orvik::platform::IForm;

void Placing(Findings& findings, IForm& form) {
  const auto site = form.AddControl(XCheckControl::kClassId, "isc");
  const auto control = std::dynamic_pointer_cast<XCheckControl>(site->Object());
  if (!control) return findings.Expect(false, "the site holds an object of the class");
  findings.Equal(1, control->Placed(), "times the control was placed");
  findings.Expect(form.Find("isc") == site, "the site is found on the form");
  findings.Expect(!form.Find(XCheckControl::kTextBox) && site->Panel()->Find(XCheckControl::kTextBox),
                  "inner controls are found through the site");
  for (const auto* id : {"", "orvikCheck.NoSuchClass", "orvikCheck.CInspectionResult"})
    findings.Refused(std::string("a control of the class \"") + id + "\"",
                     [&] { form.AddControl(id, "no"); });
  findings.Expect(!form.Find("no"), "a control that could not be made adds nothing");
  findings.Refused("a control of a name that is taken",
                   [&] { form.AddControl(XCheckControl::kClassId, "isc"); });
}

void ExtenderProperties(Findings& findings, IForm& form) {
  using Value = orvik::platform::IContainerSite::Value;
  const auto site = form.AddControl(XCheckControl::kClassId, "isc");
  findings.Expect(site->ExtenderProperty("Name") == Value(std::string("isc")), "a site has its name");
  site->SetExtenderProperty("Left", 100);
  site->SetExtenderProperty("Top", 200);
  site->SetExtenderProperty("Width", 3000);
  site->SetExtenderProperty("Height", 400);
  findings.Expect(site->Bounds() == orvik::platform::Rect{100, 200, 3000, 400},
                  "a site is placed by its properties");
  site->SetExtenderProperty("Visible", false);
  findings.Expect(!site->Visible() && site->ExtenderProperty("Visible") == Value(false), "a site is hidden");
  site->SetExtenderProperty("Enabled", false);
  site->SetExtenderProperty("ToolTipText", std::string("tip"));
  findings.Expect(!site->Enabled() && site->ToolTip() == "tip", "a site has the common properties");
  for (const auto* name : {"Visbible", "visible", ""}) {
    findings.Refused(
        std::string("reading the property \"") + name + "\"", [&] { site->ExtenderProperty(name); },
        orvik::HostError::kNoSuchProperty);
    findings.Refused(
        std::string("setting the property \"") + name + "\"", [&] { site->SetExtenderProperty(name, true); },
        orvik::HostError::kNoSuchProperty);
  }
  findings.Refused("a property of another kind",
                   [&] { site->SetExtenderProperty("Left", std::string("far")); });
}

void Docking(Findings& findings, IForm& form) {
  const auto application = TheHost().Application();
  const auto site = form.AddControl(XCheckControl::kClassId, "isc");
  const auto window = site->Panel()->Handle();
  const auto home = application->Parent(window);
  findings.Expect(home != 0, "the inside of a placed control has a parent");
  const auto other = application->CreateForm("FDock");
  other->Load();
  application->SetParent(window, other->Handle());
  findings.Expect(application->Parent(window) == other->Handle(), "a control is docked into another window");
  application->SetParent(window, home);
  findings.Expect(application->Parent(window) == home, "a control is given back");
  findings.Refused("a window inside itself", [&] { application->SetParent(window, window); });
  findings.Refused("a window that does not exist", [&] { application->SetParent(window, 987654321); });
  findings.Refused("moving no window", [&] { application->SetParent(0, home); });
  findings.Expect(application->Parent(987654321) == 0, "an unknown window has no parent");
  findings.Expect(application->Parent(window) == home, "refused docking changes nothing");
  other->Unload();
}

void Lifetime(Findings& findings, IForm& form) {
  std::weak_ptr<orvik::platform::IUserControl> watched;
  {
    const auto other = TheHost().Application()->CreateForm("FLetGo");
    other->Show();
    watched = other->AddControl(XCheckControl::kClassId, "isc")->Object();
    findings.Expect(!watched.expired(), "the site holds its control");
    other->Unload();
  }
  form.Activate();
  TheHost().Application()->ProcessMessages();
  findings.Expect(watched.expired(), "a control is released with its form");
}

}  // namespace

void CheckUserControls(Findings& findings, const HostParts&) {
  RunStepsOnForms(findings, {{"placing", Placing},
                             {"extender properties", ExtenderProperties},
                             {"docking", Docking},
                             {"lifetime", Lifetime}});
}

}  // namespace check
