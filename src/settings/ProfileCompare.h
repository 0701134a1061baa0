#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "core/UserMessage.h"

namespace coinlight {

enum class ComparisonVerdict { Equal, Different, Failed };

struct ProfileComparison {
    ComparisonVerdict verdict = ComparisonVerdict::Different;
    std::optional<UserMessage> message; // why it failed
};

/// Whether a machine's own profile says anything its class profile does not. Key by key in
/// catalogue order, a missing key counting as its default; texts compare exactly and with
/// case, check boxes as numbers. A check value that is no number fails the comparison.
ProfileComparison CompareProfiles(const std::filesystem::path& custom,
                                  const std::filesystem::path& classProfile);

/// The status panel's words for the class profile of a display type ("Raster Settings",
/// "Raster* Settings" for an unknown display); nothing for a type it does not know.
std::optional<std::string> ClassSettingsLabel(std::string_view displayType);

} // namespace coinlight
