#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/TextCase.h"

namespace coinlight {

// The text functions of the classic run time that the catalogue's rules are written in.

/// The first character raised, the rest as it is ("partial" gives "Partial").
std::string CapitaliseFirst(std::string_view text);

/// Blanks (spaces only) removed at both ends, as the classic Trim does.
std::string_view TrimSpaces(std::string_view text);
/// Blanks removed at the start only.
std::string_view TrimLeadingSpaces(std::string_view text);

/// Every occurrence of `what`, left to right and not overlapping, replaced by `with`;
/// `ignoreCase` compares ASCII letters without case.
std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with,
                       bool ignoreCase = false);

/// The classic Split: an empty text has no pieces, "a,,b" has three.
std::vector<std::string> SplitPieces(std::string_view text, char separator);

inline bool Holds(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

/// The line with every TAB removed: a view of `line` when the TABs stand only in front,
/// which is how MAME indents, else a copy in `scratch`.
std::string_view WithoutTabs(std::string_view line, std::string& scratch);

} // namespace coinlight
