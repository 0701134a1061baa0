#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "OptionValues.h"
#include "SettingsScreens.h"
#include "core/UserMessage.h"

namespace coinlight {

/// The buttons of the settings page that belong to a block, each with its link twin.
enum class GroupCommand : std::uint8_t {
    SelectBGFX,         // cmdSelectBGFX, lblBLinks(24)
    SelectHLSL,         // cmdSelectHLSL, lblBLinks(19)
    HLSLDefaults,       // cmdHLSLDefaults, lblBLinks(20)
    YIQDefaults,        // cmdYIQDefaults, lblBLinks(21)
    VectorPostDefaults, // cmdVectorPostDefaults, lblBLinks(22)
    BloomPostDefaults,  // cmdBloomPostDefaults, lblBLinks(23)
    SelectGLSL0,        // cmdSelectGLSL(0..7), lblGLSLBLinks(0..7)
    Count = SelectGLSL0 + 8,
};
inline constexpr int kGLSLShaderCount = 8;
inline constexpr std::size_t kGroupCommandCount = static_cast<std::size_t>(GroupCommand::Count);

GroupCommand SelectGLSL(int index);
/// The button's control name and its twin's ("cmdSelectGLSL(3)", "lblGLSLBLinks(3)").
std::string GroupCommandName(GroupCommand command);
std::string GroupCommandLinkName(GroupCommand command);

/// Which controls of the settings page are enabled. A row stands for a control of the
/// catalogue together with its label. Disabling never changes a value: a disabled control
/// is saved, compared and written to mame.ini with what it holds.
struct ControlStates {
    ControlStates(); // everything enabled, as the page is made

    std::vector<bool> rows;
    std::array<bool, kGroupCommandCount> commands{};
    bool vectorFrames =
        true; // Frame(6) "Core Vector Options", Frame(26) "Vector Post-Processing Options"

    bool Row(std::string_view control) const;
    void SetRow(std::string_view control, bool enabled);
    bool Command(GroupCommand command) const { return commands[static_cast<std::size_t>(command)]; }
    void SetCommand(GroupCommand command, bool enabled) {
        commands[static_cast<std::size_t>(command)] = enabled;
    }

    bool operator==(const ControlStates&) const = default;
};

/// The settings page as its rules see it: the controls' values, which are enabled, and
/// whether a screen is still filling them (then the event rules rest).
struct SettingsPageState {
    OptionValues values;
    ControlStates states;
    bool loadingSettings = false;
    std::vector<UserMessage> errors; // failures of the rules, to be shown
};

// The dependency rules, one per group. Each is run by the events of the controls it depends
// on, unless a screen is loading. Only ControlStateVideo changes values: it unticks HLSL and
// GLSL where the video mode cannot use them.
void ControlStateThrottle(SettingsPageState& page);
void ControlStateAutoStretch(SettingsPageState& page);
void ControlStateSound(SettingsPageState& page);
void ControlStateJoystick(SettingsPageState& page);
void ControlStateInput(SettingsPageState& page);
void ControlStatePlugins(SettingsPageState& page);
void ControlStateSwitchRes(SettingsPageState& page);
void ControlStateVideo(SettingsPageState& page);
void ControlStateNumScreens(SettingsPageState& page);
void ControlStateBGFX(SettingsPageState& page);
void ControlStateOpenGL(SettingsPageState& page);
void ControlStateHLSL(SettingsPageState& page);
void ControlStateYIQ(SettingsPageState& page);
void ControlStateBloomLUT(SettingsPageState& page);
void ControlStateBloomUILUT(SettingsPageState& page);

/// After a screen has loaded its values: the rules in their fixed order, then the end of
/// loading. The stretch rule is not among them, and the screens rule rests while loading.
void ControlStateAll(SettingsPageState& page);

/// What a screen switches before its rules run: the vector blocks belong to vector machines
/// (and to other machines, which may be either), the UI mode key to other machines only.
void ApplyScreenBlocks(SettingsScreen screen, ControlStates& states);

/// The message of a rule that failed: "Error <number> (<description>) in procedure
/// ControlState<group> of Module modSettings."
UserMessage ControlStateError(std::string_view group, int number, std::string_view description,
                              int line);

} // namespace coinlight
