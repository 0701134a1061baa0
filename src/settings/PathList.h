#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/UserMessage.h"

namespace coinlight {

/// The folders of a ";"-separated path list, and the warning to show when the list as a
/// whole is no usable path (empty, the root, or not absolute). The list is split even then.
struct PathList {
    std::vector<std::string> paths;
    std::optional<UserMessage> warning;
};

/// An empty text gives no folders at all; empty pieces between separators are kept.
PathList CreateMultiplePathArray(std::string_view path);

/// The form of a path that mame.ini can hold. Linux has no short names and MAME reads the
/// rest of an ini line as one value, blanks included, so the path comes back unchanged.
std::string ShortPath(std::string_view path);

} // namespace coinlight
