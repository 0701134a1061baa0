#pragma once

#include "core/Preferences.h"

namespace coinlight {

/// What the Options dialog hands back to the window that opened it. When accepted,
/// options.ini holds the new values and so do the application's preferences.
struct OptionsOutcome {
    bool accepted = false;
    /// Anything the list loaders test: a BIOS or category filter, a hide switch or its
    /// year, merged ROM sets. The lists must be loaded again.
    bool filtersChanged = false;
    /// The software folders: the software files made from the old ones are out of date.
    bool softwarePathChanged = false;
    /// The executable or any folder.
    bool pathsChanged = false;
    /// The theme or another preference of the look.
    bool lookChanged = false;
};

/// The changes from `before` to `after`, for an accepted dialog.
OptionsOutcome CompareOptions(const Preferences& before, const Preferences& after);

} // namespace coinlight
