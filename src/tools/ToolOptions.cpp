#include "ToolOptions.h"

#include <iostream>

#include "core/FileTests.h"
#include "core/OptionsIni.h"

namespace coinlight {

int ToolFailure(const std::string& message) {
    std::cerr << "coinlight-tool: " << message << '\n';
    return 1;
}

std::optional<Preferences> ReadToolOptions(const std::filesystem::path& file) {
    if (!FileExists(file)) {
        ToolFailure("cannot read " + file.string());
        return std::nullopt;
    }
    Preferences preferences;
    const OptionsReadResult result = ReadOptionsIni(file, preferences);
    switch (result.status) {
    case OptionsReadStatus::Ok:
        return preferences;
    case OptionsReadStatus::VersionTooOld:
        ToolFailure(file.string() + " was written by an older release (" + result.detail + ")");
        return std::nullopt;
    case OptionsReadStatus::Problem:
        ToolFailure(file.string() + " holds a value that does not convert: " + result.detail);
        return std::nullopt;
    }
    return std::nullopt;
}

DataLayout DataFolderOf(const std::filesystem::path& optionsIni) {
    return {std::filesystem::absolute(optionsIni).parent_path().parent_path()};
}

} // namespace coinlight
