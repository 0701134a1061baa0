#pragma once

#include <filesystem>
#include <string>

#include "ControlFlags.h"
#include "DataLayout.h"
#include "MarkerFlags.h"
#include "Preferences.h"

namespace coinlight {

/// The state of one run of Coinlight, owned by the entry point and lent to the forms.
struct AppContext {
    std::filesystem::path appFolder;
    DataLayout data;
    Preferences preferences;
    MarkerFlags markers;
    ControlFlags flags;
    StartFacts facts;
    std::string os; // the OS environment variable, shown by the settings screens
    double startTimer = 0;
    double readyTimer = 0;
};

/// Seconds since local midnight, as the start-up timers count.
double SecondsSinceMidnight();

} // namespace coinlight
