#include "ProfileCompare.h"

#include "OptionCatalogue.h"
#include "ProfileLoad.h"
#include "core/ProfileFile.h"

namespace coinlight {

ProfileComparison CompareProfiles(const std::filesystem::path& custom,
                                  const std::filesystem::path& classProfile) {
    const auto mine = LoadProfile(custom);
    const auto theirs = LoadProfile(classProfile);
    for (const OptionRow& row : OptionCatalogue()) {
        const std::string a = ReadProfileValue(*mine, row.section, row.key, row.defaultValue);
        const std::string b = ReadProfileValue(*theirs, row.section, row.key, row.defaultValue);
        if (row.kind != OptionKind::Check) {
            if (a != b) {
                return {};
            }
            continue;
        }
        const auto numberA = CheckNumber(a);
        const auto numberB = CheckNumber(b);
        if (!numberA || !numberB) {
            UserMessage message = RoutineError("Error In CompareSettings", "Type mismatch", 2);
            message.text += "\nYou should run Rebuild Settings from the Tools pull-down menu "
                            "above to correct this problem.";
            return {ComparisonVerdict::Failed, std::move(message)};
        }
        if (*numberA != *numberB) {
            return {};
        }
    }
    return {ComparisonVerdict::Equal, std::nullopt};
}

std::optional<std::string> ClassSettingsLabel(std::string_view displayType) {
    if (displayType == "Raster" || displayType == "Vector" || displayType == "LCD" ||
        displayType == "Other") {
        return std::string(displayType) + " Settings";
    }
    if (displayType == "N/A") {
        return "Raster* Settings";
    }
    return std::nullopt;
}

} // namespace coinlight
