#pragma once

#include <string>
#include <string_view>

namespace coinlight {

/// Appends `text` (UTF-8) as the search compares it: lower case, and the Latin letters with
/// accents as their plain letters ("Pokémon" and "POKEMON" both give "pokemon", "ß" gives
/// "ss"). Combining accents are dropped; any other character passes as it is, and so do
/// bytes that are no UTF-8 at all.
void AppendFolded(std::string_view text, std::string& out);

inline std::string Folded(std::string_view text) {
    std::string out;
    AppendFolded(text, out);
    return out;
}

} // namespace coinlight
