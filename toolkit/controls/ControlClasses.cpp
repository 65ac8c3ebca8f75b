#include "toolkit/controls/ControlClasses.h"

#include <string>
#include <utility>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "toolkit/controls/XLimitView.h"
#include "toolkit/controls/XTgContentPane.h"
#include "toolkit/controls/XTgProgressBar.h"
#include "toolkit/controls/XTgToolbar.h"
#include "toolkit/headless/Application.h"

namespace toolkit::controls {
namespace {

template <class Control>
std::shared_ptr<orvik::IObject> New(std::shared_ptr<orvik::ILanguageService> language) {
  return std::make_shared<Control>(std::move(language));
}

}  // namespace

const std::array<ControlClass, 4>& ControlClasses() {
  static constexpr std::array<ControlClass, 4> classes{{
      {orvik::HostClasses::kToolbar, New<XTgToolbar>},
      {orvik::HostClasses::kContentPane, New<XTgContentPane>},
      {orvik::HostClasses::kProgressBar, New<XTgProgressBar>},
      {orvik::HostClasses::kLimitView, New<XLimitView>},
  }};
  return classes;
}

void ConnectControls(headless::Application& application, orvik::IHost& host) {
  application.SetControlFactory([weakHost = host.weak_from_this()](const std::string& classIdentifier) {
    const auto held = orvik::As<orvik::IHost>(weakHost.lock());
    return held ? orvik::As<orvik::platform::IUserControl>(held->CreateObject(classIdentifier)) : nullptr;
  });
}

}  // namespace toolkit::controls
