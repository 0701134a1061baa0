#pragma once

namespace coinlight {

/// The program's entry: refuses a second instance, runs the main window's load, then the
/// steps that follow it (Auto Run, the news, the scrolling line) and the event loop.
int SubMain(int argc, char** argv);

} // namespace coinlight
