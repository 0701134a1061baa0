#include "CatalogueNeeds.h"

#include "catalogue/CatalogueFiles.h"
#include "core/FileTests.h"
#include "lists/ListLoader.h"

namespace coinlight {

namespace {

std::filesystem::path ListFile(const DataLayout& data, std::string_view info,
                               std::string_view favourites, bool showFavourites) {
    const auto favouritesFile = data.Output() / favourites;
    return showFavourites && FileExists(favouritesFile) ? favouritesFile : data.Output() / info;
}

} // namespace

CatalogueNeeds NeededNamesOfCatalogue(const Preferences& preferences, const DataLayout& data) {
    CatalogueNeeds needs;
    std::vector<ListLoadJob> jobs;
    ListLoadJob arcade;
    arcade.arcade = true;
    arcade.file = ListFile(data, kArcadeInfo, kArcadeFavs, preferences.view.favoriteArcade);
    arcade.options.filters = ListFilterSettings::ForArcade(preferences);
    jobs.push_back(arcade);
    if (!preferences.searchPaths.otherRoms.empty()) {
        ListLoadJob other;
        other.arcade = false;
        other.file = ListFile(data, kOtherInfo, kOtherFavs, preferences.view.favoriteOther);
        other.options.filters = ListFilterSettings::ForOther(preferences);
        jobs.push_back(other);
    }
    for (ListLoadJob& job : jobs) {
        // Whether a set is on disk does not change what the lists need.
        job.options.skipSearch = true;
        job.options.mergedRomSets = preferences.other.mergedRomSets;
        const LoadedList loaded = job.Run({});
        if (!loaded.error.empty()) {
            needs.error = loaded.error;
            return needs;
        }
        needs.names.AddRows({loaded.machines->rows.data(), loaded.machines->rows.size()});
    }
    return needs;
}

} // namespace coinlight
