// A damaged favourites file, with the catalogue it is refreshed from after a record
// separator: the purge, adding, removing and the changes report.
#include "FuzzInput.h"
#include "core/TextFile.h"
#include "lists/Favorites.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    const auto [favourites, catalogue] = fuzz::SplitInput(fuzz::AsText(data, size));
    const auto folder = fuzz::ScratchFolder();
    const auto favouritesFile = folder / "arcadefavs.txt";
    const auto infoFile = folder / "arcadeinfo.txt";
    fuzz::WriteBytes(favouritesFile, favourites);
    fuzz::WriteBytes(infoFile, catalogue);

    (void)FavoritesNeedPurge(favouritesFile);
    const auto first = SplitFavoriteLine(catalogue.substr(0, catalogue.find('\n')));
    RecordSpans spans;
    const std::string line(catalogue.substr(0, catalogue.find('\n')));
    if (ParseRecordLine(line, spans)) {
        const MachineRow row(line, spans, {}, true);
        (void)AddFavorite(favouritesFile, row);
        (void)RemoveFavorite(favouritesFile, FavoriteShortName(first));
    }
    fuzz::WriteBytes(favouritesFile, favourites);
    const PurgeOutcome outcome =
        PurgeFavorites(favouritesFile, infoFile, folder / "arcadefavschanges.txt", "Arcade");
    // What the purge keeps are catalogue lines, whole.
    const auto catalogueLines = SplitLines(catalogue);
    for (const auto& kept : ReadTextLines(favouritesFile).value_or(std::vector<std::string>{})) {
        bool found = false;
        for (const auto& candidate : catalogueLines) {
            const std::string_view trimmed =
                std::string_view(candidate).substr(0, candidate.find_last_not_of('\r') + 1);
            found = found || trimmed == kept || candidate == kept;
        }
        if (!found) {
            __builtin_trap();
        }
    }
    if (outcome.nowEmpty && std::filesystem::exists(favouritesFile)) {
        __builtin_trap();
    }
    (void)FavoriteChanges(folder, "arcadefavschanges.txt");
    return 0;
}
