#include "SelectionDetails.h"

#include "core/FileTests.h"

namespace coinlight {

namespace {

void FillCommonPanel(const MachineRow& row, SelectionDetails& details) {
    // The strip shows plain text: an "&" in a name prints as itself.
    details.panel[1] = std::string(row.Field(ColMachine));
    details.panel[2] = std::string(row.Field(ColName));
    const std::string_view refresh = row.Field(ColRefreshRates);
    details.panel[3] = std::string(refresh.substr(0, refresh.find(',')));
    const std::string_view orientation = row.Field(ColOrientations);
    details.panel[4] = orientation.starts_with("Horizontal") ? "H"
                       : orientation.starts_with("Vertical") ? "V"
                                                             : "U";
    details.panel[5] = row.Field(ColSetType).starts_with("C") ? "C" : "P";
}

bool HasCustomSettings(const MachineRow& row, const std::filesystem::path& settingsFolder) {
    return FileExists(settingsFolder / (std::string(row.ShortName()) + ".cfg"));
}

bool NeedsNoFile(const MachineRow& row) {
    return row.Field(ColRomOf) == "N/A" && row.Field(ColRomRequired) == "No" &&
           row.Field(ColDeviceRomsRequired) == "No" && row.Field(ColChdRequired) == "No";
}

} // namespace

std::string RomBaseName(std::string_view shortName, std::string_view setType, bool mergedRomSets) {
    constexpr std::string_view kCloneOf = "Clone of ";
    if (!mergedRomSets || setType == "Parent") {
        return std::string(shortName);
    }
    std::string parent(setType);
    for (std::size_t at = parent.find(kCloneOf); at != std::string::npos;
         at = parent.find(kCloneOf)) {
        parent.erase(at, kCloneOf.size());
    }
    return parent;
}

bool RomFileExists(std::string_view baseName, const std::vector<std::string>& folders) {
    for (const auto& folder : folders) {
        const std::filesystem::path base = std::filesystem::path(folder) / std::string(baseName);
        if (FileExists(base.string() + ".7z") || FileExists(base.string() + ".zip")) {
            return true;
        }
    }
    return false;
}

std::string SettingsLabel(std::string_view images, std::string_view current) {
    const std::string_view letters = images.substr(0, 3);
    if (letters == "Ras") {
        return "Raster Settings";
    }
    if (letters == "Vec") {
        return "Vector Settings";
    }
    if (letters == "LCD") {
        return "LCD Settings";
    }
    if (letters == "Unk") {
        return "Raster* Settings";
    }
    return std::string(current);
}

SelectionDetails DetailsOf(const MachineRow& row, DetailsSource source, bool mergedRomSets,
                           const std::vector<std::string>& arcadeRomFolders,
                           const std::filesystem::path& settingsFolder,
                           std::string_view currentSettingsLabel) {
    SelectionDetails details;
    FillCommonPanel(row, details);
    const std::string settings = SettingsLabel(row.Field(ColImages), currentSettingsLabel);
    switch (source) {
    case DetailsSource::All:
        details.start = StartCommands::Enable;
        if (NeedsNoFile(row)) {
            details.panel[6] = settings;
        } else if (!RomFileExists(
                       RomBaseName(row.ShortName(), row.Field(ColSetType), mergedRomSets),
                       arcadeRomFolders)) {
            details.panel[6] = "Unavailable";
            details.start = StartCommands::Disable;
        } else {
            details.panel[6] =
                HasCustomSettings(row, settingsFolder) ? "Custom Settings" : settings;
        }
        break;
    case DetailsSource::Available:
        details.panel[6] = HasCustomSettings(row, settingsFolder) ? "Custom Settings" : settings;
        details.start = StartCommands::Enable;
        break;
    case DetailsSource::Unavailable:
    case DetailsSource::OtherUnavailable:
        details.panel[6] = "Unavailable";
        break;
    case DetailsSource::Other:
        details.panel[6] =
            HasCustomSettings(row, settingsFolder) ? "Custom Settings" : "Other Settings";
        break;
    }
    return details;
}

} // namespace coinlight
