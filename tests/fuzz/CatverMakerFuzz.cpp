// A machine list, a previous catver.ini and lists.txt (split at "\x1E") through the making of
// a new catver.ini, both in memory and from files.
#include "FuzzInput.h"
#include "catalogue/MachineLists.h"
#include "tools/CatverMaker.h"

namespace {

// Names come from single lines, so each machine gives exactly one line in each section.
void CheckShape(const coinlight::MadeCatver& made) {
    std::size_t lineEnds = 0;
    for (std::size_t at = made.text.find("\r\n"); at != std::string::npos;
         at = made.text.find("\r\n", at + 2)) {
        ++lineEnds;
    }
    if (made.newMachines > made.machines || lineEnds != 2 * made.machines + 5) {
        __builtin_trap();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    const auto [machines, rest] = fuzz::SplitInput(fuzz::AsText(data, size));
    const auto [previousText, listsText] = fuzz::SplitInput(rest);

    const ProfileDocument previous{std::string(previousText)};
    const auto lists = ParseListsText(listsText);
    CatverSources sources;
    sources.nextMachineLine = MachineLinesOf(machines);
    sources.otherList = std::holds_alternative<MachineLists>(lists)
                            ? &std::get<MachineLists>(lists).other
                            : nullptr;
    sources.previous = &previous;
    sources.mameVersion = "0.251";
    sources.today = "2024-01-01";
    CheckShape(MakeCatver(sources));

    const auto folder = fuzz::ScratchFolder();
    fuzz::WriteBytes(folder / "machine.xml", machines);
    fuzz::WriteBytes(folder / "catver.ini", previousText);
    fuzz::WriteBytes(folder / "lists.txt", listsText);
    const std::string version = MameVersionOfList(folder / "machine.xml");
    const auto made = MakeCatverFromFiles(folder / "machine.xml", folder / "lists.txt",
                                          folder / "catver.ini", version, "2024-01-01");
    if (const auto* catver = std::get_if<MadeCatver>(&made)) {
        CheckShape(*catver);
    } else if (std::get<std::string>(made).empty()) {
        __builtin_trap(); // a failure always says what it could not read
    }
    return 0;
}
