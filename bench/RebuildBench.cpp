// A new MAME, from the start of the rebuild to the filled lists: MAME's two lists made at
// once and the catalogue built while MAME writes, then both lists loaded and sorted. The
// floor is the slower of `mame -listxml -nodtd` and `mame -listsoftware -nodtd` run alone,
// each into a file, in the same run; the old way (one list after the other, then the
// catalogue) is timed beside it.
//
// usage: rebuild_bench [--rounds N] [MAME_EXECUTABLE]
// MAME_EXECUTABLE defaults to Debian's /usr/games/mame; lists.txt is the shipped one.
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <string>

#include <QCoreApplication>

#include "catalogue/CreateSupportFiles.h"
#include "catalogue/RebuildFromMame.h"
#include "catalogue/RunMAMEList.h"
#include "core/CommandLine.h"
#include "core/CommandRunner.h"
#include "lists/ListLoader.h"
#include "ui/MachineListModel.h"

using namespace coinlight;

namespace {

using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

[[noreturn]] void Fail(const std::string& what) {
    std::cerr << "rebuild_bench: " << what << '\n';
    std::exit(1);
}

/// One of MAME's lists alone, into a file, through the program's command runner.
double TimeAlone(const MameProgram& mame, const char* option, const std::filesystem::path& file) {
    CommandLine line(mame.folder, mame.executable);
    line.Word(option).Word("-nodtd").RedirectOutput(file);
    const auto start = Clock::now();
    const ExecResult run = ExecCmd(line.Text(), mame.folder, {});
    const double seconds = SecondsSince(start);
    if (run.outcome != ExecOutcome::Finished || run.exitStatus != 0) {
        Fail(std::string(option) + " failed");
    }
    return seconds;
}

/// A data folder with nothing in `output` and the shipped lists.txt in `support`.
DataLayout FreshDataFolder(const std::filesystem::path& work) {
    std::filesystem::remove_all(work);
    const DataLayout data{work / "Coinlight"};
    std::filesystem::create_directories(data.Output());
    std::filesystem::create_directories(data.Support());
    std::filesystem::copy_file(std::filesystem::path(COINLIGHT_SHIPPED_SUPPORT) / "lists.txt",
                               data.Support() / "lists.txt");
    return data;
}

/// Both lists loaded from the catalogue and sorted, as the window has them at the end of
/// its start; the number of rows.
std::size_t FillLists(const DataLayout& data) {
    std::size_t rows = 0;
    for (const bool arcade : {true, false}) {
        ListLoadJob job;
        job.arcade = arcade;
        job.file = data.Output() / (arcade ? "arcadeinfo.txt" : "otherinfo.txt");
        LoadedList loaded = job.Run({});
        if (!loaded.error.empty()) {
            Fail(loaded.error);
        }
        MachineListModel model(!arcade);
        model.Reset(loaded.machines, AllRows(*loaded.machines));
        model.Sort(ColMachine, false);
        rows += static_cast<std::size_t>(model.rowCount());
    }
    return rows;
}

void FailOn(const CatalogueOutcome& outcome) {
    if (!outcome.Succeeded()) {
        Fail(outcome.messages.empty() ? "the catalogue failed" : outcome.messages.front().text);
    }
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    int rounds = 1;
    std::filesystem::path executable = "/usr/games/mame";
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--rounds" && i + 1 < argc) {
            rounds = std::max(1, std::stoi(argv[++i]));
        } else if (!argument.starts_with("--")) {
            executable = argument;
        } else {
            std::cerr << "usage: rebuild_bench [--rounds N] [MAME_EXECUTABLE]\n";
            return 2;
        }
    }
    const MameProgram mame{executable.parent_path(), executable.filename().string()};
    const auto work = std::filesystem::temp_directory_path() / "coinlight-rebuild-bench";
    CatalogueProgress quiet;

    double bestRatio = 1e300;
    for (int round = 1; round <= rounds; ++round) {
        DataLayout data = FreshDataFolder(work);
        const double listxml = TimeAlone(mame, "-listxml", work / "machine-alone.xml");
        const double listsoftware = TimeAlone(mame, "-listsoftware", work / "software-alone.xml");
        const auto machineBytes = std::filesystem::file_size(work / "machine-alone.xml");
        const auto softwareBytes = std::filesystem::file_size(work / "software-alone.xml");

        auto start = Clock::now();
        const SupportFilesResult rebuilt = RebuildFromMame(mame, data, false, quiet);
        FailOn(rebuilt.outcome);
        const double rebuildOnly = SecondsSince(start);
        const std::size_t rows = FillLists(data);
        const double together = SecondsSince(start);

        data = FreshDataFolder(work);
        start = Clock::now();
        FailOn(RunMAMEList("listxml", mame, data, quiet));
        FailOn(RunMAMEList("listsoftware", mame, data, quiet));
        FailOn(CreateSupportFiles(CatalogueSourcesIn(data, false), quiet).outcome);
        FillLists(data);
        const double oneAfterAnother = SecondsSince(start);

        const double floor = std::max(listxml, listsoftware);
        bestRatio = std::min(bestRatio, together / floor);
        std::printf("round %d: machine.xml %ju bytes, software.xml %ju bytes, %d arcade + %d "
                    "other machines, %zu rows\n",
                    round, static_cast<std::uintmax_t>(machineBytes),
                    static_cast<std::uintmax_t>(softwareBytes), rebuilt.counts.arcade,
                    rebuilt.counts.other, rows);
        std::printf("  %-56s %8.2f s\n", "mame -listxml alone", listxml);
        std::printf("  %-56s %8.2f s\n", "mame -listsoftware alone", listsoftware);
        std::printf("  %-56s %8.2f s\n", "rebuild, both at once, catalogue as MAME writes",
                    rebuildOnly);
        std::printf("  %-56s %8.2f s  (%.2f x the slower alone)\n", "the same to filled lists",
                    together, together / floor);
        std::printf("  %-56s %8.2f s  (%.2f x the slower alone)\n",
                    "one after another, then the catalogue, to filled lists", oneAfterAnother,
                    oneAfterAnother / floor);
    }
    std::printf("best ratio %.2f: %s the 1.15 allowed\n", bestRatio,
                bestRatio <= 1.15 ? "within" : "OVER");
    std::filesystem::remove_all(work);
    return 0;
}
