// history.xml as it may come: one click for an arcade machine, and one in the Other view
// with a software title, so that both passes meet the damage.
#include "FuzzInput.h"
#include "info/HistorySearch.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    const auto file = fuzz::ScratchFolder() / "history.xml";
    fuzz::WriteBytes(file, fuzz::AsText(data, size));

    InfoSelection arcade;
    arcade.listView = "All Arcade Machines";
    arcade.arcadeMachine = "pacman";
    std::string panel;
    if (SearchHistory(file, arcade, panel) && !panel.empty()) {
        __builtin_trap(); // a failed search hands back nothing half done
    }

    InfoSelection other;
    other.listView = "Other Machines";
    other.inOtherView = true;
    other.otherMachine = "nes";
    other.otherMachineText = "Nintendo Entertainment System";
    other.softwareCaption = true;
    other.softwareSelected = true;
    other.softwareListEmpty = false;
    other.softwareName = "smb";
    other.softwareList = "nes";
    other.softwareText = "Super Mario Bros.";
    panel.clear();
    (void)SearchHistory(file, other, panel);
    return 0;
}
