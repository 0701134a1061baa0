#pragma once

#include "CategoryRowsCache.h"
#include "MameLocations.h"

namespace coinlight {

/// How the Options dialog is opened.
struct OptionsRequest {
    /// Opened by the start because there is nothing to start with: Cancel ends the program,
    /// and a MAME on the search path is offered at once.
    bool firstRun = false;
    /// The Other machines are on show, so their ROM folders cannot be taken away.
    bool inOtherView = false;
    /// Where a packaged MAME lives; the system's unless a test says otherwise.
    MameLocations locations = SystemMameLocations();
    /// The category rows of this run, kept by the caller; without one catver.ini is read
    /// at every opening.
    CategoryRowsCache* categoryCache = nullptr;
};

} // namespace coinlight
