// The unneeded file search over ROM folders holding 40,000 files, against the floor of
// listing those folders once plus loading the lists.
//
// usage: unneeded_files_bench CATALOGUE_OUTPUT_DIR
// The folder is what `coinlight-tool catalogue` writes for MAME's -listxml output. The ROM
// folders are made in a temporary folder: empty files named after the catalogue's
// machines, a tenth of them in the wrong format and a few hundred the lists do not know.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "BenchSupport.h"
#include "CatalogueNames.h"
#include "ReportsBenchSupport.h"
#include "core/LineReader.h"
#include "lists/ListLoader.h"
#include "reports/UnneededFiles.h"

using namespace coinlight;

namespace {

constexpr std::size_t kFiles = 40000;

std::vector<LoadedList> LoadLists(const std::filesystem::path& output) {
    std::vector<LoadedList> lists;
    for (const bool arcade : {true, false}) {
        ListLoadJob job;
        job.arcade = arcade;
        job.file = output / (arcade ? "arcadeinfo.txt" : "otherinfo.txt");
        job.options.skipSearch = true;
        lists.push_back(job.Run({}));
    }
    return lists;
}

std::size_t ListFolders(const std::vector<std::string>& folders) {
    std::size_t bytes = 0;
    for (const auto& folder : folders) {
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            bytes += entry.path().filename().native().size();
        }
    }
    return bytes;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: unneeded_files_bench CATALOGUE_OUTPUT_DIR\n";
        return 2;
    }
    const std::filesystem::path output = argv[1];
    std::vector<std::string> names = bench::CatalogueShortNames(output / "arcadeinfo.txt");
    for (auto& name : bench::CatalogueShortNames(output / "otherinfo.txt")) {
        names.push_back(std::move(name));
    }
    const auto root = std::filesystem::temp_directory_path() / "coinlight-unneeded-bench";
    std::filesystem::remove_all(root);
    const std::vector<std::string> arcade = {(root / "arcade").string(), (root / "more").string()};
    const std::vector<std::string> other = {(root / "other").string()};
    for (const auto& folder : {arcade[0], arcade[1], other[0]}) {
        std::filesystem::create_directories(folder);
    }
    for (std::size_t i = 0; i < kFiles; ++i) {
        const std::string& folder = i % 4 == 3 ? other[0] : arcade[i % 2];
        std::string name =
            i < names.size() && i % 97 != 0 ? names[i] : "surplus" + std::to_string(i);
        name += i % 10 == 0 ? ".7z" : ".zip";
        std::ofstream(std::filesystem::path(folder) / name);
    }
    std::vector<std::string> all = arcade;
    all.push_back(other[0]);

    std::size_t entries = 0;
    const std::vector<LoadedList> lists = LoadLists(output);
    const auto listFolders = [&] {
        ListFolders(all);
    };
    const auto loadLists = [&] {
        LoadLists(output);
    };
    // The window's search: its lists are loaded already.
    const auto search = [&] {
        NeededNames needed;
        for (const auto& list : lists) {
            needed.AddRows({list.machines->rows.data(), list.machines->rows.size()});
        }
        entries = CompareWithLists(ScanRomFolders(arcade, other, SetFormat::Zip, {}), needed)
                      .entries.size();
    };
    std::printf("%zu files in %zu ROM folders; lists of %zu and %zu machines\n", kFiles, all.size(),
                lists[0].machines->rows.size(), lists[1].machines->rows.size());
    for (const bool cpu : {true, false}) {
        const auto best = cpu ? bench::BestCpuMilliseconds : bench::BestMilliseconds;
        const double listing = best(7, listFolders);
        const double loading = best(7, loadLists);
        const double searching = best(7, search);
        std::printf(cpu ? "  processor time of the thread (the measure on a busy machine):\n"
                        : "  wall clock:\n");
        bench::PrintFigure("listing the folders once", listing);
        bench::PrintFigure("loading the lists", loading);
        bench::PrintFigure("floor: listing plus loading", listing + loading);
        bench::PrintFigure("search (lists loaded, as in the window)", searching);
        bench::PrintFigure("loading plus search (coinlight-tool unneeded)", loading + searching);
        std::printf("  ratio %.2f (at most 3)\n", (loading + searching) / (listing + loading));
    }
    std::printf("  %zu surplus entries\n", entries);
    std::filesystem::remove_all(root);
    return 0;
}
