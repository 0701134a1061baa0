#pragma once

#include <string_view>

#include "core/Preferences.h"

namespace coinlight {

/// "Defaults": every hide switch off, the basic settings level and the program's own look.
/// The lists lose their selection; the year and the clone shots stay as they are.
void ResetOtherPreferences(OtherPreferences& other);

// "My Defaults": the maker's own choice of filters and look, kept as tables so that it can
// change without touching the form.
bool MyDefaultsSelectsBios(std::string_view row);
bool MyDefaultsSelectsCategory(std::string_view row);
void ApplyMyDefaults(OtherPreferences& other, bool ideMode);

} // namespace coinlight
