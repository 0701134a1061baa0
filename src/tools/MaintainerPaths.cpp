#include "MaintainerPaths.h"

namespace coinlight {

namespace {

std::filesystem::path Home(const EnvironmentLookup& environment) {
    return environment("HOME").value_or(std::string());
}

std::filesystem::path FolderOr(const EnvironmentLookup& environment, const char* variable,
                               const char* besideHome) {
    if (auto set = environment(variable); set && !set->empty()) {
        return *set;
    }
    return Home(environment) / besideHome;
}

} // namespace

bool IsMaintainerMachine(const EnvironmentLookup& environment, std::string_view hostName) {
    const auto computer = environment("COMPUTERNAME");
    return (computer ? std::string_view(*computer) : hostName) == "WORKBENCH7";
}

std::filesystem::path MaintainerDesktop(const EnvironmentLookup& environment) {
    return FolderOr(environment, "XDG_DESKTOP_DIR", "Desktop");
}

std::filesystem::path ClrMameFolder(const EnvironmentLookup& environment) {
    return FolderOr(environment, "COINLIGHT_CLRMAME_DIR", "clrmame");
}

} // namespace coinlight
