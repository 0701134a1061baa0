// Refreshing 5,000 favourites from a new arcadeinfo.txt, against the floor of reading
// arcadeinfo.txt once line by line. The result is checked against the purge that reads the
// catalogue again for every favourite, on the first favourites.
//
// usage: purge_favorites_bench ARCADEINFO_TXT
// The file is what `coinlight-tool catalogue` writes for MAME's -listxml output. Every
// third machine becomes a favourite; one in ten is written as old releases wrote it (the
// name alone, in capitals) and one in fifty names a machine that no longer exists.
#include <cstdio>

#include "SoftwareBenchSupport.h"
#include "core/TextCase.h"
#include "core/TextFile.h"
#include "lists/Favorites.h"

using namespace coinlight;

namespace {

constexpr std::size_t kFavourites = 5000;
constexpr std::size_t kChecked = 60;
constexpr int kRounds = 40;

/// The purge as first described: the catalogue searched from the top for each favourite.
std::vector<std::string> PurgeByRereading(const std::vector<std::string>& favourites,
                                          const std::vector<std::string>& catalogue) {
    std::vector<std::string> kept;
    for (const auto& favourite : favourites) {
        const std::string name = ToLowerAscii(FavoriteShortName(SplitFavoriteLine(favourite)));
        for (const auto& line : catalogue) {
            if (ToLowerAscii(FavoriteShortName(SplitFavoriteLine(line))) == name) {
                kept.push_back(line);
                break;
            }
        }
    }
    return kept;
}

std::vector<std::string> Favourites(const std::vector<std::string>& catalogue) {
    std::vector<std::string> favourites;
    for (std::size_t at = 0; at < catalogue.size() && favourites.size() < kFavourites; at += 3) {
        const std::string name = FavoriteShortName(SplitFavoriteLine(catalogue[at]));
        if (favourites.size() % 50 == 49) {
            favourites.push_back("\"gone" + std::to_string(at) + "\"");
        } else if (favourites.size() % 10 == 9) {
            favourites.push_back("\"" + ToUpperAscii(name) + "\"");
        } else {
            favourites.push_back(catalogue[at]);
        }
    }
    return favourites;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: purge_favorites_bench ARCADEINFO_TXT\n");
        return 2;
    }
    const std::filesystem::path info = argv[1];
    const auto catalogue = ReadTextLines(info).value_or(std::vector<std::string>{});
    const std::vector<std::string> favourites = Favourites(catalogue);
    std::printf("arcadeinfo.txt: %.1f MB, %zu machines; %zu favourites\n", bench::Megabytes(info),
                catalogue.size(), favourites.size());

    const auto folder = std::filesystem::temp_directory_path() / "coinlight-purge-bench";
    std::filesystem::create_directories(folder);
    const auto favouritesFile = folder / "arcadefavs.txt";
    const auto changes = folder / "arcadefavschanges.txt";
    const auto prepare = [&](const std::vector<std::string>& lines) {
        WriteTextLines(favouritesFile, lines);
        std::filesystem::remove(changes);
    };
    bench::Timing floor;
    bench::Timing purge;
    std::size_t lines = 0;
    for (int round = 0; round < kRounds; ++round) {
        floor.KeepBest(bench::Time([&] { lines = bench::ReadLines(info); }));
        prepare(favourites);
        purge.KeepBest(
            bench::Time([&] { PurgeFavorites(favouritesFile, info, changes, "Arcade"); }));
    }
    const auto kept = ReadTextLines(favouritesFile).value_or(std::vector<std::string>{});
    const auto removed = ReadTextLines(changes).value_or(std::vector<std::string>{});
    std::printf("  %zu lines read; %zu favourites kept, %zu removed (best of %d rounds)\n", lines,
                kept.size(), removed.size(), kRounds);
    bench::PrintTiming("floor: arcadeinfo.txt read line by line", floor);
    bench::PrintTiming("PurgeFavorites", purge);
    bench::PrintRatio("PurgeFavorites / floor", purge, floor, 3);

    const std::vector<std::string> first(favourites.begin(),
                                         favourites.begin() + static_cast<long>(kChecked));
    prepare(first);
    PurgeFavorites(favouritesFile, info, changes, "Arcade");
    const bool same = ReadTextLines(favouritesFile) == PurgeByRereading(first, catalogue);
    std::printf("  the first %zu favourites as the rereading purge keeps them: %s\n", kChecked,
                same ? "same" : "DIFFERENT");
    std::filesystem::remove_all(folder);
    return same ? 0 : 1;
}
