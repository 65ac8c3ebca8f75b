#pragma once

#include <QIcon>
#include <QString>

#include "host/report/Report.h"

namespace host::gui {

/// A tick, a cross, an exclamation mark or a dash in the colour of the standing.
QIcon SignIcon(report::Standing standing);

/// The colour of a standing as "#14692f"; readable on white.
QString ColourName(report::Standing standing);

}  // namespace host::gui
