#include "ProfileTextBuilder.h"

#include <algorithm>

#include "TextFunctions.h"
#include "core/ProfileDocument.h"

namespace coinlight {

namespace {

/// What the profile writer stores for a key or value: no line breaks.
std::string OneLine(std::string_view text) {
    std::string line(text);
    std::replace(line.begin(), line.end(), '\r', ' ');
    std::replace(line.begin(), line.end(), '\n', ' ');
    return line;
}

} // namespace

void ProfileTextBuilder::Set(std::string_view section, std::string_view key,
                             std::string_view value) {
    const std::string sectionName(TrimBlanks(section));
    auto [sectionAt, newSection] =
        m_sectionIndex.try_emplace(ToLowerAscii(sectionName), m_sections.size());
    if (newSection) {
        m_sections.push_back({sectionName, {}, {}});
    }
    Section& target = m_sections[sectionAt->second];
    const std::string keyName(TrimBlanks(OneLine(key)));
    auto [keyAt, newKey] =
        target.keyIndex.try_emplace(ToLowerAscii(keyName), target.entries.size());
    if (newKey) {
        target.entries.emplace_back(keyName, OneLine(value));
    } else {
        target.entries[keyAt->second].second = OneLine(value);
    }
}

std::string ProfileTextBuilder::Text(bool spacing) const {
    std::string text;
    for (const Section& section : m_sections) {
        if (spacing && !text.empty()) {
            text.append("\r\n");
        }
        text.append("[").append(section.name).append("]\r\n");
        for (const auto& [key, value] : section.entries) {
            text.append(key).append("=").append(value).append("\r\n");
        }
    }
    return text;
}

} // namespace coinlight
