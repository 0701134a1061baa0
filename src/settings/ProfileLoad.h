#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ComboChoices.h"
#include "OptionValues.h"
#include "core/ProfileDocument.h"
#include "core/UserMessage.h"

namespace coinlight {

/// A profile as the settings screen can show it: every value its control accepts, the
/// default wherever the control refused the stored text.
struct LoadedProfile {
    OptionValues values; // check boxes as "0" or "1", the way the screen reads them back
    std::vector<std::size_t> refused; // rows whose stored value was refused, in catalogue order
};

/// The number a check box takes from a stored text, rounded as an integer conversion
/// rounds; nothing for a text that is no number.
std::optional<long long> CheckNumber(std::string_view text);

/// Whether the row's control takes `value`: a drop-down only one of its items, a check box
/// only a number, a text box anything.
bool ControlAccepts(std::size_t row, std::string_view value, const ComboChoices& choices);

/// What the row's control shows for an accepted value.
std::string ShownValue(std::size_t row, std::string value);

/// Reads every row of a profile in catalogue order (LoadControls without the controls).
/// A missing key, section or file gives the default silently.
LoadedProfile LoadProfileValues(const ProfileDocument& profile, const ComboChoices& choices);
LoadedProfile LoadProfileValues(const std::filesystem::path& profile, const ComboChoices& choices);

/// What an open screen says about a refused row. The file stays as it is: only OK or
/// Rebuild Settings write it.
UserMessage RefusalMessage(std::size_t row, std::string_view screenCaption);

/// Rebuild Settings on one profile: every refused key is written back with its default in
/// one atomic replace. Gives the rows repaired; nothing when the file could not be written.
std::optional<std::vector<std::size_t>> RepairProfile(const std::filesystem::path& profile,
                                                      const ComboChoices& choices,
                                                      std::string* error = nullptr);

} // namespace coinlight
