#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/UserMessage.h"

namespace coinlight {

/// The four screens of the settings page; a machine's own screen is one of them with the
/// caption "Custom Settings".
enum class SettingsScreen { Raster, Vector, LCD, Other };

/// "Raster Settings", "Vector Settings", "LCD Settings", "Other Settings".
std::string ScreenCaption(SettingsScreen screen);

/// The screen of a display type: "Raster" and "N/A" raster, "Vector", "LCD", "Other".
std::optional<SettingsScreen> ScreenOfDisplayType(std::string_view displayType);

/// The items of the class drop-down at a settings level (0 Basic, 1 Standard, 2 Advanced).
std::vector<std::string> SettingsLevelItems(int level);
/// The tool tip of the drop-down at the finest level, which abbreviates its items.
std::string_view SettingsLevelTip(int level);

/// The class profile an item of the drop-down stands for ("Raster - Col   Hor" is
/// raster-ch), and the screen that edits it; nothing for a text outside the table.
struct SettingsClass {
    std::string profileName;
    SettingsScreen screen;
};
std::optional<SettingsClass> ClassOfSettingsItem(std::string_view item);

/// The captions of Restore (button, then link) on a machine's own screen: the class
/// profile when its file exists, else the defaults.
struct RestoreCaptions {
    std::string button;
    std::string link;
};
RestoreCaptions CustomRestoreCaptions(std::string_view displayType, bool classFileExists);
/// On a class screen Restore always means MAME's defaults.
RestoreCaptions ClassRestoreCaptions();

/// The class profile whose presence decides the Restore captions of a machine's screen.
std::string RestoreClassProfile(std::string_view displayType, std::string_view profileName);

/// A folder chosen for BGFX or HLSL: where it may go, or why not.
struct ShaderFolderChoice {
    std::optional<std::string> value;   // what the box takes
    std::optional<UserMessage> refusal; // then the box takes its default
};
/// `what` is "BGFX" or "HLSL". The root cannot hold either.
ShaderFolderChoice CheckShaderFolder(std::string_view what, std::string_view chosen);

/// A chosen GLSL shader as its box holds it: the path without its extension.
std::string GLSLShaderValue(std::string_view chosen);

} // namespace coinlight
