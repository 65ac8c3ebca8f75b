#include "host/controls/RegisterControls.h"

#include <memory>
#include <string>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ILanguageService.h"
#include "host/Host.h"
#include "host/controls/XLimitView.h"
#include "host/controls/XTgContentPane.h"
#include "host/controls/XTgProgressBar.h"
#include "host/controls/XTgToolbar.h"
#include "host/toolkit/headless/Application.h"

namespace bench {
namespace {

using orvik::As;

/// The class's objects speak the host's language. The host owns the registration, so it is there as long.
template <class ControlClass>
void Register(Host& host, const char* classIdentifier) {
  host.Register(classIdentifier, [&host] {
    auto language = As<orvik::ILanguageService>(host.CreateObject(orvik::HostClasses::kLanguageService));
    return std::make_shared<ControlClass>(std::move(language));
  });
}

}  // namespace

void RegisterControls(Host& host) {
  Register<XTgToolbar>(host, orvik::HostClasses::kToolbar);
  Register<XTgContentPane>(host, orvik::HostClasses::kContentPane);
  Register<XTgProgressBar>(host, orvik::HostClasses::kProgressBar);
  Register<XLimitView>(host, orvik::HostClasses::kLimitView);
}

void ConnectControls(headless::Application& application, Host& host) {
  std::weak_ptr<orvik::IObject> weakHost = host.weak_from_this();
  application.SetControlFactory([weakHost](const std::string& classIdentifier) {
    const auto held = As<orvik::IHost>(weakHost.lock());
    return held ? As<orvik::platform::IUserControl>(held->CreateObject(classIdentifier)) : nullptr;
  });
}

}  // namespace bench
