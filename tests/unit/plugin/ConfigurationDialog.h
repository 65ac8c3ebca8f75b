#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ICustomControl.h"
#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/IDialogForm.h"
#include "OrvikTypeLib/ITestElement.h"
#include "platform/Controls.h"
#include "platform/IContainerSite.h"
#include "platform/IForm.h"
#include "platform/ITreeView.h"
#include "plugin/configuration/CKELDTestConfiguration.h"
#include "plugin/configuration/ConfigurationControl.h"

namespace support {

/// The open configuration dialog of an element.
template <class Element>
struct ConfigurationDialog {
  explicit ConfigurationDialog(std::int32_t testId, std::int32_t options = 3, std::int32_t filter = 1)
      : element(Element::Create()), configuration(keld::configuration::CKELDTestConfiguration::Create()) {
    orvik::As<orvik::ITestElement>(element)->Initialize("KELD(IN)", 1, testId);
    configuration->SetOwner(orvik::As<orvik::ITestElement>(element));
    configuration->SetOptions(options);
    configuration->SetValueFilter(filter);
    Open();
  }

  /// Opens a new dialog.
  void Open() {
    dialog = configuration->CreateDialog();
    form = orvik::As<orvik::IDialogForm>(dialog)->Form();
    form->Show();
    site = orvik::As<orvik::platform::IContainerSite>(form->Find("isc"));
    control = orvik::As<keld::configuration::ConfigurationControl>(site->Object());
    tree = orvik::As<orvik::platform::ITreeView>(site->Panel()->Find("tvwSettings"));
    list = orvik::As<orvik::platform::IComboBox>(site->Panel()->Find("cmbAssign"));
  }

  std::shared_ptr<Element> element;
  std::shared_ptr<keld::configuration::CKELDTestConfiguration> configuration;
  std::shared_ptr<orvik::IDialog> dialog;
  std::shared_ptr<orvik::platform::IForm> form;
  std::shared_ptr<orvik::platform::IContainerSite> site;
  std::shared_ptr<keld::configuration::ConfigurationControl> control;
  std::shared_ptr<orvik::platform::ITreeView> tree;
  std::shared_ptr<orvik::platform::IComboBox> list;
};

}  // namespace support
