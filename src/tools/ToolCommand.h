#pragma once

#include <string>
#include <vector>

namespace coinlight {

using ToolArguments = std::vector<std::string>;

/// One command of coinlight-tool: its name, its usage line and what runs it. `run` gets
/// the arguments after the command's name and returns the process exit code.
struct ToolCommand {
    const char* name;
    const char* usage;
    int (*run)(const ToolArguments& arguments);
};

/// Prints the usage line to standard error and returns the exit code of a misuse.
int ToolUsageError(const ToolCommand& command);

std::vector<ToolCommand> IniCommands();
std::vector<ToolCommand> SettingsCommands();
std::vector<ToolCommand> CatalogueCommands();
std::vector<ToolCommand> ReportCommands();
std::vector<ToolCommand> InfoCommands();
std::vector<ToolCommand> RebuildCommands();
std::vector<ToolCommand> OtherLaunchCommands();
std::vector<ToolCommand> OptionCheckCommands();
std::vector<ToolCommand> AuthoringCommands();

} // namespace coinlight
