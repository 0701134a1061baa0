#include "AppFolders.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "AtomicFileWriter.h"
#include "TextFile.h"

namespace coinlight {

EnvironmentLookup ProcessEnvironment() {
    return [](const char* name) -> std::optional<std::string> {
        const char* value = std::getenv(name);
        if (value == nullptr) {
            return std::nullopt;
        }
        return std::string(value);
    };
}

std::filesystem::path ExecutableFolder() {
    std::error_code error;
    const auto executable = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error) {
        return std::filesystem::current_path(error);
    }
    return executable.parent_path();
}

bool IsIdeMode(const EnvironmentLookup& environment) {
    return environment("COINLIGHT_IDE").value_or("") == "1";
}

bool IsPortable(const std::filesystem::path& appFolder) {
    std::error_code error;
    return std::filesystem::exists(appFolder / "portable.txt", error);
}

std::filesystem::path ResolveDataFolder(const std::filesystem::path& appFolder, bool ideMode,
                                        const EnvironmentLookup& environment) {
    if (IsPortable(appFolder)) {
        return appFolder;
    }
    std::filesystem::path base;
    const auto dataHome = environment("XDG_DATA_HOME");
    if (dataHome && !dataHome->empty() && dataHome->front() == '/') {
        base = *dataHome;
    } else {
        base = std::filesystem::path(environment("HOME").value_or("/tmp")) / ".local" / "share";
    }
    return base / (ideMode ? "Coinlight - IDE" : "Coinlight");
}

std::optional<std::string> MakeFolderTree(const DataLayout& layout) {
    const std::array folders = {layout.root, layout.Settings(), layout.Output(), layout.Software(),
                                layout.Temp()};
    for (const auto& folder : folders) {
        std::error_code error;
        if (std::filesystem::is_directory(folder, error)) {
            // A write killed half-way (a crash, a power cut) leaves its temporary file.
            RemoveOrphanedTemporaries(folder);
            continue;
        }
        // The data folder's own parents (~/.local/share on a new account, or wherever
        // XDG_DATA_HOME points) may not exist yet.
        std::filesystem::create_directories(folder, error);
        if (error) {
            return "Cannot make the folder " + folder.string() + ": " + error.message();
        }
    }
    return std::nullopt;
}

std::optional<std::string> MigrateOldNames(const DataLayout& layout) {
    const std::array<std::pair<std::filesystem::path, std::filesystem::path>, 3> renames = {{
        {layout.Output() / "messfavs.txt", layout.Output() / "otherfavs.txt"},
        {layout.Output() / "messchanges.txt", layout.Output() / "otherfavschanges.txt"},
        {layout.Settings() / "mess.cfg", layout.Settings() / "other.cfg"},
    }};
    std::error_code error;
    for (const auto& [from, to] : renames) {
        if (!std::filesystem::exists(from, error)) {
            continue;
        }
        // rename(2) would silently replace the newer file: refuse instead.
        if (std::filesystem::exists(to, error)) {
            return "File already exists: " + to.string();
        }
        std::filesystem::rename(from, to, error);
        if (error) {
            return "Cannot rename " + from.string() + ": " + error.message();
        }
    }
    const auto obsolete = layout.Support() / "other.txt";
    if (std::filesystem::exists(obsolete, error)) {
        std::filesystem::remove(obsolete, error);
        if (error) {
            return "Cannot delete " + obsolete.string() + ": " + error.message();
        }
    }
    return std::nullopt;
}

std::filesystem::path FindDistributionSupport(const std::filesystem::path& appFolder) {
    std::error_code error;
    const auto installed = appFolder.parent_path() / "share" / "coinlight" / "support";
    if (std::filesystem::is_directory(installed, error)) {
        return installed;
    }
#ifdef COINLIGHT_SOURCE_SUPPORT_DIR
    const std::filesystem::path source = COINLIGHT_SOURCE_SUPPORT_DIR;
    if (std::filesystem::is_directory(source, error)) {
        return source;
    }
#endif
    return {};
}

int InstallSupportFiles(const std::filesystem::path& distribution, const DataLayout& layout) {
    std::error_code error;
    if (distribution.empty() || !std::filesystem::is_directory(distribution, error)) {
        return 0;
    }
    int copied = 0;
    for (const auto& entry : std::filesystem::directory_iterator(distribution, error)) {
        if (!entry.is_regular_file(error)) {
            continue;
        }
        const auto target = layout.Support() / entry.path().filename();
        if (std::filesystem::exists(target, error)) {
            continue;
        }
        std::filesystem::create_directories(layout.Support(), error);
        // Through a temporary file: a copy cut short must not pass for the user's own file.
        const auto bytes = ReadFileBytes(entry.path());
        if (bytes && WriteFileBytes(target, *bytes)) {
            ++copied;
        }
    }
    return copied;
}

} // namespace coinlight
