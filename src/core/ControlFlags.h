#pragma once

namespace coinlight {

/// The flags that long routines use to tell each other how things stand.
struct ControlFlags {
    bool formLoading = false;       // the main window's load runs: progress goes to the splash
    bool fatalErrorFlag = false;    // the user was told of a failure that ends the sequence
    bool closeRequested = false;    // the user chose not to go on: nothing is saved at exit
    bool listsRegenerating = false; // the catalogue is being rebuilt
    bool loadingSettings = false;   // a screen is filling its controls: change handlers rest
    bool emulatorRunning = false;   // MAME has the screen: the window stays hidden till it ends
};

/// What the start found out about the machine and its files.
struct StartFacts {
    bool ideMode = false;
    bool portable = false;
    bool hasCatver = false;
    bool hasNPlayers = false;
};

} // namespace coinlight
