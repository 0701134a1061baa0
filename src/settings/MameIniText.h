#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace coinlight {

// The shape of mame.ini lines: a name, one TAB and the value. A value that is empty still
// gets its TAB; only a bare line is the name alone.

std::string IniLine(std::string_view name, std::string_view value);

/// A heading is an empty line, "#", its text and "#"; the heading that opens the file has no
/// empty line before it.
void AppendHeading(std::vector<std::string>& lines, std::string_view text, bool opensFile = false);

} // namespace coinlight
