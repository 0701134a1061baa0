#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "PathField.h"

namespace coinlight {

/// The verdict on one folder field, with what the user is told (each message titled
/// "Options") and what the field holds afterwards.
struct PathTest {
    bool failed = false; // the save must stop, with the focus on this field
    std::string value;   // the cleaned text, to be saved when nothing failed
    std::string text;    // what the text box shows afterwards
    std::vector<std::string> messages;
};

/// Checks a field as OK does: the trailing '/' goes, a required field must name a folder,
/// doubled separators of a multi-path field are cleaned, a single-path field with several
/// paths is pointed out, and every folder named must exist. A missing folder is taken out
/// of the text box so that the user sees what is left.
PathTest TestPaths(const PathFieldInfo& info, std::string_view text);

} // namespace coinlight
