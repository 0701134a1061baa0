// Loading every machine list from a real catalogue, with the filters off and on, against
// the floor of reading the two catalogue files once line by line.
//
// usage: list_load_bench CATALOGUE_OUTPUT_DIR
// The folder is what `coinlight-tool catalogue` writes for MAME's -listxml output. The
// benchmark makes a ROM folder with a few thousand sets and a players list with a key per
// machine beside it, in a temporary folder.
#include <filesystem>
#include <fstream>
#include <iostream>

#include "BenchSupport.h"
#include "CatalogueNames.h"
#include "core/LineReader.h"
#include "core/ProfileFile.h"
#include "core/TextFile.h"
#include "lists/ListLoader.h"

using namespace coinlight;

namespace {

constexpr int kRomSets = 3000;

std::size_t ReadLines(const std::filesystem::path& file) {
    LineReader reader(file);
    std::string_view line;
    std::size_t bytes = 0;
    while (reader.Next(line)) {
        bytes += line.size();
    }
    return bytes;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: list_load_bench CATALOGUE_OUTPUT_DIR\n";
        return 2;
    }
    const std::filesystem::path output = argv[1];
    const auto arcade = output / "arcadeinfo.txt";
    const auto other = output / "otherinfo.txt";
    const auto work = std::filesystem::temp_directory_path() / "coinlight-list-bench";
    std::filesystem::remove_all(work);
    std::filesystem::create_directories(work / "roms");

    const auto names = bench::CatalogueShortNames(arcade);
    std::vector<std::string> players = {"[NPlayers]"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i < kRomSets) {
            std::ofstream(work / "roms" / (names[i] + ".zip"));
        }
        players.push_back(names[i] + "=" + (i % 2 == 0 ? "2P alt" : "1P"));
    }
    WriteTextLines(work / "nplayers.ini", players);
    std::printf("arcadeinfo.txt %ju bytes, otherinfo.txt %ju bytes, %zu arcade machines, "
                "%d ROM sets\n",
                static_cast<std::uintmax_t>(std::filesystem::file_size(arcade)),
                static_cast<std::uintmax_t>(std::filesystem::file_size(other)), names.size(),
                kRomSets);

    std::size_t sink = 0;
    const double floor =
        bench::BestMilliseconds(5, [&] { sink += ReadLines(arcade) + ReadLines(other); });
    const double getlineFloor = bench::BestMilliseconds(5, [&] {
        for (const auto& file : {arcade, other}) {
            std::ifstream in(file);
            std::string line;
            while (std::getline(in, line)) {
                sink += line.size();
            }
        }
    });

    Preferences none;
    Preferences filtered;
    filtered.other.hideArcadeClones = filtered.other.hideOtherClones = true;
    filtered.other.hideYear = true;
    filtered.other.year = "1995";
    filtered.other.hideChd = filtered.other.hideBootleg = true;
    filtered.biosFilter = {{"Neo-Geo MV-6F: neogeo", true}};
    filtered.categoryFilter = {{"Casino", true}};

    std::size_t shown = 0;
    const auto jobs = [&](const Preferences& preferences) {
        ListLoadJob arcadeJob;
        arcadeJob.file = arcade;
        arcadeJob.options.filters = ListFilterSettings::ForArcade(preferences);
        arcadeJob.options.nplayers = LoadProfile(work / "nplayers.ini");
        arcadeJob.romFolders = {(work / "roms").string()};
        ListLoadJob otherJob = arcadeJob;
        otherJob.arcade = false;
        otherJob.file = other;
        otherJob.options.filters = ListFilterSettings::ForOther(preferences);
        return std::pair{arcadeJob, otherJob};
    };
    const auto check = [&](const LoadedList& a, const LoadedList& o) {
        if (!a.error.empty() || !o.error.empty()) {
            std::cerr << a.error << o.error << '\n';
            std::exit(1);
        }
        shown = a.machines->rows.size() + o.machines->rows.size();
    };
    const auto oneByOne = [&](const Preferences& preferences) {
        const auto [arcadeJob, otherJob] = jobs(preferences);
        check(arcadeJob.Run({}), otherJob.Run({}));
    };
    const double off = bench::BestMilliseconds(5, [&] { oneByOne(none); });
    const std::size_t shownOff = shown;
    const double on = bench::BestMilliseconds(5, [&] { oneByOne(filtered); });
    const std::size_t shownOn = shown;

    bench::PrintFigure("floor: both files read once, line by line", floor);
    bench::PrintFigure("the same with std::getline", getlineFloor);
    const auto report = [&](const char* what, double milliseconds, std::size_t machines) {
        std::printf("  %-48s %10.2f ms  (%zu machines; %.2f x floor, %.2f x getline)\n", what,
                    milliseconds, machines, milliseconds / floor, milliseconds / getlineFloor);
    };
    report("both lists, filters off", off, shownOff);
    report("both lists, filters on", on, shownOn);
    std::filesystem::remove_all(work);
    return sink == 1 ? 1 : 0;
}
