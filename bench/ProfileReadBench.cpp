// How fast a loader can look up one key per machine in a players list as large as MAME's
// machine list. The floor is reading the same file once, line by line.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "BenchSupport.h"
#include "core/LineReader.h"
#include "core/ProfileFile.h"
#include "core/TextFile.h"

using namespace coinlight;

namespace {

/// Machine short names from MAME's -listxml output, or made-up ones without it.
std::vector<std::string> MachineNames(const char* machineXml) {
    std::vector<std::string> names;
    if (machineXml != nullptr) {
        LineReader reader(machineXml);
        std::string_view line;
        const std::string_view marker = "<machine name=\"";
        while (reader.Next(line)) {
            const std::size_t at = line.find(marker);
            if (at == std::string_view::npos) {
                continue;
            }
            const std::size_t begin = at + marker.size();
            names.emplace_back(line.substr(begin, line.find('"', begin) - begin));
        }
    }
    if (names.empty()) {
        for (int i = 0; i < 45000; ++i) {
            names.push_back("machine" + std::to_string(i));
        }
    }
    return names;
}

} // namespace

int main(int argc, char** argv) {
    const auto names = MachineNames(argc > 1 ? argv[1] : nullptr);
    const auto folder = std::filesystem::temp_directory_path() / "coinlight-profile-bench";
    std::filesystem::create_directories(folder);
    const auto file = folder / "nplayers.ini";
    std::vector<std::string> lines = {"[NPlayers]"};
    const char* kinds[] = {"1P", "2P alt", "2P sim", "4P sim", "???"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        lines.push_back(names[i] + "=" + kinds[i % 5]);
    }
    if (!WriteTextLines(file, lines)) {
        std::cerr << "cannot write " << file << '\n';
        return 1;
    }
    const auto bytes = std::filesystem::file_size(file);
    std::printf("nplayers.ini: %zu keys, %ju bytes (%s)\n", names.size(),
                static_cast<std::uintmax_t>(bytes), argc > 1 ? argv[1] : "made-up names");

    std::size_t sink = 0;
    const double floor = bench::BestMilliseconds(7, [&] {
        LineReader reader(file);
        std::string_view line;
        while (reader.Next(line)) {
            sink += line.size();
        }
    });
    const double getlineFloor = bench::BestMilliseconds(7, [&] {
        std::ifstream in(file);
        std::string line;
        while (std::getline(in, line)) {
            sink += line.size();
        }
    });
    const double parse = bench::BestMilliseconds(7, [&] {
        ForgetProfile(file);
        sink += LoadProfile(file)->LineCount();
    });
    // How a loader reads one key per machine: the file loaded (and parsed, when it changed)
    // once, every key read through the held document.
    const double bulkCold = bench::BestMilliseconds(7, [&] {
        ForgetProfile(file);
        const auto document = LoadProfile(file);
        for (const auto& name : names) {
            sink += ReadProfileValue(*document, "NPlayers", name, "").size();
        }
    });
    const double bulkWarm = bench::BestMilliseconds(7, [&] {
        const auto document = LoadProfile(file);
        for (const auto& name : names) {
            sink += ReadProfileValue(*document, "NPlayers", name, "").size();
        }
    });
    // Single reads look at the file on disk each time, so that no change is ever missed.
    const double single = bench::BestMilliseconds(3, [&] {
        for (const auto& name : names) {
            sink += ReadProfileValue(file, "NPlayers", name, "").size();
        }
    });

    bench::PrintFigure("floor: read the file once, line by line", floor);
    bench::PrintFigure("the same with std::getline", getlineFloor);
    bench::PrintFigure("load: parse and index the file", parse);
    bench::PrintFigure("all keys read, file parsed first", bulkCold);
    bench::PrintFigure("all keys read, file already parsed", bulkWarm);
    bench::PrintFigure("all keys read one by one from the path", single);
    std::printf("  parsed first / floor: %.1f (getline floor: %.1f)   one by one: %.0f ns a read\n",
                bulkCold / floor, bulkCold / getlineFloor,
                single * 1e6 / static_cast<double>(names.size()));
    std::filesystem::remove_all(folder);
    return sink == 42 ? 1 : 0;
}
