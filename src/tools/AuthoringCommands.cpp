#include <iostream>

#include "CatverMaker.h"
#include "ClrMameFiles.h"
#include "ToolCommand.h"
#include "core/TextFile.h"
#include "core/ValueText.h"

namespace coinlight {

namespace {

int MakeCatverCommand(const ToolArguments& arguments) {
    if (arguments.size() != 4) {
        return -1;
    }
    const std::string version = MameVersionOfList(arguments[0]);
    if (version.empty()) {
        std::cerr << "coinlight-tool: " << arguments[0] << ": no MAME version at its head\n";
        return 1;
    }
    const auto made =
        MakeCatverFromFiles(arguments[0], arguments[1], arguments[2], version, DayText(Today()));
    if (const auto* error = std::get_if<std::string>(&made)) {
        std::cerr << "coinlight-tool: " << *error << '\n';
        return 1;
    }
    const auto& catver = std::get<MadeCatver>(made);
    std::string error;
    if (!WriteFileBytes(arguments[3], catver.text, &error)) {
        std::cerr << "coinlight-tool: " << error << '\n';
        return 1;
    }
    std::cout << "machines: " << catver.machines << "\nnew: " << catver.newMachines << '\n';
    return 0;
}

int ClrMameFilesCommand(const ToolArguments& arguments) {
    if (arguments.size() != 2) {
        return -1;
    }
    ClrMameRequest request;
    request.dataFolder = arguments[0];
    request.toolFolder = arguments[1];
    request.progress = [](const char* stage) {
        std::cerr << stage << '\n';
    };
    const ClrMameOutcome outcome = CreateClrMAMEFiles(request);
    for (const ClrMameMessage& message : outcome.messages) {
        std::cerr << message.text << '\n';
    }
    std::cout << "favourites: " << outcome.favourites
              << "\nsoftware lists: " << outcome.softwareLists
              << "\nmachines with samples: " << outcome.sampleMachines
              << "\nsettings.xml: " << (outcome.settingsReplaced ? "updated" : "left as it was")
              << '\n';
    return outcome.settingsReplaced ? 0 : 1;
}

} // namespace

std::vector<ToolCommand> AuthoringCommands() {
    return {
        {"make-catver", "make-catver MACHINE_XML LISTS_TXT OLD_CATVER OUT", MakeCatverCommand},
        {"clrmame-files", "clrmame-files DATA_FOLDER OUTDIR", ClrMameFilesCommand},
    };
}

} // namespace coinlight
