#include "AboutExtras.h"

#include <algorithm>

#include "core/TextCase.h"

namespace coinlight {

namespace {

std::string ErrorText(const char* control, const char* folder) {
    std::string text = std::string("Error in ") + control + "_Click.";
    if (folder != nullptr) {
        text += std::string("\nThis might mean you do not have ") + folder + " folder.";
    }
    return text;
}

} // namespace

ExtrasSource SourceOfExtras(ExtrasKind kind, const Preferences& preferences,
                            const std::vector<std::string>& artworkFolders,
                            const std::filesystem::path& supportFolder) {
    const std::filesystem::path mame = preferences.searchPaths.mame;
    switch (kind) {
    case ExtrasKind::Artwork:
        return {artworkFolders.empty() ? std::filesystem::path()
                                       : std::filesystem::path(artworkFolders.front()),
                {"*.zip"},
                ErrorText("optArtwork", "an Artwork")};
    case ExtrasKind::Samples:
        return {preferences.searchPaths.samples,
                {"*.zip", "*.7z"},
                ErrorText("optSamples", "a Samples")};
    case ExtrasKind::Icons:
        return {mame / "Icons", {"*.ico"}, ErrorText("optIcons", "an Icons")};
    case ExtrasKind::Cheats:
        return {mame, {"cheat.7z"}, ErrorText("optCheats", nullptr)};
    case ExtrasKind::Miscellaneous:
        return {supportFolder,
                {"*.dat", "*.ini", "*.txt", "*.xml"},
                ErrorText("optOthersApp", nullptr)};
    }
    return {};
}

bool MatchesPattern(std::string_view name, std::string_view pattern) {
    // Classic wildcard matching with one remembered star: linear in practice.
    std::size_t n = 0;
    std::size_t p = 0;
    std::size_t star = std::string_view::npos;
    std::size_t resume = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            resume = n;
        } else if (p < pattern.size() && LowerAscii(pattern[p]) == LowerAscii(name[n])) {
            ++p;
            ++n;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            n = ++resume;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == '*') {
        ++p;
    }
    return p == pattern.size();
}

std::optional<std::vector<std::string>> ListExtras(const ExtrasSource& source) {
    std::error_code error;
    if (source.folder.empty() || !std::filesystem::is_directory(source.folder, error)) {
        return std::nullopt;
    }
    std::vector<std::string> files;
    for (std::filesystem::directory_iterator entry(source.folder, error), end;
         !error && entry != end; entry.increment(error)) {
        if (!entry->is_regular_file(error)) {
            continue;
        }
        const std::string name = entry->path().filename().string();
        if (std::any_of(
                source.patterns.begin(), source.patterns.end(),
                [&name](const std::string& pattern) { return MatchesPattern(name, pattern); })) {
            files.push_back(name);
        }
    }
    if (error) {
        return std::nullopt;
    }
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace coinlight
