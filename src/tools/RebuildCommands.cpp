#include <cstdlib>
#include <iostream>

#include <QGuiApplication>

#include "ToolCommand.h"
#include "core/DataLayout.h"
#include "core/FileTests.h"
#include "core/OptionsIni.h"
#include "settings/ComboChoices.h"
#include "settings/RebuildSettings.h"
#include "ui/settings/SystemComboSources.h"

namespace coinlight {

namespace {

int Fail(const std::string& message) {
    std::cerr << "coinlight-tool: " << message << '\n';
    return 1;
}

/// The drop-downs as the settings screens of this system have them: the folders of
/// options.ini, and the fonts and screens of the window system (none without a display).
ComboChoices DefineCombos(const Preferences& preferences) {
    const bool display = std::getenv("DISPLAY") != nullptr ||
                         std::getenv("WAYLAND_DISPLAY") != nullptr ||
                         std::getenv("QT_QPA_PLATFORM") != nullptr;
    if (!display) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    static int argc = 1;
    static char name[] = "coinlight-tool";
    static char* argv[] = {name, nullptr};
    const QGuiApplication application(argc, argv);
    ComboSources sources = PreferenceComboSources(preferences.searchPaths);
    AddSystemComboSources(sources);
    return ComboChoices(sources);
}

int RebuildSettingsCommand(const ToolArguments& arguments) {
    if (arguments.size() != 1) {
        return -1;
    }
    const DataLayout data{arguments[0]};
    // Without the folders of options.ini every effect, controller file and language would
    // look unknown and be reset: better not to start.
    if (!FileExists(data.OptionsIni())) {
        return Fail("cannot read " + data.OptionsIni().string());
    }
    Preferences preferences;
    const OptionsReadResult read = ReadOptionsIni(data.OptionsIni(), preferences);
    if (read.status == OptionsReadStatus::VersionTooOld) {
        return Fail(data.OptionsIni().string() + " was written by an older release (" +
                    read.detail + ")");
    }
    if (read.status != OptionsReadStatus::Ok) {
        return Fail(data.OptionsIni().string() +
                    " holds a value that does not convert: " + read.detail);
    }
    if (SettingsFiles(data).empty()) {
        std::cout << "There are no setting files.\n";
        return 0;
    }
    const RebuildOutcome outcome = RebuildSettings(data, DefineCombos(preferences));
    std::cout << outcome.text;
    if (!outcome.text.ends_with('\n')) {
        std::cout << '\n';
    }
    if (outcome.failure) {
        return Fail(outcome.failure->text);
    }
    return 0;
}

} // namespace

std::vector<ToolCommand> RebuildCommands() {
    return {
        {"rebuild-settings", "rebuild-settings DATA_FOLDER", RebuildSettingsCommand},
    };
}

} // namespace coinlight
