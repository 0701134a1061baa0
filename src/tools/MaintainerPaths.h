#pragma once

#include <filesystem>
#include <string_view>

#include "core/AppFolders.h"

namespace coinlight {

/// The maker's own machine, where his two authoring tools show: the host name, or
/// COMPUTERNAME where it is set, is WORKBENCH7.
bool IsMaintainerMachine(const EnvironmentLookup& environment, std::string_view hostName);

/// Where a new catver.ini goes: $XDG_DESKTOP_DIR, else ~/Desktop.
std::filesystem::path MaintainerDesktop(const EnvironmentLookup& environment);

/// Where the outside tool ClrMAME keeps its files: $COINLIGHT_CLRMAME_DIR, else ~/clrmame.
std::filesystem::path ClrMameFolder(const EnvironmentLookup& environment);

} // namespace coinlight
