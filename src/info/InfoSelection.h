#pragma once

#include <string>

namespace coinlight {

/// What the window shows at the moment a source is clicked: the view, the selected machine
/// and, in the Other view, the selected software title. The searches take their keys from
/// it and nothing else, so the window and coinlight-tool ask exactly the same question.
struct InfoSelection {
    std::string listView;         // the name of the current view, as options.ini keeps it
    bool inOtherView = false;     // the Other view is active
    std::string arcadeMachine;    // the short name in the details strip (an arcade view)
    std::string otherMachine;     // the short name of the selected other machine
    std::string otherMachineText; // how the Other list shows that machine
    bool softwareCaption = false; // the settings panel names the machine's settings
    bool softwareSelected = false;
    bool softwareListEmpty = true;
    std::string softwareName;
    std::string softwareList;
    std::string softwareText; // how the software list shows the selected title
};

/// The lookup keys of one search, worked out from the view's name.
struct InfoKeys {
    std::string machine;
    std::string softwareName;
    std::string softwareList;
};

InfoKeys KeysOf(const InfoSelection& selection);

/// A software title takes part in the search: the Other view, a machine with settings
/// shown and a selected title.
bool SoftwareChosen(const InfoSelection& selection);

} // namespace coinlight
