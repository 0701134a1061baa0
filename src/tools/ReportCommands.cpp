#include <iostream>

#include "ToolCommand.h"
#include "core/FileTests.h"
#include "core/OptionsIni.h"
#include "reports/CatalogueNeeds.h"
#include "reports/UnneededFiles.h"
#include "reports/WhatRomsChanged.h"
#include "settings/PathList.h"

namespace coinlight {

namespace {

int CrcReport(const ToolArguments& arguments) {
    std::optional<std::filesystem::path> out;
    std::vector<std::string> files;
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        if (arguments[at] == "--out" && at + 1 < arguments.size() && !out) {
            out = arguments[++at];
        } else if (arguments[at].starts_with("--")) {
            return -1;
        } else {
            files.push_back(arguments[at]);
        }
    }
    if (files.size() != 2) {
        return -1;
    }
    const WhatRomsChangedRun run = CompareCrcInfoFiles(files[0], files[1], out);
    if (run.missing) {
        std::cerr << "coinlight-tool: " << run.missing->text << '\n';
        return 1;
    }
    std::cout << run.text;
    if (run.error) {
        std::cerr << "coinlight-tool: " << ComparisonErrorText(*run.error) << '\n';
        return 1;
    }
    return 0;
}

int Unneeded(const ToolArguments& arguments) {
    if (arguments.empty() || arguments.size() > 2 || arguments[0].starts_with("--")) {
        return -1;
    }
    SetFormat format = SetFormat::Zip;
    if (arguments.size() == 2) {
        if (arguments[1] == "--7z") {
            format = SetFormat::SevenZip;
        } else if (arguments[1] != "--zip") {
            return -1;
        }
    }
    const std::filesystem::path optionsIni = arguments[0];
    Preferences preferences;
    if (!FileExists(optionsIni) ||
        ReadOptionsIni(optionsIni, preferences).status != OptionsReadStatus::Ok) {
        std::cerr << "coinlight-tool: cannot use " << optionsIni.string() << '\n';
        return 1;
    }
    // The data folder holds the settings folder that holds options.ini.
    const DataLayout data{std::filesystem::absolute(optionsIni).parent_path().parent_path()};
    const CatalogueNeeds needs = NeededNamesOfCatalogue(preferences, data);
    if (needs.error) {
        std::cerr << "coinlight-tool: " << *needs.error << '\n';
        return 1;
    }
    const auto& paths = preferences.searchPaths;
    const auto other = paths.otherRoms.empty() ? std::vector<std::string>{}
                                               : CreateMultiplePathArray(paths.otherRoms).paths;
    const UnneededSearch search = CompareWithLists(
        ScanRomFolders(CreateMultiplePathArray(paths.arcadeRoms).paths, other, format, {}),
        needs.names);
    if (search.error) {
        std::cerr << "coinlight-tool: " << search.error->text << '\n';
        return 1;
    }
    for (const RomFolderFile& entry : search.entries) {
        std::cout << entry.Text() << '\n';
    }
    return 0;
}

} // namespace

std::vector<ToolCommand> ReportCommands() {
    return {
        {"crc-report", "crc-report NEW_CRCINFO LAST_CRCINFO [--out FILE]", CrcReport},
        {"unneeded", "unneeded OPTIONS_INI [--zip | --7z]", Unneeded},
    };
}

} // namespace coinlight
