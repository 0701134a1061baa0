#include "SettingsScreens.h"

#include <array>
#include <filesystem>

namespace coinlight {

namespace {

struct ClassItem {
    std::string_view item;
    std::string_view profileName;
    SettingsScreen screen;
    int lowestLevel; // the item is offered from this level on...
    int highestLevel;
};

// The three blanks inside the finest items are part of the text and compared as such.
constexpr std::array kClassItems = {
    ClassItem{"Raster", "raster", SettingsScreen::Raster, 0, 0},
    ClassItem{"Vector", "vector", SettingsScreen::Vector, 0, 0},
    ClassItem{"Raster - Color", "raster-c", SettingsScreen::Raster, 1, 1},
    ClassItem{"Raster - Monochrome", "raster-m", SettingsScreen::Raster, 1, 1},
    ClassItem{"Vector - Color", "vector-c", SettingsScreen::Vector, 1, 1},
    ClassItem{"Vector - Monochrome", "vector-m", SettingsScreen::Vector, 1, 1},
    ClassItem{"Raster - Col   Hor", "raster-ch", SettingsScreen::Raster, 2, 2},
    ClassItem{"Raster - Col   Ver", "raster-cv", SettingsScreen::Raster, 2, 2},
    ClassItem{"Raster - Mon   Hor", "raster-mh", SettingsScreen::Raster, 2, 2},
    ClassItem{"Raster - Mon   Ver", "raster-mv", SettingsScreen::Raster, 2, 2},
    ClassItem{"Vector - Col   Hor", "vector-ch", SettingsScreen::Vector, 2, 2},
    ClassItem{"Vector - Col   Ver", "vector-cv", SettingsScreen::Vector, 2, 2},
    ClassItem{"Vector - Mon   Hor", "vector-mh", SettingsScreen::Vector, 2, 2},
    ClassItem{"Vector - Mon   Ver", "vector-mv", SettingsScreen::Vector, 2, 2},
    ClassItem{"LCD", "lcd", SettingsScreen::LCD, 0, 2},
};

} // namespace

std::string ScreenCaption(SettingsScreen screen) {
    switch (screen) {
    case SettingsScreen::Raster:
        return "Raster Settings";
    case SettingsScreen::Vector:
        return "Vector Settings";
    case SettingsScreen::LCD:
        return "LCD Settings";
    case SettingsScreen::Other:
        break;
    }
    return "Other Settings";
}

std::optional<SettingsScreen> ScreenOfDisplayType(std::string_view displayType) {
    if (displayType == "Raster" || displayType == "N/A") {
        return SettingsScreen::Raster;
    }
    if (displayType == "Vector") {
        return SettingsScreen::Vector;
    }
    if (displayType == "LCD") {
        return SettingsScreen::LCD;
    }
    if (displayType == "Other") {
        return SettingsScreen::Other;
    }
    return std::nullopt;
}

std::vector<std::string> SettingsLevelItems(int level) {
    std::vector<std::string> items;
    for (const ClassItem& entry : kClassItems) {
        if (level >= entry.lowestLevel && level <= entry.highestLevel) {
            items.emplace_back(entry.item);
        }
    }
    return items;
}

std::string_view SettingsLevelTip(int level) {
    return level == 2 ? "Col   Hor = Color Horizontal   Col   Ver = Color Vertical   Mon   Hor = "
                        "Monochrome Horizontal   Mon   Ver = Monochrome Vertical"
                      : "";
}

std::optional<SettingsClass> ClassOfSettingsItem(std::string_view item) {
    for (const ClassItem& entry : kClassItems) {
        if (entry.item == item) {
            return SettingsClass{std::string(entry.profileName), entry.screen};
        }
    }
    return std::nullopt;
}

RestoreCaptions CustomRestoreCaptions(std::string_view displayType, bool classFileExists) {
    const auto screen = ScreenOfDisplayType(displayType);
    if (screen == SettingsScreen::Other) {
        return classFileExists
                   ? RestoreCaptions{"R&estore Other Settings", "Restore Other Settings"}
                   : RestoreCaptions{"R&estore Other Defaults", "Restore Other Defaults"};
    }
    if (!classFileExists || !screen) {
        return ClassRestoreCaptions();
    }
    const std::string name = *screen == SettingsScreen::Raster   ? "Raster"
                             : *screen == SettingsScreen::Vector ? "Vector"
                                                                 : "LCD";
    return {"R&estore " + name + " Settings", "Restore " + name + " Settings"};
}

RestoreCaptions ClassRestoreCaptions() {
    return {"R&estore MAME Defaults", "Restore MAME Defaults"};
}

std::string RestoreClassProfile(std::string_view displayType, std::string_view profileName) {
    if (displayType == "LCD") {
        return "lcd";
    }
    if (displayType == "Other") {
        return "other";
    }
    return std::string(profileName);
}

ShaderFolderChoice CheckShaderFolder(std::string_view what, std::string_view chosen) {
    // The root, or something that is no folder path at all, cannot hold the shaders.
    const std::filesystem::path folder(chosen);
    if (chosen.empty() || !folder.is_absolute() || folder == folder.root_path()) {
        UserMessage refusal;
        refusal.title = std::string(what) + " Path";
        refusal.icon = MessageIcon::Critical;
        refusal.text = std::string(what) + " cannot reside in the root.  Please select a folder.";
        return {std::nullopt, std::move(refusal)};
    }
    return {std::string(chosen), std::nullopt};
}

std::string GLSLShaderValue(std::string_view chosen) {
    std::filesystem::path path(chosen);
    if (path.has_extension()) {
        path.replace_extension();
    }
    return path.string();
}

} // namespace coinlight
