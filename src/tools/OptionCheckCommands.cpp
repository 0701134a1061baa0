#include <iostream>

#include "ToolCommand.h"
#include "core/DataLayout.h"
#include "core/FileTests.h"
#include "core/OptionsIni.h"
#include "settings/MameOptionsCapture.h"
#include "settings/OptionSupport.h"

namespace coinlight {

namespace {

/// check-options OPTIONS_INI: asks the MAME that options.ini names for its options, keeps
/// the answer as the window does, and prints the options Coinlight writes that it lacks.
int CheckOptions(const ToolArguments& arguments) {
    if (arguments.size() != 1) {
        return -1;
    }
    const std::filesystem::path optionsIni = arguments[0];
    Preferences preferences;
    if (!FileExists(optionsIni) ||
        ReadOptionsIni(optionsIni, preferences).status != OptionsReadStatus::Ok) {
        std::cerr << "coinlight-tool: cannot read the MAME of " << optionsIni.string() << '\n';
        return 1;
    }
    // The data folder holds the settings folder that holds options.ini.
    const DataLayout data{std::filesystem::absolute(optionsIni).parent_path().parent_path()};
    std::error_code ignored; // a folder that cannot be made fails with a message below
    std::filesystem::create_directories(data.Output(), ignored);
    MameOptionsCapture capture(preferences.searchPaths.mame, preferences.mame.executable, data);
    std::string error;
    const auto known = capture.Finish({}, &error);
    if (!known) {
        std::cerr << "coinlight-tool: " << error << '\n';
        return 1;
    }
    for (const std::string& option : UnknownOptionNames(*known)) {
        std::cout << option << '\n';
    }
    return 0;
}

} // namespace

std::vector<ToolCommand> OptionCheckCommands() {
    return {{"check-options", "check-options OPTIONS_INI", CheckOptions}};
}

} // namespace coinlight
