// What ROMs Changed on a real crcinfo.txt against a crcinfolast.txt in which 2% of the
// machines were added, 2% removed and 2% changed, against the floor of reading both files
// once line by line.
//
// usage: what_roms_changed_bench CRCINFO_TXT
// The file is what `coinlight-tool catalogue` writes for MAME's -listxml output. The older
// generation is made from it in a temporary folder.
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <random>

#include "BenchSupport.h"
#include "ReportsBenchSupport.h"
#include "core/LineReader.h"
#include "core/TextFile.h"
#include "reports/WhatRomsChanged.h"

using namespace coinlight;

namespace {

std::size_t ReadLines(const std::filesystem::path& file) {
    LineReader reader(file);
    std::string_view line;
    std::size_t bytes = 0;
    while (reader.Next(line)) {
        bytes += line.size();
    }
    return bytes;
}

std::string Record(std::string_view name, std::string_view description, std::string_view crcs) {
    return "\"" + std::string(name) + "\",\"" + std::string(description) + "\",\"" +
           std::string(crcs) + "\"\r\n";
}

/// The generation before: of every 50 machines one is missing (added since), one has other
/// ROMs (changed since), and one machine that no longer exists stands beside it (removed).
std::string OlderGeneration(const CrcRecords& current) {
    std::string older;
    std::mt19937 random(2);
    for (std::size_t i = 0; i < current.entries.size(); ++i) {
        const CrcEntry& entry = current.entries[i];
        switch (i % 50) {
        case 7:
            break;
        case 23:
            older += Record(entry.name, entry.description, "old.bin=12345678;");
            break;
        case 41:
            older += Record(entry.name, entry.description, entry.crcs);
            older += Record(std::string(entry.name) + "_gone", "A machine MAME dropped",
                            "gone.bin=" + std::to_string(random()) + ";");
            break;
        default:
            older += Record(entry.name, entry.description, entry.crcs);
        }
    }
    return older;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: what_roms_changed_bench CRCINFO_TXT\n";
        return 2;
    }
    const std::filesystem::path crcinfo = argv[1];
    const auto bytes = ReadFileBytes(crcinfo);
    if (!bytes) {
        std::cerr << "cannot read " << crcinfo << '\n';
        return 1;
    }
    const CrcRecords current = ParseCrcRecords(*bytes);
    const auto folder = std::filesystem::temp_directory_path() / "coinlight-crc-bench";
    std::filesystem::create_directories(folder);
    const auto last = folder / "crcinfolast.txt";
    WriteFileBytes(last, OlderGeneration(current));

    WhatRomsChangedRun run;
    const auto readBoth = [&] {
        ReadLines(crcinfo);
        ReadLines(last);
    };
    const auto compare = [&] {
        run = CompareCrcInfoFiles(crcinfo, last, folder / "changedroms.txt");
    };
    const double floorWall = bench::BestMilliseconds(9, readBoth);
    const double compareWall = bench::BestMilliseconds(9, compare);
    const auto [floorCpu, compareCpu] = bench::BestCpuMillisecondsInTurn(25, readBoth, compare);
    const std::string olderText = *ReadFileBytes(last);
    const CrcRecords older = ParseCrcRecords(olderText);
    const CrcChanges changes = CompareCrcLists(current.entries, older.entries);
    std::printf("crcinfo.txt: %zu records, %ju bytes; crcinfolast.txt: %ju bytes\n",
                current.entries.size(), static_cast<std::uintmax_t>(bytes->size()),
                static_cast<std::uintmax_t>(std::filesystem::file_size(last)));
    std::printf("  added %zu, removed %zu, changed %zu\n", changes.added.size(),
                changes.removed.size(), changes.changed.size());
    std::printf("  processor time of the thread (the measure on a busy machine):\n");
    bench::PrintFigure("floor: both files read line by line", floorCpu);
    bench::PrintFigure("What ROMs Changed (read, compare, write)", compareCpu);
    std::printf("  ratio %.2f (at most 3)\n", compareCpu / floorCpu);
    std::printf("  wall clock:\n");
    bench::PrintFigure("floor: both files read line by line", floorWall);
    bench::PrintFigure("What ROMs Changed (read, compare, write)", compareWall);
    std::printf("  ratio %.2f\n", compareWall / floorWall);
    std::filesystem::remove_all(folder);
    return run.error ? 1 : 0;
}
