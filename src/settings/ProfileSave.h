#pragma once

#include <filesystem>
#include <string>

#include "OptionValues.h"

namespace coinlight {

/// The blocks that have a defaults command of their own; None stands for the whole screen.
enum class DefaultsGroup { None, HLSL, YIQ, Vector, Bloom };

/// The catalogue defaults written over every row, or over one block's rows (SetDefaults).
void SetDefaults(OptionValues& values, DefaultsGroup group = DefaultsGroup::None);

/// SettingsAreDefault: every row holds its catalogue default.
bool SettingsAreDefault(const OptionValues& values);

/// The cleaning of a save: empty boxes take the value that stands for "nothing chosen",
/// and the values MAME reads without case are lowered. The screen shows the result.
void CleanForSave(OptionValues& values);

/// SaveControls without the controls: cleans `values`, then replaces the profile with
/// exactly the keys of the catalogue. False, with the reason, when it cannot be written;
/// the old file then stays whole.
bool SaveProfileValues(const std::filesystem::path& profile, OptionValues& values,
                       std::string* error = nullptr);

} // namespace coinlight
