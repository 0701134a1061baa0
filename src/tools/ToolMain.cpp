#include <iostream>

#include "ToolCommand.h"

namespace coinlight {

namespace {

std::vector<ToolCommand> AllCommands() {
    std::vector<ToolCommand> commands;
    for (auto group :
         {IniCommands, CatalogueCommands, SettingsCommands, RebuildCommands, InfoCommands,
          OtherLaunchCommands, ReportCommands, OptionCheckCommands, AuthoringCommands}) {
        for (const auto& command : group()) {
            commands.push_back(command);
        }
    }
    return commands;
}

int PrintUsage(const std::vector<ToolCommand>& commands) {
    std::cerr << "usage: coinlight-tool COMMAND ARGUMENTS...\ncommands:\n";
    for (const auto& command : commands) {
        std::cerr << "  " << command.usage << '\n';
    }
    return 2;
}

} // namespace

int ToolUsageError(const ToolCommand& command) {
    std::cerr << "usage: coinlight-tool " << command.usage << '\n';
    return 2;
}

} // namespace coinlight

int main(int argc, char** argv) {
    using namespace coinlight;
    const auto commands = AllCommands();
    if (argc < 2) {
        return PrintUsage(commands);
    }
    const std::string name = argv[1];
    for (const auto& command : commands) {
        if (name == command.name) {
            const int result = command.run(ToolArguments(argv + 2, argv + argc));
            return result < 0 ? ToolUsageError(command) : result;
        }
    }
    std::cerr << "coinlight-tool: unknown command '" << name << "'\n";
    return PrintUsage(commands);
}
