// How fast CreateSoftwareFile extracts one software list from MAME's -listsoftware output,
// against the floor of counting the items with grep on the same file in the same run. The
// list is searched from the top, so the last list in the file is the slowest case.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>

#include "BenchSupport.h"
#include "CatalogueBenchSupport.h"
#include "core/LineReader.h"
#include "catalogue/SoftwareCatalogue.h"
#include "catalogue/XmlLineScanners.h"
#include "core/CommandLine.h"

using namespace coinlight;

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: catalogue_software_bench SOFTWARE_XML\n");
        return 2;
    }
    const std::filesystem::path softwareXml = argv[1];
    // The last list, and the one with most items.
    std::string last;
    std::map<std::string, std::size_t> items;
    {
        LineReader reader(softwareXml);
        std::string_view line;
        while (reader.Next(line)) {
            if (line.find("<softwarelist name=") != std::string_view::npos) {
                last = std::string(GetXMLAttribute(line, "name=").value);
            } else if (line.find("<software name=") != std::string_view::npos) {
                ++items[last];
            }
        }
    }
    std::string largest;
    for (const auto& [list, count] : items) {
        if (largest.empty() || count > items[largest]) {
            largest = list;
        }
    }
    std::printf("software.xml: %s, %.1f MB, %zu lists\n", argv[1],
                static_cast<double>(std::filesystem::file_size(softwareXml)) / 1e6, items.size());

    const auto folder = std::filesystem::temp_directory_path() / "coinlight-software-bench";
    std::filesystem::create_directories(folder);
    const SoftwareSources sources{softwareXml, folder / "softfilter.ini", {}};
    const std::string grep = "grep -c '<software ' " + QuotePath(softwareXml.string());
    for (const auto& list : {last, largest}) {
        double floor = 1e300;
        double make = 1e300;
        SoftwareFileResult result;
        long matches = 0;
        for (int round = 0; round < 5; ++round) {
            floor =
                std::min(floor, bench::BestMilliseconds(1, [&] { matches = bench::Count(grep); }));
            make = std::min(make, bench::BestMilliseconds(1, [&] {
                                result = WriteSoftwareFile(sources, "bench", {list},
                                                           folder / "bench.txt");
                            }));
        }
        std::printf("  list %s: %zu items in the file, %zu records written; grep counts %ld\n",
                    list.c_str(), items[list], result.records, matches);
        bench::PrintFigure("floor: grep -c '<software ' software.xml", floor);
        bench::PrintFigure("CreateSoftwareFile", make);
        std::printf("  CreateSoftwareFile / grep: %.2f (limit 2)\n", make / floor);
    }
    std::filesystem::remove_all(folder);
    return 0;
}
