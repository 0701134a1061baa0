#include "Favorites.h"

#include <unordered_map>

#include "core/AtomicFileWriter.h"
#include "core/TextCase.h"
#include "core/TextFile.h"

namespace coinlight {

namespace {

/// The lines of a file without empty ones; none when it cannot be read.
std::vector<std::string> RecordLines(const std::filesystem::path& file) {
    std::vector<std::string> lines;
    for (auto& line : ReadTextLines(file).value_or(std::vector<std::string>{})) {
        if (!line.empty()) {
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

std::string RecordLineOf(const MachineRow& row) {
    std::string line;
    for (int column = 0; column < kRecordFieldCount; ++column) {
        line += column == 0 ? "\"" : ",\"";
        line += row.Field(column);
        line += '"';
    }
    return line;
}

PurgeOutcome PurgeFavorites(const std::filesystem::path& favoritesFile,
                            const std::filesystem::path& infoFile,
                            const std::filesystem::path& changesFile, std::string_view word) {
    PurgeOutcome outcome;
    if (!std::filesystem::exists(favoritesFile)) {
        return outcome;
    }
    // One pass over the catalogue: the first line of each name, ignoring case.
    const std::vector<std::string> catalogue = RecordLines(infoFile);
    std::unordered_map<std::string, const std::string*> byName;
    for (const auto& line : catalogue) {
        byName.emplace(ToLowerAscii(FavoriteShortName(SplitFavoriteLine(line))), &line);
    }
    std::vector<std::string> kept;
    std::vector<std::string> removed;
    for (const auto& line : RecordLines(favoritesFile)) {
        const std::string name = FavoriteShortName(SplitFavoriteLine(line));
        const auto found = byName.find(ToLowerAscii(name));
        if (found != byName.end()) {
            kept.push_back(*found->second);
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

std::vector<FavoritesMessage> AddFavorite(const std::filesystem::path& favoritesFile,
                                          const MachineRow& row, std::string* error) {
    std::vector<std::string> lines = RecordLines(favoritesFile);
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
    for (auto& line : RecordLines(favoritesFile)) {
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

} // namespace coinlight
