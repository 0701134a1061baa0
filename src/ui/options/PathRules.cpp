#include "PathRules.h"

namespace coinlight {

bool IsRootOrRelative(std::string_view path) {
    return path.empty() || path.front() != '/' || path.find_first_not_of('/') == path.npos;
}

std::vector<std::string> SplitPaths(std::string_view paths) {
    std::vector<std::string> folders;
    std::size_t begin = 0;
    for (;;) {
        const std::size_t end = paths.find(';', begin);
        folders.emplace_back(paths.substr(begin, end - begin));
        if (end == paths.npos) {
            return folders;
        }
        begin = end + 1;
    }
}

std::string JoinPaths(const std::vector<std::string>& folders) {
    std::string joined;
    for (const auto& folder : folders) {
        if (!joined.empty()) {
            joined += ';';
        }
        joined += folder;
    }
    return joined;
}

std::string CollapseSeparators(std::string paths) {
    for (std::size_t found = paths.find(";;"); found != paths.npos; found = paths.find(";;")) {
        paths.erase(found, 1);
    }
    if (!paths.empty() && paths.front() == ';') {
        paths.erase(0, 1);
    }
    if (!paths.empty() && paths.back() == ';') {
        paths.pop_back();
    }
    return paths;
}

std::string FolderPrompt(const PathFieldInfo& info) {
    std::string prompt = "Select your " + info.name + " folder.";
    if (info.multi) {
        prompt += "\nIf you have an existing path, it will be added.";
    }
    return prompt;
}

FolderChoice ApplyFolderChoice(const PathFieldInfo& info, const std::string& currentText,
                               const std::string& choice) {
    const std::string existing = info.multi ? currentText : std::string();
    if (IsRootOrRelative(choice)) {
        return {existing, info.name + " should not reside in the root.  Please select a folder."};
    }
    return {existing.empty() ? choice : existing + ";" + choice, std::nullopt};
}

std::optional<ExecutablePath> SplitExecutablePath(std::string_view path) {
    const std::size_t slash = path.rfind('/');
    if (slash == path.npos) {
        return std::nullopt;
    }
    return ExecutablePath{std::string(path.substr(0, slash)), std::string(path.substr(slash + 1))};
}

bool IsExecutableFile(const std::filesystem::path& file) {
    std::error_code error;
    const auto status = std::filesystem::status(file, error);
    if (error || !std::filesystem::is_regular_file(status)) {
        return false;
    }
    using std::filesystem::perms;
    return (status.permissions() & (perms::owner_exec | perms::group_exec | perms::others_exec)) !=
           perms::none;
}

} // namespace coinlight
