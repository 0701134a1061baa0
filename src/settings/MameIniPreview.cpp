#include "MameIniPreview.h"

#include "MameIniBase.h"
#include "core/FileTests.h"
#include "core/TextFile.h"

namespace coinlight {

std::size_t CountIniFiles(const std::filesystem::path& iniFolder) {
    std::size_t count = 0;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(iniFolder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored;
        if (entry->is_regular_file(ignored) &&
            MatchesWildcard("*.ini", entry->path().filename().string())) {
            ++count;
        }
    }
    return count;
}

std::string StrayIniText(std::size_t count) {
    return "There are " + std::to_string(count) +
           " .ini files.  Settings in other .ini files (such as vertical.ini) will override "
           "settings in the mame.ini.  You should remove any .ini files from your Ini folder.  "
           "Coinlight will handle the .ini file.";
}

std::optional<UserMessage> StrayIniWarning(const std::filesystem::path& iniFolder) {
    const std::size_t count = CountIniFiles(iniFolder);
    if (count < 2) {
        return std::nullopt;
    }
    UserMessage warning;
    warning.title = "Warning: Multiple Ini Files Found";
    warning.text = StrayIniText(count);
    warning.icon = MessageIcon::Warning;
    return warning;
}

MameIniPreview PreviewMameIni(const Preferences& preferences, std::string_view commandString) {
    const auto file = MameIniFile(preferences);
    const auto bytes = file.empty() ? std::nullopt : ReadFileBytes(file);
    const auto lines = SplitLines(bytes.value_or(""));

    std::string note;
    if (lines.size() < kProfiledMameIniLines) {
        note += "The mame.ini is incomplete because you have not made any option changes.  With "
                "the possible exception of Auto Save, Auto Run, Record & Playback, MAME defaults "
                "will be used.\n\n";
    }
    const std::size_t iniFiles = CountIniFiles(preferences.searchPaths.ini);
    if (iniFiles > 1) {
        note += StrayIniText(iniFiles) + "\n\n";
    }
    if (!commandString.empty()) {
        note += "The following other commands will run as command-line options and override "
                "settings in the ini(s): \n" +
                std::string(commandString) + "\n\n";
    }
    std::string text = std::move(note);
    for (const auto& line : lines) {
        text += line;
        text += '\n';
    }
    return {"MAME.Ini", std::move(text)};
}

} // namespace coinlight
