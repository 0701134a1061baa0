#pragma once

#include <string>
#include <string_view>

namespace coinlight {

/// "Words capitalised": the first character of each word upper case, every other letter
/// lower case. Words are separated by blank, TAB, CR, LF, VT, FF or NUL, so
/// "blues brothers, THE (europe)" gives "Blues Brothers, The (europe)". Only ASCII letters
/// change; other bytes of UTF-8 text pass as they are.
std::string ProperCase(std::string_view text);

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

/// The whole text in upper or lower case (ASCII letters).
std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);

} // namespace coinlight
