#include "TextFunctions.h"

namespace coinlight {

namespace {

bool SameIgnoringCase(std::string_view a, std::string_view b) {
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (LowerAscii(a[i]) != LowerAscii(b[i])) {
            return false;
        }
    }
    return true;
}

} // namespace

std::string CapitaliseFirst(std::string_view text) {
    std::string result(text);
    if (!result.empty()) {
        result[0] = UpperAscii(result[0]);
    }
    return result;
}

std::string_view TrimLeadingSpaces(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

std::string_view TrimSpaces(std::string_view text) {
    text = TrimLeadingSpaces(text);
    const std::size_t last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with,
                       bool ignoreCase) {
    if (what.empty()) {
        return std::string(text);
    }
    std::string result;
    result.reserve(text.size());
    std::size_t at = 0;
    while (at < text.size()) {
        const std::string_view rest = text.substr(at);
        if (rest.size() >= what.size() &&
            (ignoreCase ? SameIgnoringCase(rest.substr(0, what.size()), what)
                        : rest.starts_with(what))) {
            result.append(with);
            at += what.size();
        } else {
            result.push_back(text[at]);
            ++at;
        }
    }
    return result;
}

std::vector<std::string> SplitPieces(std::string_view text, char separator) {
    std::vector<std::string> pieces;
    if (text.empty()) {
        return pieces;
    }
    for (std::size_t start = 0;;) {
        const std::size_t end = text.find(separator, start);
        pieces.emplace_back(text.substr(start, end - start));
        if (end == std::string_view::npos) {
            return pieces;
        }
        start = end + 1;
    }
}

std::string_view WithoutTabs(std::string_view line, std::string& scratch) {
    std::size_t start = 0;
    while (start < line.size() && line[start] == '\t') {
        ++start;
    }
    const std::string_view rest = line.substr(start);
    if (rest.find('\t') == std::string_view::npos) {
        return rest;
    }
    scratch.clear();
    for (const char c : rest) {
        if (c != '\t') {
            scratch.push_back(c);
        }
    }
    return scratch;
}

} // namespace coinlight
