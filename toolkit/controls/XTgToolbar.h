#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/ITgToolbar.h"
#include "platform/Controls.h"
#include "platform/Event.h"
#include "toolkit/controls/HostControl.h"

namespace toolkit::controls {

/// The test-guide toolbar: the buttons "tbrCommands", the status text "lblStatus" beside them, and below both
/// "lblJudgement", where the host shows the judgement of the readings; hidden while empty. Operations fail
/// with `HostError` 91 until the control is placed.
class XTgToolbar final : public virtual orvik::ITgToolbar, public HostControl {
 public:
  using HostControl::HostControl;

 private:
  std::string IObject_ClassID() const override;
  void ITgToolbar_Advise(std::weak_ptr<orvik::ITgToolbarEvents> Events) override {
    listener_ = std::move(Events);
  }
  void ITgToolbar_SetStatusText(const std::string& sText) override;
  std::string ITgToolbar_StatusText() const override;
  void ITgToolbar_EnableCommand(std::int32_t lCommand, bool fEnabled) override;
  bool ITgToolbar_IsEnabled(std::int32_t lCommand) const override;
  void ITgToolbar_ShowCommand(std::int32_t lCommand, bool fVisible) override;
  void ITgToolbar_SetToolTip(std::int32_t lCommand, const std::string& sText) override;
  void ITgToolbar_AddEntry(std::int32_t lParent, std::int32_t lCommand, const std::string& sCaption) override;
  void ITgToolbar_Click(std::int32_t lCommand) override;

  void Build(orvik::platform::IPanel& panel) override;
  void Notify(int command);

  std::shared_ptr<orvik::platform::IToolbar> toolbar_;
  std::shared_ptr<orvik::platform::ILabel> status_;
  std::weak_ptr<orvik::ITgToolbarEvents> listener_;
  orvik::platform::Subscription chosen_;
};

}  // namespace toolkit::controls
