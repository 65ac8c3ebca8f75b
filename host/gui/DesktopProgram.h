#pragma once

namespace host::bench {
struct DesktopOptions;
}

namespace host::gui {

/// Runs the desktop program; see `RunDesktopModule` for what it answers and throws.
bool RunDesktop(const bench::DesktopOptions& options);

}  // namespace host::gui
