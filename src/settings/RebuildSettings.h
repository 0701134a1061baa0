#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ComboChoices.h"
#include "core/DataLayout.h"
#include "core/UserMessage.h"

namespace coinlight {

inline constexpr std::string_view kNoInvalidValues =
    "No invalid values were detected in your setting files.";
/// The first line of the report; its two words are shown in bold.
inline constexpr std::string_view kRebuildHeader = "Filename\tSetting\r\n\r\n\r\n";

/// output/rebuilt.txt.
std::filesystem::path RebuildReportFile(const DataLayout& data);

/// The profiles under settings (*.cfg), in name order.
std::vector<std::filesystem::path> SettingsFiles(const DataLayout& data);

struct RebuildOutcome {
    bool changed = false;
    /// What the page shows: the report, or kNoInvalidValues.
    std::string text;
    std::optional<UserMessage> failure; // the profiles repaired before it stay repaired
};

/// Called after each profile with the count done and the count in all.
using RebuildProgress = std::function<void(std::size_t done, std::size_t total)>;

/// Rebuild Settings: every value of every profile that its control refuses is set back to
/// its default, in the file itself, and reported by file and control. The BIOS list of a
/// machine's own profile comes from output/bios.ini; a class profile offers "Default" only.
/// The report is written to output/rebuilt.txt, or that file is deleted when nothing was
/// wrong. `choices` are the drop-downs as the screens have them.
RebuildOutcome RebuildSettings(const DataLayout& data, ComboChoices choices,
                               const RebuildProgress& progress = {});

/// The text of the last report; nothing when there is none.
std::optional<std::string> RebuildReportText(const DataLayout& data);

} // namespace coinlight
