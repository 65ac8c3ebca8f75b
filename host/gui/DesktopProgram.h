#pragma once

namespace bench {
struct DesktopOptions;
}

namespace bench::desktop {

/// Runs the desktop program; see `RunDesktopModule` for what it answers and throws.
bool RunDesktop(const DesktopOptions& options);

}  // namespace bench::desktop
