#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

class ITgToolbarEvents;

/// The test-guide toolbar (control class "orvikTGCL2.XTgToolbar").
/// Buttons: 101 abort, 102 previous, 103 next, 201 stop, 202 play, 301 not applicable, 302 skip, 501 tools
/// (drop-down).
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class ITgToolbar : public virtual IObject {
 public:
  /// Sets the one listener that is notified of clicks; it is not kept alive.
  void Advise(std::weak_ptr<ITgToolbarEvents> Events) { ITgToolbar_Advise(std::move(Events)); }
  /// Shows a text next to the buttons.
  void SetStatusText(const std::string& sText) { ITgToolbar_SetStatusText(sText); }
  /// The text shown.
  std::string StatusText() const { return ITgToolbar_StatusText(); }
  /// Enables or disables a button or entry; an unknown number changes nothing.
  void EnableCommand(std::int32_t lCommand, bool fEnabled) { ITgToolbar_EnableCommand(lCommand, fEnabled); }
  /// Whether the button or entry is enabled.
  bool IsEnabled(std::int32_t lCommand) const { return ITgToolbar_IsEnabled(lCommand); }
  /// Shows or hides a button or entry.
  void ShowCommand(std::int32_t lCommand, bool fVisible) { ITgToolbar_ShowCommand(lCommand, fVisible); }
  /// Sets a button's tool tip.
  void SetToolTip(std::int32_t lCommand, const std::string& sText) { ITgToolbar_SetToolTip(lCommand, sText); }
  /// Adds an entry under a drop-down button.
  void AddEntry(std::int32_t lParent, std::int32_t lCommand, const std::string& sCaption) {
    ITgToolbar_AddEntry(lParent, lCommand, sCaption);
  }
  /// Clicks a button as the operator does; ignored when it is disabled or hidden.
  void Click(std::int32_t lCommand) { ITgToolbar_Click(lCommand); }

 private:
  virtual void ITgToolbar_Advise(std::weak_ptr<ITgToolbarEvents> Events) = 0;
  virtual void ITgToolbar_SetStatusText(const std::string& sText) = 0;
  virtual std::string ITgToolbar_StatusText() const = 0;
  virtual void ITgToolbar_EnableCommand(std::int32_t lCommand, bool fEnabled) = 0;
  virtual bool ITgToolbar_IsEnabled(std::int32_t lCommand) const = 0;
  virtual void ITgToolbar_ShowCommand(std::int32_t lCommand, bool fVisible) = 0;
  virtual void ITgToolbar_SetToolTip(std::int32_t lCommand, const std::string& sText) = 0;
  virtual void ITgToolbar_AddEntry(std::int32_t lParent, std::int32_t lCommand,
                                   const std::string& sCaption) = 0;
  virtual void ITgToolbar_Click(std::int32_t lCommand) = 0;
};

}  // namespace orvik
