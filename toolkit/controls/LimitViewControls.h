#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/Controls.h"
#include "platform/IListView.h"
#include "platform/IPanel.h"

namespace toolkit::controls {

/// Columns of the list of limits.
namespace LimitColumns {
inline constexpr char kStandard[] = "NAM";
inline constexpr char kDescription[] = "DES";
inline constexpr char kLow[] = "LOL";
inline constexpr char kHigh[] = "HIL";
}  // namespace LimitColumns

/// The controls of the limit view; each member has the control's name.
struct LimitViewControls {
  std::shared_ptr<orvik::platform::ILabel> lblCaption;
  std::shared_ptr<orvik::platform::IListView> lvwLimits;
  std::shared_ptr<orvik::platform::ITextBox> txtLow;
  std::shared_ptr<orvik::platform::IComboBox> cboLowUnit;
  std::shared_ptr<orvik::platform::ITextBox> txtHigh;
  std::shared_ptr<orvik::platform::IComboBox> cboHighUnit;
  std::shared_ptr<orvik::platform::ITextBox> txtNominal;
  std::shared_ptr<orvik::platform::IButton> cmdApply;
  std::shared_ptr<orvik::platform::ITextBox> txtName;
  std::shared_ptr<orvik::platform::ITextBox> txtDescription;
  std::shared_ptr<orvik::platform::IButton> cmdAdd;
  std::shared_ptr<orvik::platform::IButton> cmdRemove;
  std::shared_ptr<orvik::platform::ILabel> lblMessage;

  using Translate = std::function<std::string(const std::string&)>;
  /// Adds the controls to the panel and lays them out.
  static LimitViewControls Build(orvik::platform::IPanel& panel, const Translate& text);
  /// Locks or unlocks all inputs.
  void SetLocked(bool locked) const;
};

}  // namespace toolkit::controls
