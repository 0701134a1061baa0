#include "Favorites.h"

#include <algorithm>
#include <unordered_map>

#include "RecordScanner.h"
#include "ShortNameHash.h"
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

/// The first catalogue line of each name asked for, names compared without case.
using LinesByName =
    std::unordered_map<std::string, std::string_view, ShortNameHash, std::equal_to<>>;

void FindCatalogueLines(std::string_view catalogue, LinesByName& wanted) {
    RecordScanner scanner(catalogue);
    std::string_view line;
    RecordSpans spans;
    bool wellFormed = false;
    std::string key;
    while (scanner.Next(line, spans, wellFormed)) {
        if (!wellFormed) {
            continue;
        }
        key.assign(spans.Field(line, ColName));
        std::transform(key.begin(), key.end(), key.begin(), LowerAscii);
        const auto found = wanted.find(std::string_view(key));
        if (found != wanted.end() && found->second.data() == nullptr) {
            found->second = line;
        }
    }
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

PurgeOutcome PurgeFavorites(const std::filesystem::path& favoritesFile,
                            const std::filesystem::path& infoFile,
                            const std::filesystem::path& changesFile, std::string_view word) {
    PurgeOutcome outcome;
    if (!std::filesystem::exists(favoritesFile)) {
        return outcome;
    }
    std::vector<std::string> names;
    LinesByName wanted;
    for (const auto& line : FavoriteLines(favoritesFile)) {
        names.push_back(FavoriteShortName(SplitFavoriteLine(line)));
        wanted.emplace(ToLowerAscii(names.back()), std::string_view());
    }
    const std::string catalogue = ReadFileBytes(infoFile).value_or(std::string());
    FindCatalogueLines(catalogue, wanted);
    std::vector<std::string> kept;
    std::vector<std::string> removed;
    for (const auto& name : names) {
        const std::string_view line = wanted.find(ToLowerAscii(name))->second;
        if (line.data() != nullptr) {
            kept.emplace_back(line);
        } else {
            removed.push_back(name);
        }
    }
    if (!removed.empty()) {
        std::vector<std::string> changes =
            ReadTextLines(changesFile).value_or(std::vector<std::string>{});
        changes.insert(changes.end(), removed.begin(), removed.end());
        if (!WriteTextLines(changesFile, changes, &outcome.error)) {
            return outcome;
        }
        outcome.removedAny = true;
        outcome.messages.push_back(
            {"Verify Favorites",
             "At least one machine was removed from your favorites list because there were "
             "changes to it in this version of MAME.  You can see a list of the machines removed "
             "by selecting Favorite " +
                 std::string(word) + " Machine Changes from the Reports pull-down menu.",
             true});
    }
    if (!ReplaceOrRemove(favoritesFile, kept, outcome.error)) {
        return outcome;
    }
    if (kept.empty()) {
        outcome.nowEmpty = true;
        outcome.messages.push_back(
            {"Verify Favorites",
             "Your favorite " + std::string(word) +
                 " Machine list is now empty.  Coinlight will now load the full " +
                 std::string(word) + " Machine list.",
             false});
    }
    return outcome;
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
