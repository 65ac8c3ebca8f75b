#pragma once

#include <memory>

#include "OrvikTypeLib/IObject.h"

namespace orvik::platform {
class IForm;
}

namespace orvik {

/// The window of a dialog, for a host that shows it as a window of its own instead of docking it:
/// `As<IDialogForm>(Dialog)->Form()->ShowModal(owner)`, then `IDialog::Unload`.
///
/// Implemented by: the plug-in. Optional. Since contract version 1. User-interface thread only.
class IDialogForm : public virtual IObject {
 public:
  /// The dialog's form. The dialog owns it: keep the dialog as long as the form is shown.
  std::shared_ptr<platform::IForm> Form() const { return IDialogForm_Form(); }

 private:
  virtual std::shared_ptr<platform::IForm> IDialogForm_Form() const = 0;
};

}  // namespace orvik
