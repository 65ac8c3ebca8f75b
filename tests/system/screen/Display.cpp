#include "tests/system/screen/Display.h"

#include <QWidget>
#include <cstdlib>
#include <regex>
#include <stdexcept>

namespace screen_test {

namespace {

constexpr char kSetPrivileges[] = "/usr/bin/setpriv";
constexpr char kServer[] = "/usr/bin/Xvfb", kManager[] = "/usr/bin/openbox";
constexpr char kMouseAndKeys[] = "/usr/bin/xdotool", kProperties[] = "/usr/bin/xprop";

/// All window numbers of a property, "window id # 0x400006, 0x400010".
std::vector<unsigned long> WindowsIn(const std::string& property) {
  static const std::regex number("0x[0-9a-f]+");
  std::vector<unsigned long> windows;
  for (std::sregex_iterator found(property.begin(), property.end(), number), end; found != end; ++found)
    windows.push_back(std::stoul(found->str(), nullptr, 16));
  return windows;
}

/// The program ends with the test, even if that crashes.
std::unique_ptr<support::Process> Started(std::vector<std::string> words) {
  words.insert(words.begin(), {"--pdeathsig", "KILL"});
  return std::make_unique<support::Process>(kSetPrivileges, std::move(words));
}

}  // namespace

Display::Display(QSize size) {
  // Ignore the user's settings of the window manager.
  for (const auto* variable : {"HOME", "XDG_RUNTIME_DIR"}) setenv(variable, home_.Path().c_str(), 1);
  for (const auto* variable : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) unsetenv(variable);
  const auto geometry = std::to_string(size.width()) + "x" + std::to_string(size.height()) + "x24";
  server_ = Started({kServer, "-displayfd", "1", "-screen", "0", geometry, "-nolisten", "tcp"});
  if (!server_->AwaitOutput("\n")) throw std::runtime_error("Xvfb does not start: " + server_->Wait().error);
  setenv("DISPLAY", (":" + std::to_string(std::stoi(server_->Output()))).c_str(), 1);
  // The command is run once it manages windows.
  manager_ = Started({kManager, "--sm-disable", "--startup", "/bin/echo ready"});
  if (!manager_->AwaitOutput("ready"))
    throw std::runtime_error("openbox does not start: " + manager_->Wait().error);
}

void Display::Xdotool(std::vector<std::string> words) {
  const auto ended = support::Run(kMouseAndKeys, std::move(words));
  if (ended.status != 0) throw std::runtime_error("xdotool: " + ended.error);
}

std::string Display::Property(std::vector<std::string> words) {
  return support::Run(kProperties, std::move(words)).out;
}

void Display::Click(const QWidget& widget, QPoint place) {
  const QPoint at = widget.mapToGlobal(place);
  Xdotool({"mousemove", "--sync", std::to_string(at.x()), std::to_string(at.y()), "click", "1"});
}

void Display::Click(const QWidget& widget) { Click(widget, widget.rect().center()); }

void Display::Type(const std::string& text) { Xdotool({"type", "--delay", "0", text}); }

void Display::Press(const std::string& key) { Xdotool({"key", key}); }

void Display::Minimise(const QWidget& window) { Xdotool({"windowminimize", std::to_string(window.winId())}); }

void Display::Activate(const QWidget& window) { Xdotool({"windowactivate", std::to_string(window.winId())}); }

std::vector<unsigned long> Display::Stacking() {
  return WindowsIn(Property({"-root", "_NET_CLIENT_LIST_STACKING"}));
}

bool Display::OnTop(const QWidget& window) {
  const auto windows = Stacking();
  return !windows.empty() && windows.back() == window.winId();
}

unsigned long Display::OwnerOf(const QWidget& window) {
  const auto owner = WindowsIn(Property({"-id", std::to_string(window.winId()), "WM_TRANSIENT_FOR"}));
  return owner.empty() ? 0 : owner.front();
}

}  // namespace screen_test
