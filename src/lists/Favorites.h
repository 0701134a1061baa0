#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "MachineRow.h"

namespace coinlight {

/// A message for the user, as the favourites routines word it.
struct FavoritesMessage {
    std::string title;
    std::string text;
    bool information = false; // with the information icon
};

/// The fields of a favourites line: quotes and commas between fields undone. Lines of
/// releases before the full record hold the short name alone.
std::vector<std::string> SplitFavoriteLine(std::string_view line);
std::string FavoriteShortName(const std::vector<std::string>& fields);

/// A line that names a machine: a record, or the name alone as old releases wrote it.
/// Anything else (a record cut short, binary noise) names nothing and is not kept when the
/// file is written again.
bool NamesAMachine(std::string_view line);

/// The catalogue line of a row: its 22 record fields quoted as the catalogue quotes them.
std::string RecordLineOf(const MachineRow& row);

/// "arcadefavs.txt" for the arcade views but the unavailable one, "otherfavs.txt" for the
/// Other Machines view; nothing where the favourites commands do nothing.
std::optional<std::string> FavoritesFileOfView(std::string_view view);

/// Which of Add and Remove the right-click menu offers: Remove while the view's list shows
/// the favourites, Add while it shows the full list, neither where favourites do nothing.
struct FavoritesMenuState {
    bool add = false;
    bool remove = false;
};
FavoritesMenuState FavoritesMenuOf(std::string_view view, bool favoriteArcade, bool favoriteOther);

struct PurgeOutcome {
    bool removedAny = false;
    bool nowEmpty = false; // the file is gone; its favourites mode must go off
    std::vector<FavoritesMessage> messages;
    std::string error; // set when a file could not be written; nothing was changed
};

/// Refreshes a favourites file from a new catalogue: each favourite still in `infoFile`
/// takes its new record, the others are appended to `changesFile`. `word` is "Arcade" or
/// "Other". The catalogue is read once, whatever the number of favourites.
PurgeOutcome PurgeFavorites(const std::filesystem::path& favoritesFile,
                            const std::filesystem::path& infoFile,
                            const std::filesystem::path& changesFile, std::string_view word);

/// True when a favourites file holds a line the list loader cannot read (an old name-only
/// line or noise): a purge turns it into records first.
bool FavoritesNeedPurge(const std::filesystem::path& favoritesFile);

/// Adds the row's record; nothing when it is on the list already (the message says so).
std::vector<FavoritesMessage> AddFavorite(const std::filesystem::path& favoritesFile,
                                          const MachineRow& row, std::string* error = nullptr);

struct RemoveOutcome {
    bool nowEmpty = false;
    std::vector<FavoritesMessage> messages;
    std::string error;
};

RemoveOutcome RemoveFavorite(const std::filesystem::path& favoritesFile,
                             std::string_view shortName);

/// The changes report of a family, for the text page; or, when it does not exist, the
/// message that says so.
struct FavoriteChangesReport {
    std::string caption; // "Favorite Arcade Machine Changes"
    std::string text;
    std::optional<FavoritesMessage> missing;
};
/// `fileName` is "arcadefavschanges.txt" or "otherfavschanges.txt", under `outputFolder`.
FavoriteChangesReport FavoriteChanges(const std::filesystem::path& outputFolder,
                                      std::string_view fileName);

} // namespace coinlight
