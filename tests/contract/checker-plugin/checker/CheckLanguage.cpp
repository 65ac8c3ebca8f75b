#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ILanguageService.h"
#include "platform/Controls.h"
#include "platform/IApplication.h"
#include "platform/IForm.h"
#include "platform/ITreeView.h"
#include "tests/contract/checker-plugin/checker/Checks.h"
#include "tests/contract/checker-plugin/template/Names.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {
namespace {

void NumberedTexts(Findings& findings) {
  const auto is = [&](const std::string& expected, const std::string& text,
                      const std::vector<std::string>& values) {
    findings.Equal(expected, Translated(text, values), "\"" + text + "\" translated");
  };
  is("Undamaged", "39999::Undamaged", {});
  is("", "39999::", {});
  is("", "::", {});
  is("a::b", "39999::a::b", {});
  is("one  two and one", "39999::%%1  %%2 and %%1", {"one", "two"});
  is("%%2 then %%1", "39999::%%1 then %%2", {"%%2", "%%1"});
  is("no value %%1", "39999::no value %%1", {});
}

void Captions(Findings& findings) {
  const auto service = NewHostObject<orvik::ILanguageService>(orvik::HostClasses::kLanguageService);
  const auto form = TheHost().Application()->CreateForm("FTranslated");
  form->SetCaption("39999::A form");
  form->AddLabel("lbl")->SetCaption("39999::A label");
  form->AddButton("cmd")->SetCaption("39999::&A button");
  form->AddFrame("fra")->SetCaption("a caption in another form");
  const auto tree = form->AddTreeView("tvw");
  tree->AddNode("node key", "39999::A node");
  service->TranslateControls(names::kModule, form);
  findings.Equal("A form", form->Caption(), "translated caption of a form");
  findings.Equal("A label", form->Find("lbl")->Caption(), "translated caption of a label");
  findings.Equal("&A button", form->Find("cmd")->Caption(), "translated caption of a button");
  findings.Equal("a caption in another form", form->Find("fra")->Caption(), "other caption");
  findings.Equal("A node", tree->NodeCaption("node key"), "translated caption of a node");
  findings.Refused("translating no controls", [&] { service->TranslateControls(names::kModule, nullptr); });
}

}  // namespace

void CheckLanguage(Findings& findings, const HostParts&) {
  RunSteps(findings, {{"texts", NumberedTexts}, {"captions", Captions}});
}

}  // namespace check
