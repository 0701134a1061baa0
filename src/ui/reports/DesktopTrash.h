#pragma once

#include <filesystem>
#include <system_error>

namespace coinlight {

/// Moves a file or folder to the desktop trash, from where the user can bring it back.
/// Where the system has no trash for it, it is deleted. The error says why neither worked.
std::error_code MoveToDesktopTrash(const std::filesystem::path& path);

} // namespace coinlight
