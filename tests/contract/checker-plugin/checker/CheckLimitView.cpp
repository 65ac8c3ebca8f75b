#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ICallBack.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitView.h"
#include "OrvikTypeLib/IStandard.h"
#include "platform/IApplication.h"
#include "platform/IContainerSite.h"
#include "platform/IForm.h"
#include "platform/IUserControl.h"
#include "tests/contract/checker-plugin/checker/CCheckLimits.h"
#include "tests/contract/checker-plugin/checker/Checks.h"
#include "tests/contract/checker-plugin/template/CInspection.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {
namespace {

class CallBack final : public orvik::ICallBack {
 public:
  int Notices() const { return notices_; }

 private:
  std::string IObject_ClassID() const override { return {}; }
  void ICallBack_Notify(const std::string&) override { ++notices_; }

  int notices_ = 0;
};

void Operations(Findings& findings, orvik::ILimitView& view, orvik::platform::IContainerSite& site) {
  const auto callBack = std::make_shared<CallBack>();
  findings.Expect(!view.CallBack(), "a new view has no call-back");
  view.SetCallBack(callBack);
  findings.Expect(view.CallBack() == callBack, "the call-back is returned");
  findings.Expect(view.hWnd() == site.Panel()->Handle(), "the view's window is the inside of its site");
  findings.Expect(!view.Locked(), "a new view can be edited");
  view.SetLocked(true);
  findings.Expect(view.Locked(), "a view is locked");
  view.SetLocked(false);
  view.SetVisible(false);
  findings.Expect(!view.Visible() && !site.Visible(), "a view is hidden through its site");
  view.SetVisible(true);
  view.SetFocus();
  view.SetCallBack(nullptr);
  findings.Expect(!view.CallBack(), "the notices end");

  const std::shared_ptr<orvik::ILimitData> limits = CCheckLimits::Create();
  limits->CreateStandard("IEC 62353", "class I")->Limit(1)->SetBounds("", "5");
  view.SetCallBack(callBack);
  view.InitializeView("key", "Mains voltage", "V", "V;%");
  view.Initialize(limits, {}, {}, {});
  view.Refresh();
  findings.Equal("5", limits->Standards()->item(1)->Limit(1)->HighText(), "bound after it was only shown");
  findings.Equal(1, limits->Standards()->Count(), "standards after they were only shown");
  findings.Equal(0, callBack->Notices(), "notices of a view that was not edited");
  view.Initialize(nullptr, {}, {}, {});
  view.Refresh();
}

}  // namespace

void CheckLimitView(Findings& findings, const HostParts&) {
  const auto form = TheHost().Application()->CreateForm("FLimits");
  form->Show();
  findings.Try("the view", [&] {
    const auto site = form->AddControl(orvik::HostClasses::kLimitView, "isc");
    const auto view = orvik::As<orvik::ILimitView>(site->Object());
    if (!view) return findings.Expect(false, "the control edits limits");
    Operations(findings, *view, *site);
  });
  form->Unload();
}

}  // namespace check
