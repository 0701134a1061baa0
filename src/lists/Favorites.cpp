#include "Favorites.h"

#include <algorithm>

#include "RecordScanner.h"
#include "core/CommandLine.h"
#include "core/TextCase.h"
#include "core/TextFile.h"

namespace coinlight {

namespace {

constexpr std::string_view kAllArcade = "All Arcade Machines";
constexpr std::string_view kAvailableArcade = "Available Arcade Machines";
constexpr std::string_view kOtherMachines = "Other Machines";

/// The lines of a favourites file that name a machine; none when it cannot be read.
std::vector<std::string> FavoriteLines(const std::filesystem::path& file) {
    std::vector<std::string> lines;
    for (auto& line : ReadTextLines(file).value_or(std::vector<std::string>{})) {
        if (NamesAMachine(line)) {
            lines.push_back(std::move(line));
        }
    }
    return lines;
}

/// Writes the lines, or removes the file when there are none.
bool ReplaceOrRemove(const std::filesystem::path& file, const std::vector<std::string>& lines,
                     std::string& error) {
    if (lines.empty()) {
        std::error_code removeError;
        std::filesystem::remove(file, removeError);
        if (removeError) {
            error = "Cannot delete " + file.string() + ": " + removeError.message();
            return false;
        }
        return true;
    }
    return WriteTextLines(file, lines, &error);
}

std::string WordOfChangesFile(std::string_view fileName) {
    return fileName == "arcadefavschanges.txt" ? "Arcade" : "Other";
}

} // namespace

std::vector<std::string> SplitFavoriteLine(std::string_view line) {
    std::string joined;
    joined.reserve(line.size());
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line.substr(i, 3) == "\",\"") {
            joined.push_back('|');
            i += 2;
        } else if (line[i] != '"') {
            joined.push_back(line[i]);
        }
    }
    std::vector<std::string> fields;
    std::size_t start = 0;
    for (;;) {
        const std::size_t end = joined.find('|', start);
        fields.push_back(joined.substr(start, end - start));
        if (end == std::string::npos) {
            return fields;
        }
        start = end + 1;
    }
}

std::string FavoriteShortName(const std::vector<std::string>& fields) {
    if (fields.size() >= 21) {
        return fields[ColName];
    }
    return fields.empty() ? std::string() : fields[0];
}

bool NamesAMachine(std::string_view line) {
    const std::vector<std::string> fields = SplitFavoriteLine(line);
    // A few fields are a record cut short, not a line of an old release, which held the
    // name alone, as MAME had it then, capitals included.
    if (fields.size() > 1 && fields.size() < 21) {
        return false;
    }
    return IsShortName(ToLowerAscii(FavoriteShortName(fields)));
}

std::string RecordLineOf(const MachineRow& row) {
    std::string line;
    for (int column = 0; column < kRecordFieldCount; ++column) {
        line += column == 0 ? "\"" : ",\"";
        // A quote inside a field would end it early for every reader of the file.
        const std::string_view field = row.Field(column);
        std::copy_if(field.begin(), field.end(), std::back_inserter(line),
                     [](char c) { return c != '"'; });
        line += '"';
    }
    return line;
}

std::optional<std::string> FavoritesFileOfView(std::string_view view) {
    if (view == kAllArcade || view == kAvailableArcade) {
        return "arcadefavs.txt";
    }
    if (view == kOtherMachines) {
        return "otherfavs.txt";
    }
    return std::nullopt;
}

FavoritesMenuState FavoritesMenuOf(std::string_view view, bool favoriteArcade, bool favoriteOther) {
    const auto file = FavoritesFileOfView(view);
    if (!file) {
        return {};
    }
    const bool showingFavorites = view == kOtherMachines ? favoriteOther : favoriteArcade;
    return {!showingFavorites, showingFavorites};
}

bool FavoritesNeedPurge(const std::filesystem::path& favoritesFile) {
    const std::string text = ReadFileBytes(favoritesFile).value_or(std::string());
    RecordScanner scanner(text);
    std::string_view line;
    RecordSpans spans;
    bool wellFormed = false;
    while (scanner.Next(line, spans, wellFormed)) {
        if (!wellFormed && !line.empty() && line != "\r") {
            return true;
        }
    }
    return false;
}

std::vector<FavoritesMessage> AddFavorite(const std::filesystem::path& favoritesFile,
                                          const MachineRow& row, std::string* error) {
    std::vector<std::string> lines = FavoriteLines(favoritesFile);
    for (const auto& line : lines) {
        if (FavoriteShortName(SplitFavoriteLine(line)) == row.ShortName()) {
            return {{"Add To Favorites", "Machine already on list.", true}};
        }
    }
    lines.push_back(RecordLineOf(row));
    std::string problem;
    if (!WriteTextLines(favoritesFile, lines, &problem) && error != nullptr) {
        *error = problem;
    }
    return {};
}

RemoveOutcome RemoveFavorite(const std::filesystem::path& favoritesFile,
                             std::string_view shortName) {
    RemoveOutcome outcome;
    std::vector<std::string> kept;
    for (auto& line : FavoriteLines(favoritesFile)) {
        if (FavoriteShortName(SplitFavoriteLine(line)) != shortName) {
            kept.push_back(std::move(line));
        }
    }
    if (!ReplaceOrRemove(favoritesFile, kept, outcome.error)) {
        return outcome;
    }
    if (kept.empty()) {
        outcome.nowEmpty = true;
        outcome.messages.push_back(
            {"Remove Favorite",
             "Your Favorite list is empty.  Coinlight will now return to the full list.", false});
    }
    return outcome;
}

FavoriteChangesReport FavoriteChanges(const std::filesystem::path& outputFolder,
                                      std::string_view fileName) {
    const std::string word = WordOfChangesFile(fileName);
    FavoriteChangesReport report;
    report.caption = "Favorite " + word + " Machine Changes";
    const auto lines = ReadTextLines(outputFolder / fileName);
    if (!lines) {
        report.missing = FavoritesMessage{report.caption, "This report does not exist.", false};
        return report;
    }
    report.text = "These machines have been removed from your favorites list because something "
                  "about them has changed with this version of MAME or MAME no longer supports "
                  "them.  You can add them again if they are still supported.\n\nNOTE: This list "
                  "is cumulative.  If you want to reset it, go to the Maintenance screen and "
                  "delete the Favorite " +
                  word + " Machine Changes report.\n\n\n";
    for (const auto& line : *lines) {
        report.text += line + "\n";
    }
    return report;
}

} // namespace coinlight
