// Showing the software of a machine whose software file must be made first, against
// CreateSoftwareFile alone for the same lists.
//
// usage: software_make_bench SOFTWARE_XML [LISTS]...
// LISTS are a machine's software lists as its row holds them, ";" between them; by default
// the largest list as a machine of its own, a console's two lists and the machine with the
// most titles of MAME 0.251.
#include <cstdio>

#include "SoftwareBenchSupport.h"
#include "catalogue/SoftwareCatalogue.h"
#include "lists/SoftwareFile.h"
#include "lists/SoftwareRows.h"
#include "ui/software/SoftwareListModel.h"

using namespace coinlight;

namespace {

constexpr int kRounds = 9;

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: software_make_bench SOFTWARE_XML [LISTS]...\n");
        return 2;
    }
    const std::filesystem::path softwareXml = std::filesystem::absolute(argv[1]);
    std::vector<std::string> cases(argv + 2, argv + argc);
    if (cases.empty()) {
        cases = {"cpc_flop", "a2600;a2600_cass", "cpc_cass;gx4000;cpc_flop"};
    }
    const auto folder = std::filesystem::temp_directory_path() / "coinlight-software-make-bench";
    std::filesystem::remove_all(folder);
    const DataLayout data{folder / "data"};
    std::filesystem::create_directories(data.Output());
    std::filesystem::create_symlink(softwareXml, data.Output() / "software.xml");
    const SoftwareSources sources{softwareXml, data.Output() / "softfilter.ini", {}};
    const auto plainFile = folder / "plain.txt";
    const auto shownFile = SoftwareFileOf(data, "bench");
    std::printf("software.xml: %.1f MB\n", bench::Megabytes(softwareXml));

    for (const auto& lists : cases) {
        bench::Timing make;
        bench::Timing show;
        SoftwareFileResult made;
        int shown = 0;
        SoftwareListModel model;
        for (int round = 0; round < kRounds; ++round) {
            std::filesystem::remove(plainFile);
            make.KeepBest(bench::Time([&] {
                made = WriteSoftwareFile(sources, "bench", SoftwareListsOf(lists), plainFile);
            }));
            std::filesystem::remove(shownFile);
            show.KeepBest(bench::Time([&] {
                PrepareSoftwareFile(data, {}, "bench", lists, {});
                const SoftwareLoad load = LoadListsSoftware(shownFile, SoftwareKind::Unavailable);
                model.Reset(load.rows, true);
                shown = model.rowCount();
            }));
        }
        std::printf("  lists %s: %zu titles, %d shown; best of %d\n", lists.c_str(), made.records,
                    shown, kRounds);
        bench::PrintTiming("floor: CreateSoftwareFile for those lists", make);
        bench::PrintTiming("made, read, sorted and shown", show);
        bench::PrintRatio("shown / CreateSoftwareFile", show, make, 1.5);
    }
    std::filesystem::remove_all(folder);
    return 0;
}
