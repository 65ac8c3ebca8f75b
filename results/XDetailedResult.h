#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/ICustomControl.h"
#include "platform/Event.h"
#include "platform/IUserControl.h"

namespace orvik::platform {
class ILabel;
class ITextBox;
}  // namespace orvik::platform

namespace keld::results {

/// Shows the operator's comment of one result, read-only, under a title. Errors of the container and of the
/// result pass to the caller.
class XDetailedResult final : public virtual orvik::ICustomControl, public orvik::platform::IUserControl {
 public:
  static std::shared_ptr<XDetailedResult> Create();

  void AttachTo(const std::shared_ptr<orvik::platform::IContainerSite>& site) override;

 private:
  std::string IObject_ClassID() const override;
  // The control has nothing to report and nothing to edit.
  std::shared_ptr<orvik::ICallBack> ICustomControl_CallBack() const override { return {}; }
  void ICustomControl_SetCallBack(std::shared_ptr<orvik::ICallBack>) override {}
  orvik::WindowHandle ICustomControl_hWnd() const override;
  bool ICustomControl_Locked() const override { return false; }
  void ICustomControl_SetLocked(bool) override {}
  bool ICustomControl_Visible() const override;
  void ICustomControl_SetVisible(bool fVisible) override;
  void ICustomControl_Initialize(std::shared_ptr<orvik::IObject> Data, const orvik::Variant& v1,
                                 const orvik::Variant& v2, const orvik::Variant& v3) override;
  void ICustomControl_Refresh() override;
  void ICustomControl_SetFocus() override;

  void PlaceTitle();

  std::weak_ptr<orvik::platform::IContainerSite> mSite;
  std::shared_ptr<orvik::platform::ILabel> lblTitle;
  std::shared_ptr<orvik::platform::ITextBox> txtComment;
  orvik::platform::Subscription mResized;
};

}  // namespace keld::results
