#pragma once

#include <string>
#include <string_view>

namespace coinlight {

// Case rules for what MAME and the catalogue treat without case: short names, option
// values, category and BIOS texts. ASCII only; other bytes pass unchanged. Paths never go
// through these.

inline char LowerAscii(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c + 32) : c;
}
inline char UpperAscii(char c) {
    return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 32) : c;
}

std::string ToLowerAscii(std::string_view text);
std::string ToUpperAscii(std::string_view text);
/// "Words capitalised": the first character of each word upper case, every other letter
/// lower case. Words are separated by blank, TAB, CR, LF, VT, FF or NUL, so
/// "blues brothers, THE (europe)" gives "Blues Brothers, The (europe)".
std::string ProperCase(std::string_view text);
bool EqualsIgnoringCase(std::string_view a, std::string_view b);
bool StartsWithIgnoringCase(std::string_view text, std::string_view prefix);

} // namespace coinlight
