#pragma once

#include <QIcon>
#include <QString>
#include <string>

#include "host/report/Report.h"

namespace bench::desktop {

/// A UTF-8 text for Qt.
inline QString Shown(const std::string& text) { return QString::fromStdString(text); }

/// A menu's text for a button: without the letter to press, which some languages put into brackets, and
/// without dots at its end.
QString ButtonText(const std::string& text);

/// The sign of a standing: a tick, a cross, an exclamation mark or a dash in its colour.
QIcon SignIcon(report::Standing standing);

/// The colour of a standing as "#14692f"; readable on white.
QString ColourName(report::Standing standing);

}  // namespace bench::desktop
