#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "Preferences.h"

namespace coinlight {

inline constexpr const char* kOptionsProblemMessage =
    "Problem in options.ini file.  Coinlight will open Options so you can correct this.";
inline constexpr const char* kOptionsRecreateQuestion =
    "The options.ini file must be recreated for this release.  Do you want to continue?";

enum class OptionsReadStatus {
    Ok,
    VersionTooOld, // written by a release the file format has moved on from
    Problem,       // a value that does not convert, or a broken filter list
};

struct OptionsReadResult {
    OptionsReadStatus status = OptionsReadStatus::Ok;
    std::string detail; // the section and key that failed, for the curious
};

/// Reads the whole file into `preferences`: the version and its check, the two filter
/// lists, then the other sections. Absent keys take their defaults.
OptionsReadResult ReadOptionsIni(const std::filesystem::path& file, Preferences& preferences);

/// The filter list of a section: the `Total` lines that follow its header line in the file.
/// A short or broken list is a Problem, as in ReadOptionsIni.
OptionsReadResult ReadFilterList(const std::filesystem::path& file, const char* section,
                                 std::vector<FilterEntry>& entries);

/// Clears the section, writes one line per entry and `Total` last: the reader counts lines.
bool WriteFilterList(const std::filesystem::path& file, const char* section,
                     const std::vector<FilterEntry>& entries, std::string* error = nullptr);

/// Writes what the main window remembers between runs, in a fixed order, then spaces the file.
bool SaveViewState(const std::filesystem::path& file, const Preferences& preferences,
                   std::string* error = nullptr);

/// The way out of a broken file: it is deleted and everything read from it is forgotten,
/// so that the next load takes the first-run path.
void DiscardOptions(const std::filesystem::path& file, Preferences& preferences);

} // namespace coinlight
