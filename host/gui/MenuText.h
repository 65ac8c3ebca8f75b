#pragma once

#include <QString>
#include <string>

namespace host::gui {

/// The text of a menu entry for a tool button: without the access key, which some languages put into
/// brackets, and without the dots at its end.
QString ButtonText(const std::string& menuText);

}  // namespace host::gui
