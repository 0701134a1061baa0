#include "TextCase.h"

namespace coinlight {

std::string ToLowerAscii(std::string_view text) {
    std::string lower(text);
    for (char& c : lower) {
        c = LowerAscii(c);
    }
    return lower;
}

std::string ToUpperAscii(std::string_view text) {
    std::string upper(text);
    for (char& c : upper) {
        c = UpperAscii(c);
    }
    return upper;
}

std::string ProperCase(std::string_view text) {
    std::string proper(text);
    bool wordStart = true;
    for (char& c : proper) {
        const bool separator =
            c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\v' || c == '\f' || c == '\0';
        if (!separator) {
            c = wordStart ? UpperAscii(c) : LowerAscii(c);
        }
        wordStart = separator;
    }
    return proper;
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) {
        return false;
    }
    if (a == b) {
        return true; // the usual case, and a fast one
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (LowerAscii(a[i]) != LowerAscii(b[i])) {
            return false;
        }
    }
    return true;
}

bool StartsWithIgnoringCase(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() &&
           EqualsIgnoringCase(text.substr(0, prefix.size()), prefix);
}

} // namespace coinlight
