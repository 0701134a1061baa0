// How fast CreateSupportFiles turns MAME's -listxml output into the catalogue, against the
// floor of counting the machines with grep on the same file in the same run; its peak
// memory in a process of its own; and how fast the list loaders can read the result back.
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <variant>
#include <vector>

#include "BenchSupport.h"
#include "CatalogueBenchSupport.h"
#include "catalogue/CreateSupportFiles.h"
#include "catalogue/MakeLists.h"
#include "catalogue/QuotedRecordFile.h"
#include "core/CommandLine.h"
#include "core/TextFile.h"

extern char** environ;

using namespace coinlight;

namespace {

/// The peak resident memory of a child process, in kilobytes; -1 when it failed.
long ChildPeakKilobytes(std::vector<std::string> arguments) {
    std::vector<char*> argv;
    for (auto& argument : arguments) {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);
    posix_spawn_file_actions_t quiet;
    posix_spawn_file_actions_init(&quiet);
    posix_spawn_file_actions_addopen(&quiet, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    const int spawned = ::posix_spawn(&child, argv[0], &quiet, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&quiet);
    if (spawned != 0) {
        return -1;
    }
    int status = 0;
    rusage usage{};
    if (::wait4(child, &status, 0, &usage) != child || !WIFEXITED(status) ||
        WEXITSTATUS(status) != 0) {
        return -1;
    }
    return usage.ru_maxrss;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: catalogue_bench MACHINE_XML [LISTS_TXT]\n");
        return 2;
    }
    const std::filesystem::path machineXml = argv[1];
    const auto folder = std::filesystem::temp_directory_path() / "coinlight-catalogue-bench";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder / "output");
    std::filesystem::path lists = argc > 2 ? argv[2] : folder / "lists.txt";
    if (argc <= 2) {
        const auto made = MakeLists(machineXml);
        if (!std::holds_alternative<MadeLists>(made) ||
            !WriteFileBytes(lists, std::get<MadeLists>(made).text)) {
            std::fprintf(stderr, "cannot make lists.txt from %s\n", argv[1]);
            return 1;
        }
    }
    const auto bytes = std::filesystem::file_size(machineXml);
    std::printf("machine.xml: %s, %.1f MB\n", argv[1], static_cast<double>(bytes) / 1e6);

    const std::string grep = "grep -c '<machine' " + QuotePath(machineXml.string());
    CatalogueSources sources{machineXml, lists, std::nullopt, folder / "output"};
    CatalogueProgress quiet;
    SupportFilesResult result;
    long matches = 0;
    double floor = 1e300;
    double build = 1e300;
    // Interleaved, so that a busy machine slows both alike; the best round counts.
    for (int round = 0; round < 5; ++round) {
        floor = std::min(floor, bench::BestMilliseconds(1, [&] { matches = bench::Count(grep); }));
        build = std::min(build, bench::BestMilliseconds(
                                    1, [&] { result = CreateSupportFiles(sources, quiet); }));
    }
    if (!result.outcome.Succeeded()) {
        std::fprintf(stderr, "%s\n", result.outcome.messages[0].text.c_str());
        return 1;
    }
    const CatalogueCounts& counts = result.counts;
    std::printf("  arcadeinfo.txt %d, otherinfo.txt %d, unlisted %zu, biosfilter.txt %zu, "
                "crcinfo.txt %zu,\n  arcadebios.txt %zu lines, otherbios.txt %zu lines, "
                "bios.ini %zu keys, softfilter.ini %zu sections, device ROMs %zu\n",
                counts.arcade, counts.other, counts.unlisted, counts.biosSets, counts.crcRecords,
                counts.arcadeBiosLines, counts.otherBiosLines, counts.biosIniKeys,
                counts.softFilterSections, counts.deviceRoms);
    std::printf("  grep -c '<machine' counts %ld\n", matches);
    bench::PrintFigure("floor: grep -c '<machine' machine.xml", floor);
    bench::PrintFigure("CreateSupportFiles", build);
    std::printf("  CreateSupportFiles / grep: %.2f (limit 2.5)\n", build / floor);

    const long peak = ChildPeakKilobytes({COINLIGHT_TOOL, "catalogue", machineXml.string(),
                                          lists.string(), (folder / "output").string()});
    std::printf("  peak memory of coinlight-tool catalogue: %.1f MB (limit 64)\n",
                static_cast<double>(peak) / 1024.0);

    std::size_t records = 0;
    const double load = bench::BestMilliseconds(5, [&] {
        records = LoadMachineRecords(folder / "output" / "arcadeinfo.txt").records.size() +
                  LoadMachineRecords(folder / "output" / "otherinfo.txt").records.size();
    });
    std::printf("  %zu records read back:\n", records);
    bench::PrintFigure("LoadMachineRecords, both info files", load);
    std::filesystem::remove_all(folder);
    return 0;
}
