// The commands that open other screens or start the emulator.
#include "frmMain.h"

namespace coinlight {

void frmMain::Options() {}

void frmMain::PlayArcade() {}

void frmMain::PlayOther() {}

} // namespace coinlight
