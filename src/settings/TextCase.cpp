#include "TextCase.h"

namespace coinlight {

namespace {

char Lower(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

char Upper(char c) {
    return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

} // namespace

std::string LowerCase(std::string_view text) {
    std::string lowered(text);
    for (char& c : lowered) {
        c = Lower(c);
    }
    return lowered;
}

std::string ProperCase(std::string_view text) {
    std::string proper(text);
    bool wordStart = true;
    for (char& c : proper) {
        c = wordStart ? Upper(c) : Lower(c);
        wordStart = IsBlank(c);
    }
    return proper;
}

} // namespace coinlight
