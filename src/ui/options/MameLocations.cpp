#include "MameLocations.h"

#include <algorithm>

#include "PathRules.h"

namespace coinlight {

MameLocations SystemMameLocations(const EnvironmentLookup& environment) {
    MameLocations locations;
    locations.home = environment("HOME").value_or("");
    locations.searchPath = environment("PATH").value_or("");
    return locations;
}

std::optional<std::filesystem::path> FindMameOnPath(const std::string& searchPath) {
    std::size_t begin = 0;
    while (begin <= searchPath.size()) {
        const std::size_t end = std::min(searchPath.find(':', begin), searchPath.size());
        const std::string folder = searchPath.substr(begin, end - begin);
        // An empty or relative entry means the current folder, which says nothing about
        // where MAME is installed.
        if (!IsRootOrRelative(folder) && IsExecutableFile(std::filesystem::path(folder) / "mame")) {
            return std::filesystem::path(folder) / "mame";
        }
        begin = end + 1;
    }
    return std::nullopt;
}

} // namespace coinlight
