#pragma once

#include <QIcon>

namespace coinlight {

/// The small picture beside the machine of the other list whose software is on show: a
/// console with its joystick ("VCS").
QIcon OtherMarkerIcon();

/// An empty picture of the same size ("Transparent"), so that every row's text lines up.
QIcon BlankListIcon();

} // namespace coinlight
