#pragma once

namespace coinlight {

/// The four check boxes beside the lists that shape the next start.
struct StartBoxes {
    bool autoSave = false; // MAME saves the machine's state on exit and restores it next time
    bool record = false;   // MAME records the inputs into <machine>.inp
    bool playback = false; // MAME plays <machine>.inp back
    bool autoRun = false;  // the machine selected at exit starts with Coinlight next time

    bool operator==(const StartBoxes&) const = default;
};

enum class StartBox { AutoSave, Record, Playback, AutoRun };

/// What a click on one of the boxes leads to.
struct StartBoxClick {
    StartBoxes boxes;
    /// The first three reach MAME through mame.ini, whose base text is written at once;
    /// Auto Run only reaches options.ini, at exit.
    bool rewriteMameIni = false;
};

/// Record and playback exclude each other: ticking one unticks the other.
StartBoxClick ClickStartBox(StartBoxes boxes, StartBox box, bool ticked);

/// A start of an arcade machine records or plays back once: both boxes are cleared after
/// it. Auto Save and Auto Run stay as they are.
StartBoxes AfterArcadeStart(StartBoxes boxes);

} // namespace coinlight
