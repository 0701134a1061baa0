#include "StartBoxes.h"

namespace coinlight {

StartBoxClick ClickStartBox(StartBoxes boxes, StartBox box, bool ticked) {
    switch (box) {
    case StartBox::AutoSave:
        boxes.autoSave = ticked;
        break;
    case StartBox::Record:
        boxes.record = ticked;
        boxes.playback = boxes.playback && !ticked;
        break;
    case StartBox::Playback:
        boxes.playback = ticked;
        boxes.record = boxes.record && !ticked;
        break;
    case StartBox::AutoRun:
        boxes.autoRun = ticked;
        return {boxes, false};
    }
    return {boxes, true};
}

StartBoxes AfterArcadeStart(StartBoxes boxes) {
    boxes.record = false;
    boxes.playback = false;
    return boxes;
}

} // namespace coinlight
