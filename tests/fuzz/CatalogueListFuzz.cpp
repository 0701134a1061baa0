// A damaged arcadeinfo.txt or otherinfo.txt loaded into the lists, with every filter on,
// and with a players list after a record separator.
#include "FuzzInput.h"
#include "lists/ListLoader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    const auto [catalogue, players] = fuzz::SplitInput(fuzz::AsText(data, size));
    const auto folder = fuzz::ScratchFolder();
    const auto file = folder / "arcadeinfo.txt";
    fuzz::WriteBytes(file, catalogue);
    for (bool arcade : {true, false}) {
        ListLoadJob job;
        job.arcade = arcade;
        job.file = file;
        ListFilterSettings& filters = job.options.filters;
        filters.hideClones = filters.hidePreliminary = filters.hideYear = true;
        filters.year = "1980";
        filters.biosSets = {"neogeo"};
        filters.categories = {"maze"};
        job.options.nplayers = std::make_shared<ProfileDocument>(std::string(players));
        const LoadedList loaded = job.Run({});
        if (loaded.error.empty() && loaded.machines == nullptr) {
            __builtin_trap(); // a load that did not fail has its rows
        }
    }
    return 0;
}
