#pragma once

#include <filesystem>
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

/// The catalogue line of a row: its 22 record fields quoted as the catalogue quotes them.
std::string RecordLineOf(const MachineRow& row);

struct PurgeOutcome {
    bool removedAny = false;
    bool nowEmpty = false; // the file is gone; its favourites mode must go off
    std::vector<FavoritesMessage> messages;
    std::string error; // set when a file could not be written; nothing was changed
};

/// Refreshes a favourites file from a new catalogue: each favourite still in `infoFile`
/// takes its new record, the others are appended to `changesFile`. `word` is "Arcade" or
/// "Other".
PurgeOutcome PurgeFavorites(const std::filesystem::path& favoritesFile,
                            const std::filesystem::path& infoFile,
                            const std::filesystem::path& changesFile, std::string_view word);

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

} // namespace coinlight
