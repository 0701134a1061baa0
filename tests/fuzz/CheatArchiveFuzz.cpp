// cheat.7z as it may come: listed, then searched for a machine and a software title. The
// extraction must stay inside temp and leave nothing behind there.
#include "FuzzInput.h"
#include "info/CheatSearch.h"

namespace {

std::size_t FilesUnder(const std::filesystem::path& folder) {
    std::size_t count = 0;
    std::error_code ignored;
    for (std::filesystem::recursive_directory_iterator entry(folder, ignored), end; entry != end;
         entry.increment(ignored)) {
        ++count;
    }
    return count;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    const auto folder = fuzz::ScratchFolder();
    const auto archive = folder / "mame" / "cheat.7z";
    const auto temp = folder / "data" / "temp";
    fuzz::WriteBytes(archive, fuzz::AsText(data, size));
    std::filesystem::create_directories(temp);
    ArchiveLimits limits;
    limits.entryBytes = 1 << 20;
    limits.passedBytes = 8 << 20;
    limits.entryCount = 10000;
    (void)ListArchiveEntries(archive, limits);

    InfoSelection arcade;
    arcade.listView = "All Arcade Machines";
    arcade.arcadeMachine = "pacman";
    InfoSelection other;
    other.listView = "Other Machines";
    other.inOtherView = true;
    other.otherMachine = "nes";
    other.softwareCaption = true;
    other.softwareSelected = true;
    other.softwareListEmpty = false;
    other.softwareName = "smb";
    other.softwareText = "Super Mario Bros.";
    for (const InfoSelection& selection : {arcade, other}) {
        std::string panel;
        (void)SearchCheats(archive, temp, selection, panel, limits);
        // Only cheat.7z and the two folders may exist: nothing escaped, nothing stayed.
        if (FilesUnder(folder) != 4) {
            __builtin_trap();
        }
    }
    return 0;
}
