// A dat file of dollar records as it may come, searched for a machine that stands alone on
// its $info line, one in a list, and one that is never there.
#include "FuzzInput.h"
#include "info/DollarRecordSearch.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    const std::string_view bytes = fuzz::AsText(data, size);
    const auto file = fuzz::ScratchFolder() / "command.dat";
    fuzz::WriteBytes(file, bytes);
    for (const char* machine : {"pacman", "fitfight", "zz_never_there"}) {
        InfoSelection selection;
        selection.listView = "All Arcade Machines";
        selection.arcadeMachine = machine;
        std::string panel;
        const auto error = SearchDollarRecords(file, selection, panel);
        if (!error && panel.empty()) {
            __builtin_trap(); // a search that ends well always says something
        }
    }
    std::string text(bytes);
    RepairDoubleDecoded(text);
    if (text.size() > bytes.size()) {
        __builtin_trap(); // the repairs only ever shorten
    }
    return 0;
}
