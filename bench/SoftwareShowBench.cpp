// Showing the software of a machine whose software file exists: reading the file into the
// list of the kind chosen, sorted, against the floor of reading that file line by line.
//
// usage: software_show_bench SOFTWARE_XML [LIST]
// The machine is one of LIST alone (cpc_flop, the largest list of MAME 0.251, by default);
// its file is made first from MAME's -listsoftware output.
#include <cstdio>

#include "SoftwareBenchSupport.h"
#include "catalogue/SoftwareCatalogue.h"
#include "lists/SoftwareRows.h"
#include "ui/software/SoftwareListModel.h"

using namespace coinlight;

namespace {

constexpr int kRounds = 40;

} // namespace

int main(int argc, char** argv) {
    if (argc < 2 || argc > 3) {
        std::fprintf(stderr, "usage: software_show_bench SOFTWARE_XML [LIST]\n");
        return 2;
    }
    const std::filesystem::path softwareXml = argv[1];
    const std::string list = argc == 3 ? argv[2] : "cpc_flop";
    const auto folder = std::filesystem::temp_directory_path() / "coinlight-software-show-bench";
    std::filesystem::create_directories(folder);
    const auto file = folder / "bench.txt";
    const SoftwareSources sources{softwareXml, folder / "softfilter.ini", {}};
    const SoftwareFileResult made = WriteSoftwareFile(sources, "bench", {list}, file);
    if (!made.outcome.messages.empty() || made.records == 0) {
        std::fprintf(stderr, "no software file made for list %s\n", list.c_str());
        return 1;
    }
    std::printf("software.xml: %.1f MB; list %s: %zu titles, software file %.2f MB\n",
                bench::Megabytes(softwareXml), list.c_str(), made.records, bench::Megabytes(file));

    std::size_t lines = 0;
    bench::Timing floor;
    bench::Timing showAll;
    bench::Timing showNone;
    int shown = 0;
    SoftwareListModel model;
    // Interleaved rounds, so that both sides meet the same state of the machine.
    for (int round = 0; round < kRounds; ++round) {
        floor.KeepBest(bench::Time([&] { lines = bench::ReadLines(file); }));
        showAll.KeepBest(bench::Time([&] {
            const SoftwareLoad load = LoadListsSoftware(file, SoftwareKind::Unavailable);
            model.Reset(load.rows, true);
            shown = model.rowCount();
        }));
        showNone.KeepBest(bench::Time([&] {
            const SoftwareLoad load = LoadListsSoftware(file, SoftwareKind::Available);
            model.Reset(load.rows, true);
        }));
    }
    std::printf("  %zu lines read; %d titles shown (none of them found on disk); best of %d\n",
                lines, shown, kRounds);
    bench::PrintTiming("floor: the software file read line by line", floor);
    bench::PrintTiming("shown: every title, sorted by description", showAll);
    bench::PrintTiming("shown: the available titles (none)", showNone);
    bench::PrintRatio("every title / floor", showAll, floor, 3);
    bench::PrintRatio("available titles / floor", showNone, floor, 3);
    std::filesystem::remove_all(folder);
    return 0;
}
