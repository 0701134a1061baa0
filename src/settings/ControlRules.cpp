#include "ControlRules.h"

#include <climits>

#include "OptionCatalogue.h"
#include "ProfileLoad.h"

namespace coinlight {

namespace {

using enum GroupCommand;

bool Ticked(const SettingsPageState& page, std::string_view control) {
    return CheckNumber(page.values[RowOfControl(control)]).value_or(0) != 0;
}

const std::string& Text(const SettingsPageState& page, std::string_view control) {
    return page.values[RowOfControl(control)];
}

void Untick(SettingsPageState& page, std::string_view control) {
    page.values[RowOfControl(control)] = "0";
}

/// Every element of a control array, or those from `first` to `last`.
void SetFamily(ControlStates& states, std::string_view family, bool enabled, int first = 0,
               int last = INT_MAX) {
    const auto catalogue = OptionCatalogue();
    for (std::size_t row = 0; row < catalogue.size(); ++row) {
        const std::string_view control = catalogue[row].control;
        if (ControlFamily(control) != family) {
            continue;
        }
        const int index = ControlIndex(control).value_or(0);
        if (index >= first && index <= last) {
            states.rows[row] = enabled;
        }
    }
}

void SetRows(ControlStates& states, std::initializer_list<std::string_view> controls,
             bool enabled) {
    for (std::string_view control : controls) {
        states.SetRow(control, enabled);
    }
}

bool VideoIs(const SettingsPageState& page, std::initializer_list<std::string_view> modes) {
    const std::string& video = Text(page, "cboVideo");
    for (std::string_view mode : modes) {
        if (video == mode) {
            return true;
        }
    }
    return false;
}

void SetFullScreenTrio(ControlStates& states, bool enabled) {
    SetRows(states, {"cboFullScreenBrightness", "cboFullScreenContrast", "cboFullScreenGamma"},
            enabled);
}

void SetNTSCBlock(ControlStates& states, bool enabled) {
    states.SetRow("chkYIQ", enabled);
    SetFamily(states, "txtYIQ", enabled);
    states.SetCommand(YIQDefaults, enabled);
}

void SetVectorPostBlock(ControlStates& states, bool enabled) {
    SetFamily(states, "txtVectorPost", enabled);
    states.SetCommand(VectorPostDefaults, enabled);
}

void SetBloomBlock(ControlStates& states, bool enabled, int lastBox) {
    SetFamily(states, "txtBloomPost", enabled, 0, lastBox);
    SetRows(states, {"chkBloomLUT", "chkBloomUILUT"}, enabled);
    states.SetCommand(BloomPostDefaults, enabled);
}

} // namespace

GroupCommand SelectGLSL(int index) {
    return static_cast<GroupCommand>(static_cast<int>(SelectGLSL0) + index);
}

std::string GroupCommandName(GroupCommand command) {
    switch (command) {
    case SelectBGFX:
        return "cmdSelectBGFX";
    case SelectHLSL:
        return "cmdSelectHLSL";
    case HLSLDefaults:
        return "cmdHLSLDefaults";
    case YIQDefaults:
        return "cmdYIQDefaults";
    case VectorPostDefaults:
        return "cmdVectorPostDefaults";
    case BloomPostDefaults:
        return "cmdBloomPostDefaults";
    default:
        break;
    }
    return "cmdSelectGLSL(" +
           std::to_string(static_cast<int>(command) - static_cast<int>(SelectGLSL0)) + ")";
}

std::string GroupCommandLinkName(GroupCommand command) {
    switch (command) {
    case SelectBGFX:
        return "lblBLinks(24)";
    case SelectHLSL:
        return "lblBLinks(19)";
    case HLSLDefaults:
        return "lblBLinks(20)";
    case YIQDefaults:
        return "lblBLinks(21)";
    case VectorPostDefaults:
        return "lblBLinks(22)";
    case BloomPostDefaults:
        return "lblBLinks(23)";
    default:
        break;
    }
    return "lblGLSLBLinks(" +
           std::to_string(static_cast<int>(command) - static_cast<int>(SelectGLSL0)) + ")";
}

ControlStates::ControlStates() : rows(OptionCatalogue().size(), true) {
    commands.fill(true);
}

bool ControlStates::Row(std::string_view control) const {
    return rows[RowOfControl(control)];
}

void ControlStates::SetRow(std::string_view control, bool enabled) {
    rows[RowOfControl(control)] = enabled;
}

void ControlStateThrottle(SettingsPageState& page) {
    page.states.SetRow("chkSleep", Ticked(page, "chkThrottle"));
}

void ControlStateAutoStretch(SettingsPageState& page) {
    SetRows(page.states, {"chkUnevenStretchX", "chkUnevenStretchY"},
            !Ticked(page, "chkAutoStretchXY"));
}

void ControlStateSound(SettingsPageState& page) {
    ControlStates& states = page.states;
    if (Text(page, "cboSound") == "None") {
        SetRows(states, {"cboAudioLat", "cboVolume", "cboSampleRate", "chkSamples"}, false);
        return;
    }
    SetRows(states, {"cboAudioLat", "cboVolume", "chkSamples"}, true);
    states.SetRow("cboSampleRate", Ticked(page, "chkSamples"));
}

void ControlStateJoystick(SettingsPageState& page) {
    SetRows(page.states, {"cboDeadzone", "cboSaturation", "cboThreshold"},
            Ticked(page, "chkJoystick"));
}

void ControlStateInput(SettingsPageState& page) {
    // The mouse box is looked at as well, but decides nothing.
    page.states.SetRow("chkDualLightgun", Ticked(page, "chkLightgun"));
}

void ControlStatePlugins(SettingsPageState& page) {
    SetRows(page.states, {"txtPluginEnable", "txtPluginDisable"}, Ticked(page, "chkPlugins"));
}

void ControlStateSwitchRes(SettingsPageState& page) {
    page.states.SetRow("chkSwitchRes", !Ticked(page, "chkWindow") && !VideoIs(page, {"GDI"}));
}

void ControlStateVideo(SettingsPageState& page) {
    ControlStates& states = page.states;
    const bool direct3D = VideoIs(page, {"D3D", "Auto"});
    if (VideoIs(page, {"GDI"})) {
        SetRows(
            states,
            {"chkWaitVSync", "chkSyncRefresh", "chkTripleBuffer", "chkFilter", "chkHLSL", "chkYIQ"},
            false);
        ControlStateSwitchRes(page);
        SetFullScreenTrio(states, false);
    } else if (VideoIs(page, {"BGFX"})) {
        SetRows(states, {"chkWaitVSync", "chkSyncRefresh"}, true);
        SetRows(states, {"chkTripleBuffer", "chkFilter", "chkHLSL", "chkYIQ"}, false);
        Untick(page, "chkHLSL");
        Untick(page, "chkGLSL");
        ControlStateSwitchRes(page);
    } else if (direct3D) {
        SetRows(states,
                {"chkWaitVSync", "chkSyncRefresh", "chkTripleBuffer", "chkFilter", "chkHLSL"},
                true);
        Untick(page, "chkGLSL");
        ControlStateSwitchRes(page);
    } else if (VideoIs(page, {"OpenGL", "Accel", "Soft"})) {
        SetRows(states, {"chkWaitVSync", "chkSyncRefresh", "chkFilter", "chkSwitchRes"}, true);
        SetRows(states, {"chkTripleBuffer", "chkHLSL", "chkYIQ"}, false);
        Untick(page, "chkHLSL");
        SetFullScreenTrio(states, true);
    }
    if (!page.loadingSettings) {
        ControlStateBGFX(page);
        ControlStateHLSL(page);
        ControlStateOpenGL(page);
        if (direct3D) {
            ControlStateYIQ(page);
            ControlStateBloomLUT(page);
            ControlStateBloomUILUT(page);
        }
    }
    // The window comes second, so it has the last word on what only full screen uses.
    if (Ticked(page, "chkWindow")) {
        states.SetRow("chkMaximize", true);
        SetRows(states, {"chkTripleBuffer", "chkSwitchRes"}, false);
        SetFullScreenTrio(states, false);
    } else {
        states.SetRow("chkMaximize", false);
        states.SetRow("chkTripleBuffer", direct3D);
        if (!VideoIs(page, {"GDI"})) {
            states.SetRow("chkSwitchRes", true);
            SetFullScreenTrio(states, true);
        }
    }
}

void ControlStateNumScreens(SettingsPageState& page) {
    if (page.loadingSettings) {
        return;
    }
    const auto screens = CheckNumber(Text(page, "cboNumScreens"));
    if (!screens) {
        page.errors.push_back(ControlStateError("NumScreens", 13, "Type mismatch", 1));
        return;
    }
    // One screen needs only the global row: the per-screen rows are for two and more.
    const long long enabledRows = *screens >= 2 ? *screens : 0;
    for (std::string_view family : {"cboScreen", "txtAspect", "txtResolution", "txtView"}) {
        for (int screen = 0; screen < 4; ++screen) {
            SetFamily(page.states, family, screen < enabledRows, screen, screen);
        }
    }
}

void ControlStateBGFX(SettingsPageState& page) {
    const bool bgfx = VideoIs(page, {"BGFX"});
    SetFamily(page.states, "txtBGFX", bgfx);
    SetFamily(page.states, "cboBGFX", bgfx);
    page.states.SetCommand(SelectBGFX, bgfx);
}

void ControlStateOpenGL(SettingsPageState& page) {
    ControlStates& states = page.states;
    const bool openGL = VideoIs(page, {"OpenGL"});
    SetRows(
        states,
        {"chkForcePow2Texture", "chkNoTextureRect", "chkVBO", "chkPBO", "chkGLSL", "chkGLSLFilter"},
        openGL);
    const bool shaders = openGL && Ticked(page, "chkGLSL");
    SetFamily(states, "txtGLSL", shaders);
    for (int index = 0; index < kGLSLShaderCount; ++index) {
        states.SetCommand(SelectGLSL(index), shaders);
    }
}

void ControlStateHLSL(SettingsPageState& page) {
    ControlStates& states = page.states;
    const bool on = VideoIs(page, {"D3D", "Auto"}) && Ticked(page, "chkHLSL");
    states.SetRow("chkHLSLOversampling", on);
    states.SetCommand(SelectHLSL, on);
    SetFamily(states, "txtHLSL", on);
    states.SetCommand(HLSLDefaults, on);
    if (!on) {
        SetNTSCBlock(states, false);
        SetVectorPostBlock(states, false);
        SetBloomBlock(states, false, 13);
        return;
    }
    states.SetRow("chkYIQ", true);
    if (Ticked(page, "chkYIQ")) {
        SetNTSCBlock(states, true);
    }
    ControlStateYIQ(page);
    if (states.vectorFrames) {
        SetVectorPostBlock(states, true);
    }
    SetBloomBlock(states, true, 11);
    ControlStateBloomLUT(page);
    ControlStateBloomUILUT(page);
}

void ControlStateYIQ(SettingsPageState& page) {
    if (!Ticked(page, "chkHLSL")) {
        return;
    }
    const bool on = Ticked(page, "chkYIQ");
    SetFamily(page.states, "txtYIQ", on);
    page.states.SetCommand(YIQDefaults, on);
}

void ControlStateBloomLUT(SettingsPageState& page) {
    if (Ticked(page, "chkHLSL")) {
        page.states.SetRow("txtBloomPost(12)", Ticked(page, "chkBloomLUT"));
    }
}

void ControlStateBloomUILUT(SettingsPageState& page) {
    if (Ticked(page, "chkHLSL")) {
        page.states.SetRow("txtBloomPost(13)", Ticked(page, "chkBloomUILUT"));
    }
}

void ControlStateAll(SettingsPageState& page) {
    ControlStateThrottle(page);
    ControlStateSound(page);
    ControlStateJoystick(page);
    ControlStateInput(page);
    ControlStatePlugins(page);
    ControlStateVideo(page);
    ControlStateNumScreens(page);
    ControlStateBGFX(page);
    ControlStateHLSL(page);
    ControlStateOpenGL(page);
    ControlStateYIQ(page);
    ControlStateBloomLUT(page);
    ControlStateBloomUILUT(page);
    page.loadingSettings = false;
}

void ApplyScreenBlocks(SettingsScreen screen, ControlStates& states) {
    const bool vector = screen == SettingsScreen::Vector || screen == SettingsScreen::Other;
    states.vectorFrames = vector;
    SetRows(states, {"cboBeamMin", "cboBeamMax", "cboBeamDotSize", "cboBeamWeight", "cboFlicker"},
            vector);
    SetVectorPostBlock(states, vector);
    states.SetRow("txtUIModeKey", screen == SettingsScreen::Other);
}

UserMessage ControlStateError(std::string_view group, int number, std::string_view description,
                              int line) {
    UserMessage message;
    message.icon = MessageIcon::Critical;
    message.text = "Error " + std::to_string(number) + " (" + std::string(description) +
                   ") in procedure ControlState" + std::string(group) +
                   " of Module modSettings.\nLine Number: " + std::to_string(line);
    return message;
}

} // namespace coinlight
