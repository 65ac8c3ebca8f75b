#pragma once

namespace bench {

class Host;
namespace headless {
class Application;
}

/// Registers the host's own control classes.
void RegisterControls(Host& host);

/// Has the application create user controls through the host, its own as well as those of plug-ins. The
/// application keeps no hold of the host.
void ConnectControls(headless::Application& application, Host& host);

}  // namespace bench
