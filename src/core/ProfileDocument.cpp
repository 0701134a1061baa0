#include "ProfileDocument.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace coinlight {

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

/// A hash that ignores letter case, eight bytes at a time. Setting bit 0x20 of every byte
/// folds upper-case letters onto lower-case ones; it also folds a few punctuation pairs,
/// which only costs the odd extra comparison.
std::uint64_t HashName(int section, std::string_view name) {
    constexpr std::uint64_t kFold = 0x2020202020202020ull;
    constexpr std::uint64_t kMultiplier = 0x9E3779B97F4A7C15ull;
    std::uint64_t hash = static_cast<std::uint64_t>(section + 1) * kMultiplier ^ name.size();
    const char* at = name.data();
    std::size_t left = name.size();
    while (left > 0) {
        std::uint64_t word = 0;
        const std::size_t take = left < 8 ? left : 8;
        std::memcpy(&word, at, take);
        hash = (hash ^ (word | kFold)) * kMultiplier;
        hash ^= hash >> 29;
        at += take;
        left -= take;
    }
    return hash;
}

} // namespace

std::string_view TrimBlanks(std::string_view text) {
    while (!text.empty() && IsBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

ProfileDocument::ProfileDocument(std::string bytes) : m_text(std::move(bytes)) {
    // Offsets are 32-bit: no profile comes near that, and anything larger is garbage.
    constexpr std::size_t kLargest = 0xFFFFFFF0u;
    if (m_text.size() > kLargest) {
        m_text.resize(kLargest);
    }
    ParseLines();
    BuildKeyIndex();
}

void ProfileDocument::ParseLines() {
    const std::string_view text(m_text);
    const auto offsetOf = [&](std::string_view part) {
        return static_cast<std::uint32_t>(part.data() - text.data());
    };
    std::size_t lineCount = 1;
    for (const char *at = text.data(), *end = text.data() + text.size();
         (at = static_cast<const char*>(
              std::memchr(at, '\n', static_cast<std::size_t>(end - at)))) != nullptr;
         ++at) {
        ++lineCount;
    }
    m_lines.reserve(lineCount);
    std::size_t start = 0;
    int section = -1;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        const std::size_t next = end == std::string_view::npos ? text.size() : end + 1;
        if (end == std::string_view::npos) {
            end = text.size();
        }
        if (end > start && text[end - 1] == '\r') {
            --end;
        }
        Line line;
        line.begin = static_cast<std::uint32_t>(start);
        line.length = static_cast<std::uint32_t>(end - start);
        const std::string_view content = TrimBlanks(text.substr(start, end - start));
        if (content.empty()) {
            line.kind = Kind::Blank;
        } else if (content.front() == '[') {
            std::string_view name = content.substr(1);
            name = name.substr(0, name.find(']'));
            name = TrimBlanks(name);
            line.kind = Kind::Header;
            line.nameBegin = offsetOf(name);
            line.nameLength = static_cast<std::uint32_t>(name.size());
            if (!m_sections.empty()) {
                m_sections.back().endLine = static_cast<std::uint32_t>(m_lines.size());
            }
            Section info;
            info.headerLine = static_cast<std::uint32_t>(m_lines.size());
            info.firstOfName = FindSection(name) < 0;
            m_sections.push_back(info);
            section = static_cast<int>(m_sections.size()) - 1;
        } else if (content.front() == ';') {
            line.kind = Kind::Comment;
        } else {
            const std::size_t equals = content.find('=');
            const std::string_view name = TrimBlanks(content.substr(0, equals));
            line.nameBegin = offsetOf(name);
            line.nameLength = static_cast<std::uint32_t>(name.size());
            if (equals == std::string_view::npos) {
                line.kind = Kind::KeyWithoutValue;
            } else {
                const std::string_view value = TrimBlanks(content.substr(equals + 1));
                line.kind = Kind::Key;
                line.valueBegin = value.empty() ? 0 : offsetOf(value);
                line.valueLength = static_cast<std::uint32_t>(value.size());
            }
        }
        line.section = section;
        m_lines.push_back(line);
        start = next;
    }
    if (!m_sections.empty()) {
        m_sections.back().endLine = static_cast<std::uint32_t>(m_lines.size());
    }
}

void ProfileDocument::BuildKeyIndex() {
    std::size_t keys = 0;
    for (const Line& line : m_lines) {
        keys += (line.kind == Kind::Key || line.kind == Kind::KeyWithoutValue) ? 1 : 0;
    }
    if (keys == 0) {
        return;
    }
    m_keySlots.assign(std::bit_ceil(keys * 2), 0);
    const std::size_t mask = m_keySlots.size() - 1;
    for (std::uint32_t index = 0; index < m_lines.size(); ++index) {
        const Line& line = m_lines[index];
        if ((line.kind != Kind::Key && line.kind != Kind::KeyWithoutValue) || line.section < 0 ||
            !m_sections[static_cast<std::size_t>(line.section)].firstOfName) {
            continue;
        }
        const std::string_view name = NameOf(line);
        std::size_t slot = HashName(line.section, name) & mask;
        bool duplicate = false;
        while (m_keySlots[slot] != 0) {
            const Line& other = m_lines[m_keySlots[slot] - 1];
            if (other.section == line.section && EqualsIgnoringCase(NameOf(other), name)) {
                duplicate = true; // the first line of a name decides
                break;
            }
            slot = (slot + 1) & mask;
        }
        if (!duplicate) {
            m_keySlots[slot] = index + 1;
        }
    }
}

std::string_view ProfileDocument::LineText(const Line& line) const {
    return std::string_view(m_text).substr(line.begin, line.length);
}

std::string_view ProfileDocument::NameOf(const Line& line) const {
    return std::string_view(m_text).substr(line.nameBegin, line.nameLength);
}

std::string_view ProfileDocument::ValueOf(const Line& line) const {
    return std::string_view(m_text).substr(line.valueBegin, line.valueLength);
}

int ProfileDocument::FindSection(std::string_view section) const {
    const std::string_view wanted = TrimBlanks(section);
    for (std::size_t i = 0; i < m_sections.size(); ++i) {
        if (EqualsIgnoringCase(NameOf(m_lines[m_sections[i].headerLine]), wanted)) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

int ProfileDocument::FindKeyLine(int section, std::string_view key) const {
    if (section < 0 || m_keySlots.empty()) {
        return -1;
    }
    const std::string_view wanted = TrimBlanks(key);
    const std::size_t mask = m_keySlots.size() - 1;
    for (std::size_t slot = HashName(section, wanted) & mask; m_keySlots[slot] != 0;
         slot = (slot + 1) & mask) {
        const Line& line = m_lines[m_keySlots[slot] - 1];
        if (line.section == section && EqualsIgnoringCase(NameOf(line), wanted)) {
            return static_cast<int>(m_keySlots[slot] - 1);
        }
    }
    return -1;
}

std::optional<std::string_view> ProfileDocument::Find(std::string_view section,
                                                      std::string_view key) const {
    return FindInSection(FindSection(section), key);
}

std::optional<std::string_view> ProfileDocument::FindInSection(int sectionOrdinal,
                                                               std::string_view key) const {
    const int line = FindKeyLine(sectionOrdinal, key);
    if (line < 0 || m_lines[static_cast<std::size_t>(line)].kind != Kind::Key) {
        return std::nullopt;
    }
    return ValueOf(m_lines[static_cast<std::size_t>(line)]);
}

bool ProfileDocument::HasSection(std::string_view section) const {
    return FindSection(section) >= 0;
}

std::vector<std::pair<std::string_view, std::string_view>>
ProfileDocument::Entries(std::string_view section) const {
    std::vector<std::pair<std::string_view, std::string_view>> entries;
    const int found = FindSection(section);
    if (found < 0) {
        return entries;
    }
    const Section& info = m_sections[static_cast<std::size_t>(found)];
    for (std::uint32_t i = info.headerLine + 1; i < info.endLine; ++i) {
        if (m_lines[i].kind == Kind::Key) {
            entries.emplace_back(NameOf(m_lines[i]), ValueOf(m_lines[i]));
        }
    }
    return entries;
}

std::vector<std::string_view> ProfileDocument::AllLines() const {
    std::vector<std::string_view> lines;
    lines.reserve(m_lines.size() + 2);
    for (const Line& line : m_lines) {
        lines.push_back(LineText(line));
    }
    return lines;
}

std::string ProfileDocument::Compose(const std::vector<std::string_view>& lines) const {
    std::size_t size = 0;
    for (const auto& line : lines) {
        size += line.size() + 2;
    }
    std::string text;
    text.reserve(size);
    for (const auto& line : lines) {
        text.append(line);
        text.append("\r\n");
    }
    return text;
}

std::string ProfileDocument::WithValue(std::string_view section, std::string_view key,
                                       std::string_view value) const {
    std::vector<std::string_view> lines = AllLines();
    const int found = FindSection(section);
    const int keyLine = FindKeyLine(found, key);
    if (keyLine >= 0) {
        // The key keeps the spelling it has in the file.
        const std::string entry = std::string(NameOf(m_lines[static_cast<std::size_t>(keyLine)])) +
                                  "=" + std::string(value);
        lines[static_cast<std::size_t>(keyLine)] = entry;
        return Compose(lines);
    }
    const std::string entry = std::string(TrimBlanks(key)) + "=" + std::string(value);
    if (found < 0) {
        const std::string header = "[" + std::string(TrimBlanks(section)) + "]";
        lines.push_back(header);
        lines.push_back(entry);
        return Compose(lines);
    }
    // A new key goes after the last non-empty line of its section, ahead of the spacing.
    const Section& info = m_sections[static_cast<std::size_t>(found)];
    std::uint32_t insertAt = info.headerLine + 1;
    for (std::uint32_t i = info.endLine; i > info.headerLine + 1; --i) {
        if (m_lines[i - 1].kind != Kind::Blank) {
            insertAt = i;
            break;
        }
    }
    lines.insert(lines.begin() + insertAt, entry);
    return Compose(lines);
}

std::string ProfileDocument::WithoutKey(std::string_view section, std::string_view key) const {
    std::vector<std::string_view> lines = AllLines();
    const int keyLine = FindKeyLine(FindSection(section), key);
    if (keyLine >= 0) {
        lines.erase(lines.begin() + keyLine);
    }
    return Compose(lines);
}

std::string ProfileDocument::WithoutSection(std::string_view section) const {
    std::vector<std::string_view> lines = AllLines();
    const int found = FindSection(section);
    if (found >= 0) {
        const Section& info = m_sections[static_cast<std::size_t>(found)];
        lines.erase(lines.begin() + info.headerLine, lines.begin() + info.endLine);
    }
    return Compose(lines);
}

std::string ProfileDocument::WithSectionCleared(std::string_view section) const {
    const int found = FindSection(section);
    if (found < 0) {
        return Compose(AllLines());
    }
    const Section& info = m_sections[static_cast<std::size_t>(found)];
    std::vector<std::string_view> lines;
    for (std::uint32_t i = 0; i < m_lines.size(); ++i) {
        const bool inBody = i > info.headerLine && i < info.endLine;
        if (!inBody || m_lines[i].kind == Kind::Blank) {
            lines.push_back(LineText(m_lines[i]));
        }
    }
    return Compose(lines);
}

} // namespace coinlight
