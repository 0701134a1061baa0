#include "InfoSelection.h"

namespace coinlight {

InfoKeys KeysOf(const InfoSelection& selection) {
    InfoKeys keys;
    const std::string& view = selection.listView;
    if (view == "All Arcade Machines" || view == "Available Arcade Machines" ||
        view == "Unavailable Arcade Machines") {
        keys.machine = selection.arcadeMachine;
    } else if (view == "Other Machines") {
        keys.machine = selection.otherMachine;
        if (selection.softwareCaption && selection.softwareSelected) {
            keys.softwareName = selection.softwareName;
            keys.softwareList = selection.softwareList;
        }
    }
    // Any other view keeps every key empty, so every search ends in its not-found text.
    return keys;
}

bool SoftwareChosen(const InfoSelection& selection) {
    return selection.inOtherView && selection.softwareCaption && selection.softwareSelected;
}

} // namespace coinlight
