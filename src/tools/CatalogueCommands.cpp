#include <iostream>
#include <variant>

#include "ToolCommand.h"
#include "catalogue/AddCatver.h"
#include "catalogue/CatalogueOutcome.h"
#include "catalogue/CreateSupportFiles.h"
#include "catalogue/MakeLists.h"
#include "catalogue/SoftwareCatalogue.h"
#include "core/ProfileFile.h"
#include "core/TextFile.h"

namespace coinlight {

namespace {

/// The arguments split into the positional ones and the values of `option`, which may
/// stand anywhere and more than once.
struct SplitArguments {
    std::vector<std::string> positional;
    std::vector<std::string> values;
};

SplitArguments Split(const ToolArguments& arguments, std::string_view option) {
    SplitArguments split;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == option && i + 1 < arguments.size()) {
            split.values.push_back(arguments[++i]);
        } else {
            split.positional.push_back(arguments[i]);
        }
    }
    return split;
}

int ReportFailure(const CatalogueOutcome& outcome) {
    for (const auto& message : outcome.messages) {
        std::cerr << message.text << '\n';
    }
    return outcome.fatalError ? 1 : 0;
}

int MakeListsCommand(const ToolArguments& arguments) {
    if (arguments.size() != 2) {
        return -1;
    }
    const auto made = MakeLists(arguments[0]);
    if (const auto* error = std::get_if<RunTimeError>(&made)) {
        std::cerr << "coinlight-tool: " << arguments[0] << ": " << error->description << '\n';
        return 1;
    }
    const auto& lists = std::get<MadeLists>(made);
    std::string error;
    if (!WriteFileBytes(arguments[1], lists.text, &error)) {
        std::cerr << "coinlight-tool: " << error << '\n';
        return 1;
    }
    std::cout << "arcade: " << lists.arcade << "\nother: " << lists.other << '\n';
    return 0;
}

int CatalogueCommand(const ToolArguments& arguments) {
    const auto [positional, catver] = Split(arguments, "--catver");
    if (positional.size() != 3 || catver.size() > 1) {
        return -1;
    }
    CatalogueSources sources;
    if (!catver.empty()) {
        sources.catverIni = catver.front();
    }
    sources.machineXml = positional[0];
    sources.listsTxt = positional[1];
    sources.outputFolder = positional[2];
    CatalogueProgress quiet;
    const auto result = CreateSupportFiles(sources, quiet);
    if (!result.outcome.Succeeded()) {
        return ReportFailure(result.outcome);
    }
    const CatalogueCounts& counts = result.counts;
    std::cout << "arcadeinfo.txt: " << counts.arcade << " machines\n"
              << "otherinfo.txt: " << counts.other << " machines\n"
              << "unlisted.txt: " << counts.unlisted << " machines\n"
              << "biosfilter.txt: " << counts.biosSets << " BIOS sets\n"
              << "crcinfo.txt: " << counts.crcRecords << " machines\n"
              << "arcadebios.txt: " << counts.arcadeBiosLines << " lines\n"
              << "otherbios.txt: " << counts.otherBiosLines << " lines\n"
              << "bios.ini: " << counts.biosIniKeys << " machines\n"
              << "softfilter.ini: " << counts.softFilterSections << " machines\n"
              << "device machines with ROMs: " << counts.deviceRoms << '\n';
    return 0;
}

int SoftwareCommand(const ToolArguments& arguments) {
    const auto [positional, paths] = Split(arguments, "--swpath");
    if (positional.size() != 5) {
        return -1;
    }
    SoftwareSources sources;
    sources.softwarePaths.assign(paths.begin(), paths.end());
    sources.softwareXml = positional[0];
    sources.softFilterIni = positional[1];
    const std::string& machine = positional[2];
    const auto lists = SoftwareListsOf(positional[3]);
    const auto result = WriteSoftwareFile(sources, machine, lists, positional[4]);
    if (!result.outcome.messages.empty()) {
        ReportFailure(result.outcome);
        return 1;
    }
    std::cout << positional[4] << ": " << result.records << " software items\n";
    return 0;
}

int CatverCommand(const ToolArguments& arguments) {
    if (arguments.size() != 2) {
        return -1;
    }
    CatalogueProgress quiet;
    const auto error = MergeCategories(arguments[0], *LoadProfile(arguments[1]), quiet);
    if (error) {
        std::cerr << HandlerMessage("AddCatver", *error) << '\n';
        return 1;
    }
    return 0;
}

} // namespace

std::vector<ToolCommand> CatalogueCommands() {
    return {
        {"make-lists", "make-lists MACHINE_XML OUTFILE", MakeListsCommand},
        {"catalogue", "catalogue MACHINE_XML LISTS_TXT OUTDIR [--catver CATVER_INI]",
         CatalogueCommand},
        {"software", "software SOFTWARE_XML SOFTFILTER_INI MACHINE LISTS OUTFILE [--swpath DIR]...",
         SoftwareCommand},
        {"catver", "catver INFO_FILE CATVER_INI", CatverCommand},
    };
}

} // namespace coinlight
