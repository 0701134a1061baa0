#pragma once

#include "settings/ComboItems.h"

namespace coinlight {

/// Adds what the window system knows to the drop-down sources: its font families, the
/// number of screens and each screen's mode (its size in pixels and its refresh rate).
/// Needs a QGuiApplication.
void AddSystemComboSources(ComboSources& sources);

} // namespace coinlight
