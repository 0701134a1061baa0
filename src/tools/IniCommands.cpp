#include <iostream>

#include "ToolCommand.h"
#include "core/ProfileFile.h"

namespace coinlight {

namespace {

int ReportWrite(bool ok, const std::string& error) {
    if (!ok) {
        std::cerr << "coinlight-tool: " << error << '\n';
        return 1;
    }
    return 0;
}

int IniRead(const ToolArguments& arguments) {
    std::cout << ReadProfileValue(arguments[0], arguments[1], arguments[2], arguments[3]) << '\n';
    return 0;
}

int IniWrite(const ToolArguments& arguments) {
    std::string error;
    const bool ok =
        WriteProfileValue(arguments[0], arguments[1], arguments[2], arguments[3], &error);
    return ReportWrite(ok, error);
}

int IniSpacing(const ToolArguments& arguments) {
    std::string error;
    return ReportWrite(INISpacing(arguments[0], &error), error);
}

template <int Count> int Exactly(const ToolArguments& arguments, int (*run)(const ToolArguments&)) {
    return arguments.size() == Count ? run(arguments) : -1;
}

} // namespace

std::vector<ToolCommand> IniCommands() {
    return {
        {"ini-read", "ini-read FILE SECTION KEY DEFAULT",
         [](const ToolArguments& a) {
             return Exactly<4>(a, IniRead);
         }},
        {"ini-write", "ini-write FILE SECTION KEY VALUE",
         [](const ToolArguments& a) {
             return Exactly<4>(a, IniWrite);
         }},
        {"ini-spacing", "ini-spacing FILE",
         [](const ToolArguments& a) {
             return Exactly<1>(a, IniSpacing);
         }},
    };
}

} // namespace coinlight
