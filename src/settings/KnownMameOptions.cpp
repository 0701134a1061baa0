#include "KnownMameOptions.h"

#include <algorithm>

#include "core/TextCase.h"
#include "core/TextFile.h"

namespace coinlight {

namespace {

// MAME's longest option name has some 30 characters; a longer word is no option.
constexpr std::size_t kLongestName = 64;

// MAME writes its option names in lower case; a line that starts with a capital is prose
// (an error message, a banner), not an option.
bool IsNameCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

/// The option a line names, or nothing for a heading, a comment, a blank line or garbage.
std::string_view NameOf(std::string_view line) {
    std::size_t at = 0;
    while (at < line.size() && IsBlank(line[at])) {
        ++at;
    }
    std::size_t end = at;
    while (end < line.size() && IsNameCharacter(line[end])) {
        ++end;
    }
    if (end == at || end - at > kLongestName || (end < line.size() && !IsBlank(line[end]))) {
        return {};
    }
    return line.substr(at, end - at);
}

} // namespace

std::optional<KnownMameOptions> KnownMameOptions::Parse(std::string_view showconfig) {
    KnownMameOptions known;
    while (!showconfig.empty()) {
        const std::size_t end = showconfig.find('\n');
        const std::string_view name = NameOf(showconfig.substr(0, end));
        if (!name.empty()) {
            known.m_names.push_back(ToLowerAscii(name));
        }
        showconfig =
            end == std::string_view::npos ? std::string_view() : showconfig.substr(end + 1);
    }
    if (known.m_names.empty()) {
        return std::nullopt;
    }
    std::sort(known.m_names.begin(), known.m_names.end());
    known.m_names.erase(std::unique(known.m_names.begin(), known.m_names.end()),
                        known.m_names.end());
    return known;
}

std::optional<KnownMameOptions> KnownMameOptions::Read(const std::filesystem::path& file) {
    const auto bytes = ReadFileBytes(file);
    if (!bytes) {
        return std::nullopt;
    }
    return Parse(*bytes);
}

bool KnownMameOptions::Knows(std::string_view option) const {
    return std::binary_search(m_names.begin(), m_names.end(), ToLowerAscii(option));
}

} // namespace coinlight
