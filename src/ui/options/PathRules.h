#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "PathField.h"

namespace coinlight {

// The small rules every folder field shares. Paths keep their case throughout: Linux file
// names are case-sensitive, and a lowered path would name another folder.

inline constexpr const char* kOptionsTitle = "Options";
inline constexpr const char* kCoinlightTitle = "Coinlight";

/// No place for MAME or its folders: an empty text, the root alone, or a path that does not
/// start at the root (a relative path would depend on where Coinlight was started).
bool IsRootOrRelative(std::string_view path);

/// The single folders of a ';'-separated list, in order.
std::vector<std::string> SplitPaths(std::string_view paths);
std::string JoinPaths(const std::vector<std::string>& folders);

/// ";;" becomes ";" until none is left, and a separator at either end goes: an empty place
/// between separators names no folder.
std::string CollapseSeparators(std::string paths);

/// The caption of the folder browser for a field.
std::string FolderPrompt(const PathFieldInfo& info);

/// What a field holds after the user picked `choice` in the folder browser: appended behind
/// the folders already there for a multi-path field, in place of the text otherwise. A root
/// is refused with a message; the field then keeps only what a multi-path field had.
struct FolderChoice {
    std::string text;
    std::optional<std::string> refusal; // shown with the title "Coinlight"
};
FolderChoice ApplyFolderChoice(const PathFieldInfo& info, const std::string& currentText,
                               const std::string& choice);

/// The MAME executable's full path split at its last '/'.
struct ExecutablePath {
    std::string folder;
    std::string name;
};
std::optional<ExecutablePath> SplitExecutablePath(std::string_view path);

/// A regular file that someone may run.
bool IsExecutableFile(const std::filesystem::path& file);

} // namespace coinlight
