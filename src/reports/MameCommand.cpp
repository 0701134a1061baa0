#include "MameCommand.h"

namespace coinlight {

MameCommand MameCommand::From(const Preferences& preferences) {
    return {preferences.searchPaths.mame, preferences.mame.executable, preferences.searchPaths.ini};
}

CommandLine MameCommand::Start() const {
    CommandLine line(folder, executable);
    line.Word("-inipath").Path(ini);
    return line;
}

} // namespace coinlight
