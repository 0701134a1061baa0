#include "PathList.h"

#include <filesystem>

namespace coinlight {

namespace {

bool IsUsablePath(std::string_view path) {
    return !path.empty() && path != "/" && std::filesystem::path(path).is_absolute();
}

} // namespace

PathList CreateMultiplePathArray(std::string_view path) {
    PathList list;
    if (!IsUsablePath(path)) {
        UserMessage warning;
        warning.text = "Invalid path passed to CreateMultiplePathArray.\n" + std::string(path) +
                       "\nPlease check your paths.";
        warning.icon = MessageIcon::Information;
        list.warning = std::move(warning);
    }
    if (path.empty()) {
        return list;
    }
    std::size_t start = 0;
    for (;;) {
        const std::size_t separator = path.find(';', start);
        list.paths.emplace_back(path.substr(start, separator - start));
        if (separator == std::string_view::npos) {
            return list;
        }
        start = separator + 1;
    }
}

std::string ShortPath(std::string_view path) {
    return std::string(path);
}

} // namespace coinlight
