#pragma once

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <system_error>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "host/document/Host.h"
#include "tests/unit/toolkit/ToolkitTest.h"
#include "toolkit/controls/ControlClasses.h"

namespace toolkit::headless {

/// The real host with its controls on the headless toolkit.
class ControlTest : public ToolkitTest {
 protected:
  ControlTest() {
    std::string pattern = (std::filesystem::temp_directory_path() / "keld-controls-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder can be made: " + pattern);
    folder = pattern;
    host = host::document::Host::Create({folder, {}, {}, {}}, app);
    controls::ConnectControls(*app, *host);
  }
  ~ControlTest() override {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
  }

  /// A control of the host on the form, seen as the interface.
  template <class Interface>
  std::shared_ptr<Interface> Place(const std::string& classIdentifier) {
    site = form->AddControl(classIdentifier, "ctl");
    auto control = orvik::As<Interface>(site->Object());
    if (!control) throw std::runtime_error(classIdentifier + " has no such view");
    return control;
  }

  /// A control inside the placed one.
  template <class Interface>
  std::shared_ptr<Interface> Inner(const std::string& name) {
    auto control = std::dynamic_pointer_cast<Interface>(site->Panel()->Find(name));
    if (!control) throw std::runtime_error("no inner control " + name);
    return control;
  }

  std::filesystem::path folder;
  std::shared_ptr<host::document::Host> host;
  std::shared_ptr<platform::IForm> form = Shown("FForm");
  std::shared_ptr<platform::IContainerSite> site;
};

}  // namespace toolkit::headless
