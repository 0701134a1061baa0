#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "core/DataLayout.h"
#include "core/Preferences.h"

namespace coinlight {

/// Prints "coinlight-tool: <message>" to standard error and returns the exit code 1.
int ToolFailure(const std::string& message);

/// options.ini read as the program reads it at start; nothing (and a message) when it
/// cannot be used.
std::optional<Preferences> ReadToolOptions(const std::filesystem::path& file);

/// The data folder holds the settings folder that holds options.ini.
DataLayout DataFolderOf(const std::filesystem::path& optionsIni);

} // namespace coinlight
